// What counters were when they were cleared.
#pragma once

#include <cstdint>
#include <functional>
#include <unordered_map>

// Baselines by what a row of a moving table is known by.
template <class Key, class Hash = std::hash<Key>>
class Baselines {
 public:
  // What has been counted since the row with this key was cleared; everything if it never was.
  // With `clear` it is, now.
  std::uint32_t since(const Key& key, std::uint32_t count, bool clear) {
    if (clear) baselines_[key] = count;
    const auto known = baselines_.find(key);
    return known == baselines_.end() ? count : count - known->second;
  }

 private:
  std::unordered_map<Key, std::uint32_t, Hash> baselines_;
};
