#include "framework/core/event_loop.h"

#include <Xm/Xm.h>

#include <algorithm>
#include <vector>

#include "framework/core/app.h"

namespace {

struct Ending {
  Widget widget;
  int madeAt;
};

int depth = 0;
int eventsFirst = 0;          // so many events are to be handled before a timer is
std::vector<Ending> waiting;  // in the order in which they were given up
std::vector<Widget> going;    // the toolkit destroys them at the end of an event

bool isBelow(Widget widget, Widget top) {
  while (widget && widget != top) widget = XtParent(widget);
  return widget == top;
}

bool mayGo(const Ending& ending) {
  const auto isInside = [&](Widget widget) { return isBelow(widget, ending.widget); };
  return depth <= ending.madeAt && std::none_of(going.begin(), going.end(), isInside);
}

// By the toolkit after all, or with what it stood in.
void isDestroyed(Widget widget, XtPointer, XtPointer) {
  std::erase(going, widget);
  std::erase_if(waiting, [widget](const Ending& ending) { return ending.widget == widget; });
}

void destroyDue() {
  for (;;) {
    const auto due = std::find_if(waiting.begin(), waiting.end(), mayGo);
    if (due == waiting.end()) return;
    const Widget widget = due->widget;
    waiting.erase(due);
    going.push_back(widget);
    XtDestroyWidget(widget);
  }
}

}  // namespace

void ziProcessEvent() {
  const bool eventFirst = eventsFirst > 0 && XEventsQueued(app->display(), QueuedAlready) > 0;
  eventsFirst = eventFirst ? eventsFirst - 1 : 0;
  XtAppProcessEvent(app->context(), eventFirst ? XtIMXEvent : XtIMAll);
  destroyDue();
}

void ziLetEventsCatchUp() {
  eventsFirst = XEventsQueued(app->display(), QueuedAfterReading);
}

void ziRunLoop(const std::function<bool()>& goesOn) {
  ++depth;
  while (goesOn()) ziProcessEvent();
  --depth;  // what may go now goes after the next event: the caller may still use it
}

int ziLoopDepth() {
  return depth;
}

void ziDestroyWidget(Widget widget, int madeAt) {
  if (XtIsShell(widget)) {
    XtPopdown(widget);
  } else {
    XtUnmanageChild(widget);
  }
  // A text takes the keyboard while the mouse selects in it, and does not give it back.
  XtUngrabKeyboard(widget, CurrentTime);
  XtAddCallback(widget, XmNdestroyCallback, isDestroyed, nullptr);
  waiting.push_back({widget, madeAt});
  destroyDue();
}
