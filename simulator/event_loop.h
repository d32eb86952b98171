// The one thread's loop: waits on descriptors and on times, and calls what was set for each.
#pragma once

#include <functional>
#include <map>

#include "simulator/clock.h"

namespace lisim {

class EventLoop {
 public:
  using Handler = std::function<void()>;

  // The clock must outlive the loop.
  explicit EventLoop(const Clock& clock) : clock_(clock) {}

  // Calls `handler` while `descriptor`, which must not block, has something to read or is at its
  // end. A handler may unwatch any descriptor, its own too.
  void watch(int descriptor, Handler handler) { readers_[descriptor] = std::move(handler); }
  void unwatch(int descriptor) { readers_.erase(descriptor); }

  // Calls `handler` once at `due`, those of one time in the order they were set.
  void at(Milliseconds due, Handler handler) { timed_.emplace(due, std::move(handler)); }

  Milliseconds now() const { return clock_.now(); }

  // Runs until stop() is called from a handler.
  void run();
  void stop() { stopped_ = true; }

 private:
  int untilNextDue() const;
  void runDue();
  void waitForDescriptors();

  const Clock& clock_;
  std::map<int, Handler> readers_;
  std::multimap<Milliseconds, Handler> timed_;
  bool stopped_ = false;
};

}  // namespace lisim
