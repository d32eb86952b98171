// Integer geometry in pixels (or in the unit that the place of use names).
#pragma once

#include <algorithm>
#include <vector>

struct zPoint {
  int x = 0;
  int y = 0;
  friend bool operator==(const zPoint&, const zPoint&) = default;
};

struct zDimension {
  int width = 0;
  int height = 0;
  friend bool operator==(const zDimension&, const zDimension&) = default;
};

// Two numbers with the smaller first, such as the ends of a text selection.
struct zRange {
  int start = 0;
  int end = 0;
  friend bool operator==(const zRange&, const zRange&) = default;
};

// Left and top belong to the rectangle, right and bottom lie just outside.
struct zRect {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;

  zRect() = default;
  zRect(int l, int t, int r, int b) : left(l), top(t), right(r), bottom(b) {}
  zRect(const zPoint& at, const zDimension& size)
      : left(at.x), top(at.y), right(at.x + size.width), bottom(at.y + size.height) {}

  int width() const { return right - left; }
  int height() const { return bottom - top; }
  zPoint pos() const { return {left, top}; }
  zDimension dimension() const { return {width(), height()}; }
  bool isEmpty() const { return right <= left || bottom <= top; }
  bool contains(const zPoint& p) const {
    return p.x >= left && p.x < right && p.y >= top && p.y < bottom;
  }
  zRect moved(int dx, int dy) const { return {left + dx, top + dy, right + dx, bottom + dy}; }
  zRect inset(int by) const { return {left + by, top + by, right - by, bottom - by}; }
  zRect intersection(const zRect& o) const {
    return {std::max(left, o.left), std::max(top, o.top), std::min(right, o.right),
            std::min(bottom, o.bottom)};
  }
  // The smallest rectangle around both; an empty one counts for nothing.
  zRect unionWith(const zRect& o) const {
    if (isEmpty()) return o;
    if (o.isEmpty()) return *this;
    return {std::min(left, o.left), std::min(top, o.top), std::max(right, o.right),
            std::max(bottom, o.bottom)};
  }
  friend bool operator==(const zRect&, const zRect&) = default;
};

// A set of rectangles, such as the parts of a window that need painting.
class zRegion {
 public:
  void add(const zRect& rect) {
    if (!rect.isEmpty()) rects_.push_back(rect);
  }
  const std::vector<zRect>& rects() const { return rects_; }
  bool isEmpty() const { return rects_.empty(); }

 private:
  std::vector<zRect> rects_;
};
