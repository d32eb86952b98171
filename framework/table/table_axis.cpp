#include "framework/table/table_axis.h"

#include <algorithm>

void ziTableAxis::setSize(unsigned long first, unsigned long last, unsigned pixels) {
  const int size = static_cast<int>(std::min(pixels, unsigned{longest} / 1000));
  for (unsigned long n = std::max(first, 1UL); n <= std::min(last, ownSizes); ++n) {
    sizes_[n - 1] = size;
  }
}

int ziTableAxis::size(unsigned long n) const {
  const int own = n >= 1 && n <= ownSizes ? sizes_[n - 1] : 0;
  return own ? own : default_;
}

int ziTableAxis::start(unsigned long n) const {
  int pixels = 0;
  const unsigned long before = n > 0 ? n - 1 : 0;
  for (unsigned long i = 1; i <= std::min(before, ownSizes); ++i) pixels += size(i);
  if (before <= ownSizes) return pixels;
  const auto most = static_cast<unsigned long>((longest - pixels) / default_);
  return pixels + static_cast<int>(std::min(before - ownSizes, most)) * default_;
}

unsigned long ziTableAxis::at(int pixel) const {
  if (pixel < 0 || pixel >= total()) return 0;
  int end = 0;
  for (unsigned long n = 1; n <= std::min(count_, ownSizes); ++n) {
    end += size(n);
    if (pixel < end) return n;
  }
  return ownSizes + 1 + static_cast<unsigned long>((pixel - end) / default_);
}

int ziTableAxis::nextStart(int pixel) const {
  const unsigned long n = at(pixel);
  if (n == 0) return pixel < 0 ? 0 : total();
  return start(n) == pixel ? pixel : end(n);
}
