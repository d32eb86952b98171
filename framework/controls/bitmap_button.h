// Buttons with a picture and a caption, drawn by the framework.
#pragma once

#include <memory>
#include <optional>

#include "framework/controls/control.h"
#include "framework/controls/pane.h"
#include "framework/controls/visual.h"

// A control that draws itself on a drawing area.
class ziCtrlPane : public zControl {
 public:
  // The generic control of a template, with its widget.
  ziCtrlPane(zWindow* parent, zSizer* sizer, unsigned long style, const char* title, int id);
  ziCtrlPane(zWindow* parent, int id);

  void vmove(int x, int y, int width, int height) override;
  void setFont(std::shared_ptr<zFont> font, int redraw) override;

 protected:
  // Paints `event->area`, all of it, through `event->display`.
  virtual void draw(zDrawEvt* event) = 0;
  // Paints everything at once, without waiting for the server to ask.
  void repaint();
  // From the capture on the control gets all mouse events, wherever the pointer goes. Without it
  // the windows under the pointer would, since the framework asks for the button's events on all of
  // them.
  void captureMouse(const zMouseClickEvt* press);
  void releaseMouse();

 private:
  void createArea();
  static void exposeCB(Widget widget, XtPointer link, XtPointer callData);

  ziExposure exposure_;
  bool captured_ = false;
};

// The handler that a drawn control's command goes to before its parent hears of it.
class ziCtrlBase {
 public:
  template <class T, class M>
  void setCommandMember(T* object, M member) {
    commandMember_ = zEventHandler(object, member);
  }

 protected:
  zEventHandler commandMember_;
};

// A push button or, with ziVisBmpButtonInternal::autoCheck in its style, a two-state button.
//
// A click is offered to the direct callback, to the command member, to the handlers of the parent
// as a command event with notification 0, and to the parent's `dispatch`, until one consumes it.
class zBitmapButton : public ziCtrlPane, public ziCtrlBase {
 public:
  static constexpr int keepPlace = -1;

  zBitmapButton(zWindow* parent, zSizer* sizer, unsigned long style, const char* title, int id);
  // Takes the place of the generic button. An empty bitmap, or none, leaves the caption alone.
  zBitmapButton(zWindow* parent, int id, std::unique_ptr<zBitmap> bitmap = nullptr);

  // 0 off, 1 on, 2 while it is depressed.
  int check() const;
  // Sets it on or off and sends the button's own handlers a zMsgCheck event with this value.
  void check(int on);
  // Shows the disabled frame and caption whether or not the button takes input.
  void setDisabled(int disabled);
  // The picture: a strip of `frames` (6, or 1 for all states) frames; `place` is a PicturePlace or
  // keepPlace; with `redraw` 0 it is not shown before the next painting.
  void setBitmap(std::unique_ptr<zBitmap> bitmap, int frames = ziVisBmpButtonInternal::stripFrames,
                 int place = keepPlace, int redraw = 1);
  // Replaces the class's own style bits, the low 16 of the style word.
  void setCtrlStyle(unsigned long bits);
  unsigned long ctrlStyle() const { return styleValue() & ctrlStyleMask; }

  template <class T, class M>
  void setNotifyClicked(T* object, M member) {
    setupNotify(object, member, zNtfClicked);
  }
  template <class T, class M>
  void removeNotifyClicked(T* object, M member) {
    removeNotify(object, member, zNtfClicked);
  }
  // The direct callback.
  template <class T, class M>
  void setCallback(T* object, M member) {
    callback_ = zEventHandler(object, member);
  }

  int enable() override;
  int disable() override;
  int show(int visible) override;
  int mouseButtonDown(zMouseClickEvt* event) override;
  int mouseMove(zMouseMoveEvt* event) override;
  int mouseButtonUp(zMouseClickEvt* event) override;
  int focus(zFocusEvt* event) override;

 protected:
  void doText(const char* value) override;
  void draw(zDrawEvt* event) override;
  // Space presses and releases the button.
  int ziXmKeybindNP(zKeyEvt* event);

 private:
  static constexpr unsigned long ctrlStyleMask = 0xFFFF;

  // What the picture on the screen depends on and clicks change.
  struct Look {
    int frame = 0;
    bool depressed = false;
    bool disabled = false;
    bool focused = false;
    friend bool operator==(const Look&, const Look&) = default;
  };

  void setUp();
  bool showsDisabled() const;
  void refresh();
  void release(bool inside);
  void cancelPress();
  void clicked();
  void arrange();
  void drawFocus(zDisplay& display) const;

  ziVisBmpButtonInternal button_;
  ziVisText3dBmp caption_;
  zEventHandler callback_;
  bool disabled_ = false;
  bool focused_ = false;
  bool heldByKey_ = false;
  std::optional<Look> drawn_;
};
