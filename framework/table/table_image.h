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
  // Makes it the picture for a window's drawing area of this size: calls `draw` for every part that
  // is out of date.
  void bringUpToDate(zWindow* window, const zDimension& size,
                     const std::function<void(zDrawEvt*)>& draw);
  // Copies a part of it to the same place of a window, once it is up to date.
  void show(Window target, const zRect& part) const;

 private:
  zRect all() const { return {zPoint{}, image_->size()}; }

  std::unique_ptr<zPixmapDisplay> image_;
  std::vector<zRect> invalid_;
};
