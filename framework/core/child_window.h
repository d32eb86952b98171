// Windows inside windows.
#pragma once

#include <Xm/Xm.h>

#include "framework/core/window.h"

// Every tab stop is a tab group of its own, of the kind that Motif visits in the order of creation,
// which is the template's, and not by place.
constexpr XmNavigationType ziNavigation(bool tabStop) {
  return tabStop ? XmNavigationType{XmEXCLUSIVE_TAB_GROUP} : XmNavigationType{XmNONE};
}

class zChildWin : public zWindow {
 public:
  zChildWin(zWindow* parent, zSizer* sizer, unsigned long style, const char* title, int id);
  // Looks for the generic child that a dialog template made under this id and takes its place. With
  // none there the object stays without a widget, and every operation on it does nothing.
  zChildWin(zWindow* parent, int id);
  ~zChildWin() override;

  // Makes the widget. Returns non-zero.
  virtual int create();
  // Moves the bound variable into the control.
  virtual void setToDefault();

  int show(int visible) override;
  void vmove(int x, int y, int width, int height) override;
  void getExterior(zRect& rect) const override;
  virtual std::string getText() const { return {}; }

  // A handler of any command of this control, kept by the parent.
  template <class T, class M>
  void setCommand(T* object, M member) {
    if (parent()) parent()->addCommandHandler(ctrlId(), zEventHandler(object, member));
  }
  template <class T, class M>
  void removeCommand(T* object, M member) {
    if (parent()) parent()->removeCommandHandler(ctrlId(), zEventHandler(object, member));
  }
  // A handler of one notification of this control, kept by the parent.
  template <class T, class M>
  void setupNotify(T* object, M member, unsigned code) {
    if (parent()) parent()->addControlHandler(ctrlId(), code, zEventHandler(object, member));
  }
  template <class T, class M>
  void removeNotify(T* object, M member, unsigned code) {
    if (parent()) parent()->removeControlHandler(ctrlId(), code, zEventHandler(object, member));
  }

 protected:
  // What a control lies below: nothing, the controls that it is a frame around, or those frames
  // too.
  enum class Layer { control, frame, tabs };
  virtual Layer layer() const { return Layer::control; }

  // What is left of the generic child whose place this one took; gone after bury(). Null when there
  // was none. The class that knows the last of its state takes that over and calls bury().
  zChildWin* husk() const { return husk_.get(); }
  void bury() { husk_.reset(); }

  // Makes the board that every child stands in, at the sizer's place; a size nobody set becomes 10
  // by 10.
  Widget createContainer(const char* name);
  void setContainer(Widget container) { container_ = container; }
  Widget getContainer() const { return container_; }

 private:
  static void stackOnMap(Widget widget, XtPointer link, XEvent* event, Boolean*);

  std::unique_ptr<zChildWin> husk_;
  Widget container_ = nullptr;
};
