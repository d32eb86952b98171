// The base of the controls: a board at the control's place, and the real widget inside it.
#pragma once

#include <string>

#include "framework/core/child_window.h"

class zControl : public zChildWin {
 public:
  // What kind of widget stands behind a control.
  enum SubType { subTypeButton = 0, subTypeStatic = 3, subTypeEdit = 4, subTypeOther = 6 };

  zControl(zWindow* parent, zSizer* sizer, unsigned long style, const char* title, int id,
           int subType);
  // Takes the place of the generic control that a dialog template made under `id`.
  zControl(zWindow* parent, int id);

  // The text shown. Setting ends in the virtual doText.
  std::string text() const { return getText(); }
  void text(const char* value) { doText(value ? value : ""); }
  void text(const std::string& value) { doText(value.c_str()); }
  std::string getText() const override { return title(); }

  const zColor& textColor() const { return textColor_; }
  void textColor(const zColor& color);

  int getSubType() const { return subType_; }

 protected:
  // The same for a class whose generic control has state: that takes it from husk() and calls
  // bury().
  zControl(ziAdopt, zWindow* parent, int id);

  virtual void doText(const char* value);

  // Puts the real widget, made in the container, to work: CtrlProc in front of its own handlers,
  // the window's font and colours. Returns non-zero.
  int adoptWidget(Widget real, Widget scrolled = nullptr);

  // Gives a widget of this control a background, the shadows that go with it, and the text colour.
  void setColors(Widget widget, const zColor& background) const;

  // Sends a command event with a notification code to the parent.
  static int notifyParent(zWindow* control, unsigned code, void* callData);
  // Sends the parent what a click on its default button, or on control 1 without one, would send.
  void pressDefaultButton(void* callData);
  // The control behind a callback's client data, or null.
  template <class T>
  static T* controlOf(XtPointer link) {
    return static_cast<T*>(static_cast<ziControlCB*>(link)->window);
  }

  // Puts the line of an XmText without a margin on the baseline that a label of `height` pixels in
  // the same place has.
  void centreLine(Widget text, int height) const;

  // Argument lists common to all real widgets.
  std::vector<Arg> commonArgs() const;

 private:
  static void CtrlProc(Widget widget, XtPointer link, XEvent* event, Boolean* goOn);
  bool leavesTypingToWidget() const;
  static bool keyReachesHandlers(const zControl* control, const zKeyEvt& key);
  void keyPressedOrReleased(XEvent* event, Boolean* goOn);
  void mousePressed(XEvent* event, Boolean* goOn);
  void crossed(XEvent* event);

  zColor textColor_ = zBlack;
  int subType_;
};
