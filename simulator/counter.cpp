#include "simulator/counter.h"

namespace lisim {

// Mixes like SplitMix64: neighbouring inputs give unrelated results.
std::uint32_t draw(std::uint32_t seed, std::uint64_t a, std::uint64_t b) {
  std::uint64_t mix = seed + a * 0x9E3779B97F4A7C15ULL + b * 0xD1B54A32D192ED03ULL;
  mix = (mix ^ (mix >> 30)) * 0xBF58476D1CE4E5B9ULL;
  mix = (mix ^ (mix >> 27)) * 0x94D049BB133111EBULL;
  return static_cast<std::uint32_t>(mix >> 32);
}

void TrafficClock::set(bool running, Milliseconds now) {
  passed_ = at(now);
  since_ = now;
  running_ = running;
}

Milliseconds TrafficClock::at(Milliseconds now) const {
  return running_ && now > since_ ? passed_ + (now - since_) : passed_;
}

std::uint64_t Counter::wander(std::uint64_t second, std::uint32_t seed) const {
  if (seed == 0 || second == 0) return 0;
  return draw(seed, second, perSecond_) % (perSecond_ / 4 + 1);
}

std::uint32_t Counter::value(Milliseconds time, std::uint32_t seed) const {
  const Milliseconds grown = time > since_ ? time - since_ : 0;
  const std::uint64_t second = grown / 1000;
  const std::uint64_t part = grown % 1000;
  // Between two full seconds the wandering is drawn as a straight line. Its slope is at most a
  // quarter of the rate, so that the sum still rises.
  const std::uint64_t wandered =
      wander(second, seed) * (1000 - part) + wander(second + 1, seed) * part;
  const std::uint64_t thousandths = perSecond_ * grown + wandered;
  return static_cast<std::uint32_t>(base_ + thousandths / 1000);
}

void Counter::setRate(std::uint32_t perSecond, Milliseconds time, std::uint32_t seed) {
  setValue(value(time, seed), time);
  perSecond_ = perSecond;
}

void Counter::setValue(std::uint32_t value, Milliseconds time) {
  base_ = value;
  since_ = time;
}

}  // namespace lisim
