// The picture of a table, kept off the screen.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "framework/controls/pane.h"

// Knows which parts of it are out of date, and draws those alone. A scroll moves what is there, so
// that only what comes into view is drawn.
class ziTableImage {
 public:
  void invalidate(const zRect& area);
  // Moves what `area` holds by so many pixels; what comes into view there is out of date.
  void shift(const zRect& area, const zPoint& by);
  // The picture for a window's drawing area of this size, after `draw` has been called for every
  // part that was out of date. Good until the next call.
  Drawable bringUpToDate(zWindow* window, const zDimension& size,
                         const std::function<void(zDrawEvt*)>& draw);

 private:
  zRect all() const { return {zPoint{}, image_->size()}; }

  std::unique_ptr<zPixmapDisplay> image_;
  std::vector<zRect> invalid_;
};
