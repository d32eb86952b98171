// One scroll bar of a table.
#pragma once

#include <X11/Intrinsic.h>

#include "framework/core/geometry.h"

class ziTableScroller {
 public:
  enum Direction { across, down };

  // Makes the bar, unmanaged, in `board`.
  ziTableScroller(Widget board, Direction direction);
  ziTableScroller(const ziTableScroller&) = delete;
  ziTableScroller& operator=(const ziTableScroller&) = delete;

  Widget bar() const { return bar_; }
  // Shows the bar at `place`; hides it when that is empty.
  void place(const zRect& place);
  // All in pixels: what there is, what is seen of it, where that begins, and one step of an arrow.
  void set(int total, int seen, int offset, int step);

 private:
  Widget bar_;
};
