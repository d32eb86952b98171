#include "framework/table/table_scroller.h"

#include <Xm/ScrollBar.h>

#include "framework/drawing/color.h"

ziTableScroller::ziTableScroller(Widget board, Direction direction) {
  const unsigned long grey = ziClrm->pixel(zDialogGrey);
  bar_ = XtVaCreateWidget(direction == down ? "VScroll" : "HScroll", xmScrollBarWidgetClass, board,
                          XmNorientation, direction == down ? XmVERTICAL : XmHORIZONTAL,
                          XmNtraversalOn, False, XmNhighlightThickness, 0, nullptr);
  XmChangeColor(bar_, grey);
}

void ziTableScroller::place(const zRect& place) {
  if (place.isEmpty()) {
    XtUnmanageChild(bar_);
    return;
  }
  XtVaSetValues(bar_, XmNx, place.left, XmNy, place.top, XmNwidth, place.width(), XmNheight,
                place.height(), nullptr);
  XtManageChild(bar_);
}

void ziTableScroller::set(int total, int seen, int offset, int step) {
  if (!XtIsManaged(bar_)) return;  // set again when it is placed
  const int slider = std::max(seen, 1);
  const int maximum = std::max(total, offset + slider);
  XtVaSetValues(bar_, XmNminimum, 0, XmNmaximum, maximum, XmNsliderSize, slider, XmNvalue, offset,
                XmNincrement, std::max(step, 1), XmNpageIncrement, std::max(seen - step, 1),
                nullptr);
}
