#include "framework/controls/drop_list.h"

#include <X11/Shell.h>
#include <Xm/Xm.h>

#include <algorithm>

#include "framework/core/app.h"

namespace {

constexpr int border = 1;

ziDropList* openList = nullptr;  // there is at most one

}  // namespace

ziDropList::Filter ziDropList::filters[] = {
    {ButtonPress, pressed, nullptr},
    {ButtonRelease, released, nullptr},
    {FocusIn, focusMoved, nullptr},
    {FocusOut, focusMoved, nullptr},
};

ziDropList::ziDropList(Widget owner)
    : owner_(owner),
      shell_(XtVaCreatePopupShell("DropList", overrideShellWidgetClass, owner, XmNsaveUnder, True,
                                  XmNallowShellResize, True, XmNborderWidth, border, XmNborderColor,
                                  BlackPixelOfScreen(XtScreen(owner)), nullptr)) {}

ziDropList::~ziDropList() {
  forget();
}

void ziDropList::open(zDimension size, zAction<void> dismissed) {
  if (open_ || openList) return;
  place_ = place({size.width + 2 * border, size.height + 2 * border});
  dismissed_ = dismissed;
  XtVaSetValues(shell_, XmNx, place_.left, XmNy, place_.top, XmNwidth, place_.width() - 2 * border,
                XmNheight, place_.height() - 2 * border, nullptr);
  XtPopup(shell_, XtGrabNone);
  open_ = true;
  openList = this;
  grabPointer(XtWindow(shell_), true);
  for (Filter& f : filters) f.next = XtSetEventDispatcher(app->display(), f.type, f.filter);
}

void ziDropList::close() {
  if (!open_) return;
  forget();
  XUngrabPointer(app->display(), XtLastTimestampProcessed(app->display()));
  XtPopdown(shell_);
}

void ziDropList::forget() {
  if (!open_) return;
  open_ = false;
  openList = nullptr;
  for (const Filter& f : filters) XtSetEventDispatcher(app->display(), f.type, f.next);
}

Boolean ziDropList::passOn(XEvent* event) {
  const auto* f = std::find_if(std::begin(filters), std::end(filters),
                               [event](const Filter& known) { return known.type == event->type; });
  return f->next(event);
}

zRect ziDropList::place(zDimension size) const {
  int x = 0, y = 0;
  Window child = None;
  XTranslateCoordinates(app->display(), XtWindow(owner_), DefaultRootWindow(app->display()), 0, 0,
                        &x, &y, &child);
  Dimension height = 0;
  XtVaGetValues(owner_, XmNheight, &height, nullptr);
  const int above = y;
  const int below = __scrPixHeight - y - height;
  const bool flips = size.height > below && above > below;
  const int room = std::max(flips ? above : below, 1);
  const zDimension fits{std::min(size.width, __scrPixWidth), std::min(size.height, room)};
  return {
      zPoint{std::clamp(x, 0, __scrPixWidth - fits.width), flips ? y - fits.height : y + height},
      fits};
}

void ziDropList::grabPointer(Window window, bool ownerEvents) const {
  constexpr unsigned mask = ButtonPressMask | ButtonReleaseMask | PointerMotionMask;
  XGrabPointer(app->display(), window, ownerEvents, mask, GrabModeAsync, GrabModeAsync, None, None,
               XtLastTimestampProcessed(app->display()));
}

// Another shell's windows are not in the widget that it was made below.
bool ziDropList::isIn(Widget top, Window window) {
  Widget widget = XtWindowToWidget(app->display(), window);
  while (widget && widget != top && !XtIsShell(widget)) widget = XtParent(widget);
  return widget == top;
}

// A press inside holds the pointer in its window until the release, as it would without the list's
// own grab. One outside closes the list, and is then what it would have been anyway.
Boolean ziDropList::pressed(XEvent* event) {
  const XButtonEvent& press = event->xbutton;
  ziDropList& list = *openList;
  const bool inside = list.place_.contains({press.x_root, press.y_root});
  if (inside && isIn(list.shell_, press.window)) {
    list.grabPointer(press.window, false);
    return passOn(event);
  }
  const bool ends = press.window == XtWindow(list.shell_) || isIn(list.owner_, press.window);
  list.dismissed_();
  return ends ? True : passOn(event);
}

Boolean ziDropList::released(XEvent* event) {
  openList->grabPointer(XtWindow(openList->shell_), true);
  return passOn(event);
}

// A scroll bar takes the keyboard while its slider is held; the focus stays where it is.
Boolean ziDropList::focusMoved(XEvent* event) {
  const int mode = event->xfocus.mode;
  return mode == NotifyGrab || mode == NotifyUngrab ? True : passOn(event);
}
