// The window in which a combo box drops its list.
//
// An override shell below the control's widgets, so that it counts as part of a modal dialog, with
// or without a window manager, and goes when they go. The keyboard stays with the control. While it
// is open it holds a pointer grab of the server's own kind, which ends with the window or the
// program, whatever happens.
#pragma once

#include <X11/Intrinsic.h>

#include "framework/core/event_handler.h"
#include "framework/core/geometry.h"

class ziDropList {
 public:
  // `owner` is the widget under which the list drops; presses on it while the list is open close
  // the list and do nothing else.
  explicit ziDropList(Widget owner);
  // Leaves the widgets to the owner's.
  ~ziDropList();
  ziDropList(const ziDropList&) = delete;
  ziDropList& operator=(const ziDropList&) = delete;

  // Where the list's widgets go.
  Widget shell() const { return shell_; }
  bool isOpen() const { return open_; }

  // Opens with room for `size` below the owner, or above it where there is more room. `dismissed`
  // is called, to close it, when a mouse button goes down outside.
  void open(zDimension size, zAction<void> dismissed);
  void close();
  // The same when the widgets have gone.
  void forget();

 private:
  zRect place(zDimension size) const;
  void grabPointer(Window window, bool ownerEvents) const;
  static bool isIn(Widget top, Window window);
  static Boolean pressed(XEvent* event);
  static Boolean released(XEvent* event);
  static Boolean focusMoved(XEvent* event);

  // An event type that comes by here while a list is open, and where it goes on to.
  struct Filter {
    int type;
    XtEventDispatchProc filter;
    XtEventDispatchProc next;
  };
  static Filter filters[];
  static Boolean passOn(XEvent* event);

  Widget owner_;
  Widget shell_;
  bool open_ = false;
  zRect place_;
  zAction<void> dismissed_;
};
