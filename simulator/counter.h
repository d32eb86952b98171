// Counters that grow with a board's traffic, and the clock they grow by.
#pragma once

#include <cstdint>

#include "simulator/clock.h"

namespace lisim {

// A repeatable number drawn from three others.
std::uint32_t draw(std::uint32_t seed, std::uint64_t a, std::uint64_t b);

// Time spent carrying traffic: it stands still while the board carries none.
class TrafficClock {
 public:
  // From `now` on traffic runs or rests.
  void set(bool running, Milliseconds now);
  Milliseconds at(Milliseconds now) const;

 private:
  Milliseconds passed_ = 0;  // up to the last stop
  Milliseconds since_ = 0;   // the last start, while running
  bool running_ = false;
};

// A count that grows at a set rate. All times are traffic times. With a seed other than 0 the
// growth wanders about the rate by up to a quarter of a second's worth, and never backwards.
class Counter {
 public:
  // The count at `time`, wrapped at 32 bits.
  std::uint32_t value(Milliseconds time, std::uint32_t seed) const;

  // From `time` on the count grows by `perSecond`, and goes on from where it stands.
  void setRate(std::uint32_t perSecond, Milliseconds time, std::uint32_t seed);
  void setValue(std::uint32_t value, Milliseconds time);
  std::uint32_t rate() const { return perSecond_; }

 private:
  std::uint64_t wander(std::uint64_t second, std::uint32_t seed) const;

  std::uint32_t base_ = 0;  // the count at since_
  std::uint32_t perSecond_ = 0;
  Milliseconds since_ = 0;
};

}  // namespace lisim
