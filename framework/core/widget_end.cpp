#include "framework/core/widget_end.h"

#include <Xm/Xm.h>

#include <algorithm>
#include <chrono>

#include "framework/core/app.h"

namespace {

using Clock = std::chrono::steady_clock;

// A paste asks for the forms in which there is a selection, and then for one of them.
constexpr int questionsOfAPaste = 2;

Clock::time_point lastAnswer;  // when the last question asked will have been answered or given up

unsigned long untilLastAnswer() {
  const auto left = lastAnswer - Clock::now();
  const auto ms = std::chrono::ceil<std::chrono::milliseconds>(left).count();
  return static_cast<unsigned long>(std::max<long>(ms, 0));
}

struct Kept {
  Widget widget;
  XtIntervalId timer;
};

void destroyKept(XtPointer kept, XtIntervalId*) {
  static_cast<Kept*>(kept)->timer = 0;
  XtDestroyWidget(static_cast<Kept*>(kept)->widget);
}

// By destroyKept, or with what it stood in.
void keptIsDestroyed(Widget, XtPointer data, XtPointer) {
  auto* kept = static_cast<Kept*>(data);
  if (kept->timer) XtRemoveTimeOut(kept->timer);
  delete kept;
}

}  // namespace

void ziSelectionAskedFor() {
  const auto patience = std::chrono::milliseconds(XtAppGetSelectionTimeout(app->context()));
  lastAnswer = Clock::now() + questionsOfAPaste * patience;
}

void ziDestroyWidget(Widget widget) {
  if (XtIsShell(widget)) {
    XtPopdown(widget);
  } else {
    XtUnmanageChild(widget);
  }
  const unsigned long wait = untilLastAnswer();
  if (wait == 0) {
    XtDestroyWidget(widget);
    return;
  }
  auto* kept = new Kept{widget, 0};
  kept->timer = XtAppAddTimeOut(app->context(), wait, destroyKept, kept);
  XtAddCallback(widget, XmNdestroyCallback, keptIsDestroyed, kept);
}
