#include "simulator/event_loop.h"

#include <poll.h>

#include <algorithm>
#include <vector>

namespace lisim {

// Milliseconds for poll: -1 when nothing is timed.
int EventLoop::untilNextDue() const {
  if (timed_.empty()) return -1;
  constexpr Milliseconds longest = 60000;
  const Milliseconds due = timed_.begin()->first;
  const Milliseconds current = now();
  return due > current ? static_cast<int>(std::min(due - current, longest)) : 0;
}

void EventLoop::runDue() {
  const Milliseconds current = now();
  while (!stopped_ && !timed_.empty() && timed_.begin()->first <= current) {
    const Handler handler = std::move(timed_.begin()->second);
    timed_.erase(timed_.begin());
    handler();
  }
}

void EventLoop::waitForDescriptors() {
  std::vector<pollfd> waiting;
  for (const auto& [descriptor, handler] : readers_) waiting.push_back({descriptor, POLLIN, 0});
  if (poll(waiting.data(), waiting.size(), untilNextDue()) <= 0) return;
  for (const pollfd& one : waiting) {
    if (stopped_ || one.revents == 0) continue;
    const auto reader = readers_.find(one.fd);
    if (reader == readers_.end()) continue;
    const Handler handler = reader->second;
    handler();
  }
}

void EventLoop::run() {
  while (!stopped_) {
    runDue();
    if (!stopped_) waitForDescriptors();
  }
}

}  // namespace lisim
