#include "framework/layout/sizer.h"

#include "framework/core/window.h"

namespace {

zNormalLayout normalLayout;

int bounded(int value, int smallest, int largest) {
  if (smallest != zExpandSizer::noLimit) value = std::max(value, smallest);
  if (largest != zExpandSizer::noLimit) value = std::min(value, largest);
  return std::max(value, 0);
}

zReqGeom requestOf(const zSizer* child) {
  zReqGeom wanted;
  child->reqArea(wanted);
  if (child->asType(zSizer::typeFixedPlace)) wanted.affinity = zGravNone;
  return wanted;
}

}  // namespace

zSizer::zSizer(zSizer* parent) {
  if (parent) parent->append(this);
}

zSizer::zSizer(const zPoint& at, const zDimension& size, zSizer* parent) : zSizer(parent) {
  position_ = at;
  dimension_ = size;
}

zSizer::~zSizer() {
  unlink();
  while (!children_.empty()) {
    zSizer* child = children_.front();
    child->unlink();
    if (!child->window_) delete child;
  }
}

void zSizer::unlink() {
  if (parent_) parent_->children_.remove(this);
  parent_ = nullptr;
}

void zSizer::parent(zSizer* to) {
  unlink();
  if (to) to->append(this);
}

void zSizer::append(zSizer* child) {
  child->unlink();
  child->parent_ = this;
  children_.push_back(child);
}

void zSizer::setOwned(zWindow* window) {
  window_ = window;
  if (window && ownerType_ == ownerNone) ownerType_ = ownerWindow;
}

void zSizer::replace(zSizer* other) {
  other->unlink();
  if (parent_) {
    const auto here = std::find(parent_->children_.begin(), parent_->children_.end(), this);
    parent_->children_.insert(here, other);
    other->parent_ = parent_;
  }
  other->position_ = position_;
  other->dimension_ = dimension_;
  other->ownerType_ = ownerType_;
  while (!children_.empty()) other->append(children_.front());
  if (window_) window_->setSizer(other);  // deletes this
}

void zSizer::resize(zWindow*, zSizeEvt*) {}

void zSizer::update(const zRect* rect) {
  if (!rect) {
    setArea({position_, dimension_}, 1);
    return;
  }
  if (ownerType_ == ownerNone || (window_ && !window_->parent())) {
    position_ = rect->pos();
    dimension_ = rect->dimension();
  }
  setArea(*rect, 0);
}

void zSizer::reqArea(zReqGeom& request) const {
  request.dimension = hasSize() ? dimension_ : zDimension{};
  request.position = position_;
  request.affinity = affinity_;
}

// The window goes first: its children's windows can't grow beyond it.
void zSizer::setArea(const zRect& rect, int noMove) {
  position_ = rect.pos();
  dimension_ = rect.dimension();
  const bool movesWindow = ownerType_ == ownerWindow || ownerType_ == ownerControl;
  if (movesWindow && !noMove && affinity_ != zGravNone && window_ && window_->getWidget()) {
    window_->vmove(rect.left, rect.top, rect.width(), rect.height());
  }
  const zRect inside = window_ ? zRect(zPoint{}, dimension_) : rect;
  if (!children_.empty()) {
    (layout_ ? layout_ : &normalLayout)->allocate(inside, layoutFlags_, children_);
  }
}

bool zSizer::asType(int type) const {
  return type == typeFixedPlace && affinity_ == zGravNone;
}

void zNormalLayout::allocate(const zRect& rect, unsigned, const zSizerDlist& children) {
  zRect left = rect;
  for (zSizer* child : children) {
    const zReqGeom wanted = requestOf(child);
    const zDimension& size = wanted.dimension;
    const int bottom = size.height ? left.top + size.height : left.bottom;
    const int right = size.width ? left.left + size.width : left.right;
    zRect area;
    switch (wanted.affinity) {
      case zGravLeft:
        area = {left.left, left.top, left.left + size.width, bottom};
        left.left += size.width;
        break;
      case zGravRight:
        left.right -= size.width;
        area = {left.right, left.top, left.right + size.width, bottom};
        break;
      case zGravTop:
        area = {left.left, left.top, right, left.top + size.height};
        left.top += size.height;
        break;
      case zGravBottom:
        left.bottom -= size.height;
        area = {left.left, left.bottom, right, left.bottom + size.height};
        break;
      case zGravAll:
        area = left;
        left.left = left.right;
        left.top = left.bottom;
        break;
      case zGravNone:
        continue;
    }
    child->setArea(area, 0);
  }
}

zDimension zNormalLayout::request(const zSizerDlist& children) {
  zDimension sum;
  zDimension rest;
  for (zSizer* child : children) {
    const zReqGeom wanted = requestOf(child);
    switch (wanted.affinity) {
      case zGravLeft:
      case zGravRight:
        sum.width += wanted.dimension.width;
        rest.height = std::max(rest.height, wanted.dimension.height);
        break;
      case zGravTop:
      case zGravBottom:
        sum.height += wanted.dimension.height;
        rest.width = std::max(rest.width, wanted.dimension.width);
        break;
      case zGravAll:
        rest.width = std::max(rest.width, wanted.dimension.width);
        rest.height = std::max(rest.height, wanted.dimension.height);
        break;
      case zGravNone: {
        const zRect place(wanted.position, wanted.dimension);
        rest.width = std::max(rest.width, place.right);
        rest.height = std::max(rest.height, place.bottom);
        break;
      }
    }
  }
  return {sum.width + rest.width, sum.height + rest.height};
}

zGravSizer::zGravSizer(zGrav gravity, int extent, zSizer* parent)
    : zGravSizer(gravity,
                 zDimension{gravity == zGravTop || gravity == zGravBottom ? 0 : extent,
                            gravity == zGravLeft || gravity == zGravRight ? 0 : extent},
                 parent) {}

zGravSizer::zGravSizer(zGrav gravity, zDimension extent, zSizer* parent)
    : zSizer(parent), requested_(extent) {
  affinity(gravity);
}

void zGravSizer::reqArea(zReqGeom& request) const {
  request.dimension = requested_;
  request.position = pos();
  request.affinity = affinity();
}

zExpandSizer::zExpandSizer(unsigned flags, zSizer* parent) : zSizer(parent), flags_(flags) {
  affinity(zGravLeft);
}

bool zExpandSizer::asType(int type) const {
  return type == typeExpand || zSizer::asType(type);
}

void zExpandSizer::setArea(const zRect& rect, int noMove) {
  if (original_.isEmpty()) original_ = rect;
  zSizer::setArea(rect, noMove);
}

zRect zExpandSizer::place(const zDimension& growth) const {
  zRect place = original_.isEmpty() ? rect() : original_;
  if (flags_ & holdRight) place = place.moved(growth.width, 0);
  if (flags_ & holdBottom) place = place.moved(0, growth.height);
  const int width = place.width() + (flags_ & stretchAcross ? growth.width : 0);
  const int height = place.height() + (flags_ & stretchDown ? growth.height : 0);
  return {place.pos(),
          {bounded(width, smallest_.width, largest_.width),
           bounded(height, smallest_.height, largest_.height)}};
}

void zExpandLayout::allocate(const zRect& rect, unsigned flags, const zSizerDlist& children) {
  if (original_.width == zSizeNotSet) original_ = rect.dimension();
  const zDimension growth{rect.width() - original_.width, rect.height() - original_.height};
  zSizerDlist others;
  for (zSizer* child : children) {
    if (!child->asType(zSizer::typeExpand)) {
      others.push_back(child);
      continue;
    }
    child->setArea(static_cast<zExpandSizer*>(child)->place(growth), 0);
  }
  zNormalLayout::allocate(rect, flags, others);
}
