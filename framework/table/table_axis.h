// The columns or the rows of a table in pixels, counted from 1.
#pragma once

#include <array>

class ziTableAxis {
 public:
  static constexpr unsigned long ownSizes = 100;  // so many can have a size of their own
  static constexpr int longest = 1 << 28;         // pixels; keeps sums within int

  void setCount(unsigned long count) { count_ = count; }
  unsigned long count() const { return count_; }
  // Pixels, 1 at least: the size of those that have none of their own.
  void setDefault(int pixels) { default_ = pixels < 1 ? 1 : pixels; }
  // Pixels, with 0 for the default. Numbers beyond the first 100 keep the default.
  void setSize(unsigned long first, unsigned long last, unsigned pixels);

  int size(unsigned long n) const;
  // The pixels in front of number `n`.
  int start(unsigned long n) const;
  int end(unsigned long n) const { return start(n) + size(n); }
  int total() const { return count_ ? end(count_) : 0; }
  // The number that lies at a pixel: 0 in front of the first and behind the last.
  unsigned long at(int pixel) const;
  // The next pixel, from `pixel` on, at which a number starts.
  int nextStart(int pixel) const;

 private:
  std::array<int, ownSizes> sizes_{};
  int default_ = 1;
  unsigned long count_ = 0;
};
