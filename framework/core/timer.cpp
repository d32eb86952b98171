#include "framework/core/timer.h"

#include "framework/core/app.h"
#include "framework/core/event_loop.h"

zTimer::zTimer(zAction<void> action, unsigned long milliseconds, bool repeat)
    : action_(action), repeat_(repeat), period_(milliseconds) {
  if (!app->timers()) app->timers(std::make_unique<zTimerDev>());
  app->timers()->add(this);
}

zTimer::~zTimer() {
  if (device_) device_->remove(this);
}

zTimerDev::~zTimerDev() {
  while (!timers_.empty()) remove(timers_.front());
}

void zTimerDev::add(zTimer* timer) {
  timers_.push_back(timer);
  timer->device_ = this;
  arm(timer);
}

void zTimerDev::arm(zTimer* timer) {
  timer->id_ = XtAppAddTimeOut(app->context(), timer->period_, timerProcess, timer);
}

void zTimerDev::remove(zTimer* timer) {
  if (timer->id_) XtRemoveTimeOut(timer->id_);
  timer->id_ = 0;
  removeWithNoID(timer);
}

void zTimerDev::removeWithNoID(zTimer* timer) {
  timers_.remove(timer);
  timer->device_ = nullptr;
}

void zTimerDev::timerProcess(XtPointer timer, XtIntervalId*) {
  auto* fired = static_cast<zTimer*>(timer);
  fired->device_->tproc(fired);
}

void zTimerDev::tproc(zTimer* timer) {
  timer->id_ = 0;
  if (timer->repeat_) {
    arm(timer);
  } else {
    removeWithNoID(timer);
  }
  const zAction<void> action = timer->action_;  // the call may delete the timer
  action();
  ziLetEventsCatchUp();
}
