// What the user does to a table with the keyboard and the mouse.
#include <X11/keysym.h>
#include <Xm/Xm.h>

#include <utility>

#include "framework/core/app.h"
#include "framework/drawing/bitmap.h"
#include "framework/resources/resources.h"
#include "framework/table/table.h"

namespace {

constexpr int sizingCursorIds[] = {30000, 30001};  // by label kind
constexpr int smallestBySizing = 4;                // pixels
constexpr int rowsPerWheelNotch = 3;
constexpr unsigned wheelUp = 4;
constexpr unsigned wheelDown = 5;

}  // namespace

// Keyboard.

int zTable::keyDownInput(zKeyEvt* event) {
  struct Key {
    KeySym symbol;
    KeySym onKeypad;
    void (zTable::*move)();
  };
  static constexpr Key keys[] = {
      {XK_Home, XK_KP_Home, &zTable::moveToFirst},
      {XK_Left, XK_KP_Left, &zTable::moveLeft},
      {XK_Up, XK_KP_Up, &zTable::moveUp},
      {XK_Right, XK_KP_Right, &zTable::moveRight},
      {XK_Down, XK_KP_Down, &zTable::moveDown},
      {XK_Page_Up, XK_KP_Page_Up, &zTable::pageUp},
      {XK_Page_Down, XK_KP_Page_Down, &zTable::pageDown},
      {XK_End, XK_KP_End, &zTable::moveToLast},
      {XK_Return, XK_KP_Enter, &zTable::moveInDirection},
  };
  if (event->alt()) return 0;
  for (const Key& key : keys) {
    if (event->code() != key.symbol && event->code() != key.onKeypad) continue;
    (this->*key.move)();
    return 1;
  }
  return 0;
}

void zTable::moveInDirection() {
  switch (moveDirection_) {
    case zTMoveLeft:
      return moveLeft();
    case zTMoveRight:
      return moveRight();
    case zTMoveUp:
      return moveUp();
    case zTMoveDown:
      return moveDown();
  }
}

void zTable::moveToFirst() {
  moveTo({1, 1});
}

void zTable::moveToLast() {
  moveTo({std::max(cols_.count(), 1UL), std::max(rows_.count(), 1UL)});
}

unsigned long zTable::rowsOfAPage() const {
  const int step = rows_.size(std::max(rows_.at(scroll_.y), 1UL));
  return static_cast<unsigned long>(std::max(cellsArea().height() / step, 1));
}

void zTable::pageUp() {
  const unsigned long page = rowsOfAPage();
  moveTo({active_.x, active_.y > page ? active_.y - page : 1});
}

void zTable::pageDown() {
  moveTo({active_.x, std::clamp(active_.y + rowsOfAPage(), 1UL, std::max(rows_.count(), 1UL))});
}

int zTable::focus(zFocusEvt* event) {
  hasFocus_ = event->gainFocus();
  setCellsDirty(zTableRegion(active_));
  return 0;
}

// Mouse.

bool zTable::findBorder(zTLabelKind kind, const zPoint& at, Hit& hit) const {
  if (!sizing_[kind] || resizeSpace_ <= 0) return false;
  const int reach = resizeSpace_ / 2;
  const int here = kind == zTLabelColumns ? at.x : at.y;
  const zTableRegion seen = calcVisible();
  const unsigned long first = kind == zTLabelColumns ? seen.topLeft.x : seen.topLeft.y;
  const unsigned long last = kind == zTLabelColumns ? seen.bottomRight.x : seen.bottomRight.y;
  for (unsigned long n = std::max(first, 1UL); n <= last; ++n) {
    const zRect label = labelRect(kind, n);
    const int border = (kind == zTLabelColumns ? label.right : label.bottom) - 1;
    if (axis(kind).size(n) <= hiddenWidth || std::abs(here - border) > reach) continue;
    hit.part = Part::labelBorder;
    hit.number = n;
    return true;
  }
  return false;
}

zTable::Hit zTable::hitAt(const zPoint& at) const {
  Hit hit;
  for (const zTLabelKind kind : {zTLabelColumns, zTLabelRows}) {
    if (!labelStrip(kind).contains(at)) continue;
    hit.kind = kind;
    if (findBorder(kind, at, hit)) return hit;
    hit.number = axis(kind).at(alongAxis(kind, at));
    if (hit.number) hit.part = Part::label;
    return hit;
  }
  if (!cellsArea().contains(at)) return hit;
  hit.cell = {cols_.at(alongAxis(zTLabelColumns, at)), rows_.at(alongAxis(zTLabelRows, at))};
  if (hit.cell.isCell()) hit.part = Part::cell;
  return hit;
}

int zTable::alongAxis(zTLabelKind kind, const zPoint& at) const {
  const zRect cells = cellsArea();
  return kind == zTLabelColumns ? at.x - cells.left + scroll_.x : at.y - cells.top + scroll_.y;
}

// The number under a point or, beyond the ends, the first or the last.
unsigned long zTable::nearest(zTLabelKind kind, const zPoint& at) const {
  return axis(kind).at(std::clamp(alongAxis(kind, at), 0, std::max(axis(kind).total() - 1, 0)));
}

int zTable::mouseButtonDown(zMouseClickEvt* event) {
  if (event->isButton(wheelUp) || event->isButton(wheelDown)) {
    const int rows = event->isButton(wheelUp) ? -rowsPerWheelNotch : rowsPerWheelNotch;
    scrollTo({scroll_.x, scroll_.y + rows * rows_.size(std::max(rows_.at(scroll_.y), 1UL))});
    return 1;
  }
  if (!event->isButton(1)) return 0;
  zWindowWatch watch(this);
  XmProcessTraversal(getWidget(), XmTRAVERSE_CURRENT);
  if (watch.gone()) return 1;
  captureMouse(event->xEvent->xbutton.time);
  dragFrom_ = event->pos();
  dragged_ = hitAt(dragFrom_);
  pressed(dragged_);
  return 1;
}

void zTable::pressed(const Hit& hit) {
  switch (hit.part) {
    case Part::cell:
      clearSelectedLabels();
      changeActive(hit.cell);
      break;
    case Part::label:
      if (labelSelect_) selectLabels(hit.kind, hit.number, hit.number);
      break;
    case Part::labelBorder:
      sizeBefore_ = axis(hit.kind).size(hit.number);
      break;
    case Part::nothing:
      break;
  }
}

int zTable::mouseButtonUp(zMouseClickEvt* event) {
  if (!event->isButton(1)) return 0;
  dragged_ = {};
  releaseMouse();
  return 1;
}

int zTable::mouseMove(zMouseMoveEvt* event) {
  if (event->xEvent && (event->xEvent->xmotion.state & Button1Mask)) {
    dragTo(event->pos());
  } else {
    showSizingCursor(hitAt(event->pos()));
  }
  return 1;
}

void zTable::dragTo(const zPoint& at) {
  const zTLabelKind kind = dragged_.kind;
  if (dragged_.part == Part::cell && multiSelect_) {
    const zTableLoc to(nearest(zTLabelColumns, at), nearest(zTLabelRows, at));
    if (!to.isCell()) return;
    scrollIntoView(to);
    changeSelection(zTableRegion::between(dragged_.cell, to));
  } else if (dragged_.part == Part::label && labelSelect_ && multiLabelSelect_) {
    if (const unsigned long to = nearest(kind, at)) selectLabels(kind, dragged_.number, to);
  } else if (dragged_.part == Part::labelBorder) {
    const int grown = kind == zTLabelColumns ? at.x - dragFrom_.x : at.y - dragFrom_.y;
    const auto size = static_cast<unsigned>(std::max(sizeBefore_ + grown, smallestBySizing));
    axis(kind).setSize(dragged_.number, dragged_.number, size);
    arrange();
    setDirty(nullptr, 0);
  }
}

void zTable::showSizingCursor(const Hit& hit) {
  const bool wanted = hit.part == Part::labelBorder;
  if (wanted == cursorShown_ && (!wanted || hit.kind == cursorKind_)) return;
  cursorShown_ = wanted;
  cursorKind_ = hit.kind;
  Cursor cursor = None;  // the parent's
  if (wanted) {
    auto& sizing = sizingCursors_[hit.kind];
    if (!sizing) sizing = std::make_unique<zCursor>(zResId(sizingCursorIds[hit.kind]));
    cursor = sizing->cursor();
  }
  XDefineCursor(app->display(), XtWindow(getWidget()), cursor);
}
