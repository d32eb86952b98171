#include "framework/table/table_image.h"

#include <cstdlib>
#include <utility>

namespace {

constexpr std::size_t mostParts = 64;  // with more of them one rectangle around all is drawn

bool holds(const zRect& outer, const zRect& inner) {
  return outer.intersection(inner) == inner;
}

}  // namespace

void ziTableImage::invalidate(const zRect& area) {
  const zRect part = image_ ? area.intersection(all()) : zRect();
  if (part.isEmpty()) return;  // without an image all of it is to be drawn
  for (const zRect& known : invalid_) {
    if (holds(known, part)) return;
  }
  std::erase_if(invalid_, [&](const zRect& known) { return holds(part, known); });
  invalid_.push_back(part);
  if (invalid_.size() <= mostParts) return;
  zRect around;
  for (const zRect& known : invalid_) around = around.unionWith(known);
  invalid_ = {around};
}

void ziTableImage::shift(const zRect& area, const zPoint& by) {
  const zRect part = image_ ? area.intersection(all()) : zRect();
  if (part.isEmpty() || by == zPoint{}) return;
  if (std::abs(by.x) >= part.width() || std::abs(by.y) >= part.height()) {
    invalidate(part);
    return;
  }
  for (const zRect& known : std::exchange(invalid_, {})) {
    if (!holds(part, known)) invalidate(known);
    invalidate(known.intersection(part).moved(by.x, by.y).intersection(part));
  }
  const zRect kept = part.intersection(part.moved(by.x, by.y));
  image_->copy(image_->drawable(), kept.moved(-by.x, -by.y), kept.pos());
  invalidate({part.left, by.y < 0 ? kept.bottom : part.top, part.right,
              by.y < 0 ? part.bottom : kept.top});
  invalidate({by.x < 0 ? kept.right : part.left, part.top, by.x < 0 ? part.right : kept.left,
              part.bottom});
}

void ziTableImage::bringUpToDate(zWindow* window, const zDimension& size,
                                 const std::function<void(zDrawEvt*)>& draw) {
  if (!image_ || image_->size() != size) {
    image_ = std::make_unique<zPixmapDisplay>(size);
    image_->lock();
    invalid_ = {all()};
  }
  if (invalid_.empty()) return;
  for (const zRect& part : std::exchange(invalid_, {})) {
    image_->setClip(part);
    zDrawEvt event;
    event.area = part;
    event.display = image_.get();
    event.window = window;
    draw(&event);
  }
  image_->clearClip();  // copies are not cut
}

void ziTableImage::show(Window target, const zRect& part) const {
  image_->copyTo(target, part);
}
