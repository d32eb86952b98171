// One small record for every X event and every Motif callback, with numeric message codes, and the
// typed views through which handlers read it.
#pragma once

#include <X11/Xlib.h>

#include "framework/core/event_handler.h"
#include "framework/core/geometry.h"

class zWindow;

enum zMessageCode : unsigned {
  zMsgActivate = 6,
  zMsgFocusGained = 7,
  zMsgFocusLost = 8,
  zMsgEnable = 10,  // a window was enabled (parm1 1) or disabled (0)
  zMsgClose = 16,
  zMsgKeyDown = 0x100,
  zMsgKeyUp = 0x101,
  zMsgChar = 0x102,
  zMsgCommand = 0x111,
  zMsgHScroll = 0x114,
  zMsgVScroll = 0x115,
  zMsgMenuHelp = 0x11F,
  zMsgMouseMove = 0x200,
  zMsgButtonDown = 0x201,
  zMsgButtonUp = 0x202,
  zMsgDoubleClick = 0x203,
  zMsgCheck = 1025,  // a bitmap button was set on (parm1 1) or off (0)
};

// The notification codes of a command event.
enum zNotification : unsigned {
  zNtfClicked = 0,
  zNtfButtonDoubleClicked = 5,
  zNtfEditSetFocus = 0x100,
  zNtfEditKillFocus = 0x200,
  zNtfEditChange = 0x300,
  zNtfEditUpdate = 0x400,
  zNtfEditMaxText = 0x501,
  zNtfEditHScroll = 0x601,
  zNtfEditVScroll = 0x602,
  // Of lists and combo boxes; a tab control sends the first when another tab was selected.
  zNtfSelChange = 1,
  zNtfListDoubleClick = 2,
  zNtfComboSetFocus = 3,
  zNtfComboKillFocus = 4,
  zNtfComboEditChange = 5,
  zNtfComboEditUpdate = 6,
  zNtfComboDropDown = 7,
};

struct zEvent {
  XEvent* xEvent = nullptr;    // null unless it came from X
  void* callData = nullptr;    // the Motif callback structure, or null
  unsigned message = 0;        // a zMessageCode
  unsigned long codeWord = 0;  // key: the keysym; command: the notification code
  long parm1 = 0;              // key: the character; command: the control id; activation: 1 or 0
  zWindow* window = nullptr;   // target of a key event

  zEvent() = default;
  explicit zEvent(unsigned msg) : message(msg) {}
};

struct zKeyEvt : zEvent {
  int ch() const { return static_cast<int>(parm1); }
  unsigned long code() const { return codeWord; }  // an X keysym
  bool shift() const { return xEvent && (xEvent->xkey.state & ShiftMask); }
  bool ctrl() const { return xEvent && (xEvent->xkey.state & ControlMask); }
  bool alt() const { return xEvent && (xEvent->xkey.state & Mod1Mask); }
};

struct zMouseClickEvt : zEvent {
  zPoint pos() const { return xEvent ? zPoint{xEvent->xbutton.x, xEvent->xbutton.y} : zPoint{}; }
  bool isButton(unsigned n) const { return xEvent && xEvent->xbutton.button == n; }
  bool isDoubleClick() const { return message == zMsgDoubleClick; }
};

struct zMouseMoveEvt : zEvent {
  zPoint pos() const { return xEvent ? zPoint{xEvent->xmotion.x, xEvent->xmotion.y} : zPoint{}; }
};

// Always made from a ConfigureNotify, real or made up.
struct zSizeEvt : zEvent {
  int width() const { return xEvent->xconfigure.width; }
  int height() const { return xEvent->xconfigure.height; }
  zDimension size() const { return {width(), height()}; }
};

struct zMoveEvt : zEvent {};

struct zFocusEvt : zEvent {
  bool gainFocus() const { return message == zMsgFocusGained; }
};

struct zActivateEvt : zEvent {
  bool active() const { return parm1 != 0; }
};

struct zCommandEvt : zEvent {
  int cmd() const { return static_cast<int>(parm1); }  // the control id
};

struct zNotifyEvt : zEvent {
  int cmd() const { return static_cast<int>(parm1); }
};

class zDisplay;

// A request to paint `area` of a window, clipped to it, through `display`.
struct zDrawEvt : zEvent {
  zRect area;
  zDisplay* display = nullptr;
};
