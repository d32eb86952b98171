// Timers and idle tasks, run from the main loop or from a modal loop on top of it.
#pragma once

#include <X11/Intrinsic.h>

#include <list>

#include "framework/core/event_handler.h"

class zTimer;

// The application's list of live timers; made with the first of them.
class zTimerDev {
 public:
  zTimerDev() = default;
  ~zTimerDev();
  zTimerDev(const zTimerDev&) = delete;
  zTimerDev& operator=(const zTimerDev&) = delete;

  // Arms the timer.
  void add(zTimer* timer);
  // Disarms and forgets it.
  void remove(zTimer* timer);
  // Forgets a timer whose timeout is spent.
  void removeWithNoID(zTimer* timer);

 private:
  static void timerProcess(XtPointer timer, XtIntervalId*);
  void tproc(zTimer* timer);
  void arm(zTimer* timer);

  std::list<zTimer*> timers_;
};

// Calls a member function every so many milliseconds, from its construction to its destruction. The
// next period starts before the call, so a slow handler does not stretch it, and a handler may
// delete its own timer.
class zTimer {
 public:
  template <class T, class C>
  zTimer(T* object, void (C::*member)(), unsigned long milliseconds)
      : zTimer(zAction<void>(object, member), milliseconds, true) {}
  virtual ~zTimer();
  zTimer(const zTimer&) = delete;
  zTimer& operator=(const zTimer&) = delete;

  XtIntervalId getID() const { return id_; }  // 0 when not armed
  void go() const { action_(); }

 protected:
  zTimer(zAction<void> action, unsigned long milliseconds, bool repeat);

 private:
  friend class zTimerDev;

  zAction<void> action_;
  bool repeat_;
  unsigned long period_;
  XtIntervalId id_ = 0;
  zTimerDev* device_ = nullptr;
};

// Calls once. The object stays until its owner deletes it, which its handler may do.
class zOneShotTimer : public zTimer {
 public:
  template <class T, class C>
  zOneShotTimer(T* object, void (C::*member)(), unsigned long milliseconds)
      : zTimer(zAction<void>(object, member), milliseconds, false) {}
};
