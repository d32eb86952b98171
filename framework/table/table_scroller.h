// One scroll bar of a table.
#pragma once

#include <X11/Intrinsic.h>

#include "framework/core/event_handler.h"
#include "framework/core/geometry.h"

class ziTableScroller {
 public:
  enum Direction { across, down };

  // Makes the bar, unmanaged, in `board`. `moved` is called when the user has moved it.
  ziTableScroller(Widget board, Direction direction, zAction<void> moved);
  ziTableScroller(const ziTableScroller&) = delete;
  ziTableScroller& operator=(const ziTableScroller&) = delete;

  void setMoved(zAction<void> moved) { moved_ = moved; }
  // Shows the bar at `place`; hides it when that is empty.
  void place(const zRect& place);
  // All in pixels: what there is, what is seen of it, where that begins, and one step of an arrow.
  void set(int total, int seen, int offset, int step);
  // Where the user has moved the bar to.
  int value() const { return value_; }

 private:
  static void movedCB(Widget bar, XtPointer scroller, XtPointer callData);

  Widget bar_;
  zAction<void> moved_;
  int value_ = 0;
};
