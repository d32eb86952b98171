// Time as the simulator sees it: whole milliseconds since it was started.
#pragma once

#include <cstdint>
#include <ctime>

namespace lisim {

using Milliseconds = std::uint64_t;

// The one source of time. Tests put their own in its place.
class Clock {
 public:
  virtual ~Clock() = default;
  virtual Milliseconds now() const = 0;
};

// The host's monotonic clock, counted from the object's construction.
class MonotonicClock : public Clock {
 public:
  MonotonicClock() : start_(read()) {}
  Milliseconds now() const override { return read() - start_; }

 private:
  static Milliseconds read() {
    timespec time{};
    clock_gettime(CLOCK_MONOTONIC, &time);
    return static_cast<Milliseconds>(time.tv_sec) * 1000 +
           static_cast<Milliseconds>(time.tv_nsec) / 1000000;
  }

  Milliseconds start_;
};

}  // namespace lisim
