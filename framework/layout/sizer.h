// Sizers hold the place and size of windows. A tree of them mirrors the window tree: each shares
// its rectangle out among its children by the gravity of each, in the order of their creation.
//
// A window owns its sizer. A sizer without a window (a margin, say) is owned by its parent sizer.
#pragma once

#include <list>

#include "framework/core/geometry.h"

class zWindow;
class zSizer;
struct zSizeEvt;

// Where a sizer takes its area from what its parent has left.
enum zGrav {
  zGravLeft = 0,
  zGravRight = 1,
  zGravTop = 2,
  zGravBottom = 3,
  zGravAll = 5,   // all that remains
  zGravNone = 6,  // stays where it is
};

// What a child asks its layout for. A width or height of 0 means as much as there is.
struct zReqGeom {
  zDimension dimension;
  zPoint position;
  zGrav affinity = zGravNone;
};

// A dimension that nobody has set.
constexpr int zSizeNotSet = 0x8000;

using zSizerDlist = std::list<zSizer*>;

// Shares a rectangle out among sizers.
class zLayout {
 public:
  virtual ~zLayout() = default;
  virtual void allocate(const zRect& rect, unsigned flags, const zSizerDlist& children) = 0;
  // The size that would fit all children.
  virtual zDimension request(const zSizerDlist& children) = 0;
};

// Strips at the edges of what is left, in list order.
class zNormalLayout : public zLayout {
 public:
  void allocate(const zRect& rect, unsigned flags, const zSizerDlist& children) override;
  zDimension request(const zSizerDlist& children) override;
};

class zSizer {
 public:
  enum TypeNumber { typeFixedPlace = 10, typeExpand = 11 };
  enum OwnerType { ownerNone = 0, ownerWindow = 1, ownerControl = 2 };

  explicit zSizer(zSizer* parent);
  zSizer(const zPoint& at, const zDimension& size, zSizer* parent);
  zSizer(int x, int y, int width, int height, zSizer* parent)
      : zSizer(zPoint{x, y}, zDimension{width, height}, parent) {}
  virtual ~zSizer();
  zSizer(const zSizer&) = delete;
  zSizer& operator=(const zSizer&) = delete;

  // Told that the parent of `window` has changed size; a plain sizer keeps its place.
  virtual void resize(zWindow* window, zSizeEvt* event);
  // Lays out `rect`, or with null the sizer's own place without moving its window.
  virtual void update(const zRect* rect);
  virtual void reqArea(zReqGeom& request) const;
  // Stores the place, moves the window there, unless `noMove`, and lays the children out in it.
  virtual void setArea(const zRect& rect, int noMove);
  virtual bool asType(int type) const;

  const zPoint& pos() const { return position_; }
  void pos(const zPoint& at) { position_ = at; }
  const zDimension& dimension() const { return dimension_; }
  void dimension(const zDimension& size) { dimension_ = size; }
  int width() const { return dimension_.width; }
  int height() const { return dimension_.height; }
  zRect rect() const { return {position_, dimension_}; }
  bool hasSize() const {
    return dimension_.width != zSizeNotSet && dimension_.height != zSizeNotSet;
  }

  zSizer* parent() const { return parent_; }
  void parent(zSizer* to);
  void append(zSizer* child);
  const zSizerDlist& children() const { return children_; }

  // Puts `other` in this one's place in the tree, over its children too, and in its window, which
  // deletes this one.
  void replace(zSizer* other);

  zWindow* owned() const { return window_; }
  void setOwned(zWindow* window);
  void setOwnerType(int type) { ownerType_ = type; }
  zGrav affinity() const { return affinity_; }
  void affinity(zGrav gravity) { affinity_ = gravity; }
  void layout(zLayout* shared, unsigned flags = 0) {
    layout_ = shared;
    layoutFlags_ = flags;
  }

 private:
  void unlink();

  zPoint position_;
  zDimension dimension_{zSizeNotSet, zSizeNotSet};
  zSizer* parent_ = nullptr;
  zGrav affinity_ = zGravNone;
  zLayout* layout_ = nullptr;  // null: the shared zNormalLayout
  unsigned layoutFlags_ = 0;
  zWindow* window_ = nullptr;
  int ownerType_ = ownerNone;
  zSizerDlist children_;
};

// Asks for a strip of the given extent at its gravity's edge.
class zGravSizer : public zSizer {
 public:
  // `extent` is the width for left and right, the height for top and bottom, else both.
  zGravSizer(zGrav gravity, int extent, zSizer* parent);
  zGravSizer(zGrav gravity, zDimension extent, zSizer* parent);

  void useArea(zDimension extent) { requested_ = extent; }
  void reqArea(zReqGeom& request) const override;

 private:
  zDimension requested_;
};

// Keeps a control's margins to chosen edges of its parent while the parent changes size.
class zExpandSizer : public zSizer {
 public:
  enum Flags : unsigned {
    holdRight = 0x1,       // keeps its distance to the right edge
    holdLeft = 0x2,        // keeps its distance to the left edge
    holdBottom = 0x4,      // keeps its distance to the bottom edge
    holdTop = 0x8,         // keeps its distance to the top edge
    stretchAcross = 0x10,  // grows with the width
    stretchDown = 0x20,    // grows with the height
  };
  static constexpr int noLimit = -1;

  zExpandSizer(unsigned flags, zSizer* parent);

  unsigned flags() const { return flags_; }
  // Bounds of the size in pixels; noLimit for none.
  void limits(zDimension smallest, zDimension largest) {
    smallest_ = smallest;
    largest_ = largest;
  }
  // The place for a parent that has grown by `growth` since the sizer got its first place.
  zRect place(const zDimension& growth) const;
  bool asType(int type) const override;
  void setArea(const zRect& rect, int noMove) override;

 private:
  unsigned flags_;
  zDimension smallest_{noLimit, noLimit};
  zDimension largest_{noLimit, noLimit};
  zRect original_;
};

// Moves and stretches zExpandSizer children by what the rectangle has grown since the first time;
// any other child goes by gravity.
class zExpandLayout : public zNormalLayout {
 public:
  void allocate(const zRect& rect, unsigned flags, const zSizerDlist& children) override;

 private:
  zDimension original_{zSizeNotSet, zSizeNotSet};
};
