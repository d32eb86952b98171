// Where the parts of a table stand, and scrolling.
#include <Xm/ScrollBar.h>

#include "framework/table/table.h"

namespace {

constexpr int barBreadth = 17;
constexpr int cellPadding = 4;
constexpr char defaultColumnSample[] = "0000000000";

}  // namespace

void zTable::measureDefaults() {
  const zFont& font = getFont() ? *getFont() : *labelFont_;
  cols_.setDefault(font.textWidth(defaultColumnSample) + 2 * cellPadding);
  rows_.setDefault(font.height() + cellPadding);
}

// The layout belongs to the board at the sizer's place; the drawing area's own size says nothing.
int zTable::resolveSize(zSizeEvt*) {
  return 0;
}
int zTable::size(zSizeEvt*) {
  return 0;
}

void zTable::vmove(int x, int y, int width, int height) {
  zWindow::vmove(x, y, width, height);
  if (!getContainer()) return;
  XtVaSetValues(getContainer(), XmNx, x, XmNy, y, XmNwidth, std::max(width, 1), XmNheight,
                std::max(height, 1), nullptr);
  arrange();
  setDirty(nullptr, 0);
}

zDimension zTable::roomInside() const {
  const zDimension all = sizer()->dimension();
  return {std::max(all.width - 2 * zTableBorder, 1), std::max(all.height - 2 * zTableBorder, 1)};
}

zDimension zTable::labelRoom() const {
  return {labels_[zTLabelRows].type == zTLabelNone ? 0 : labelSize_.width,
          labels_[zTLabelColumns].type == zTLabelNone ? 0 : labelSize_.height};
}

zDimension zTable::roomForCells() const {
  const zDimension room = roomInside();
  const zDimension labels = labelRoom();
  return {room.width - labels.width, room.height - labels.height};
}

// Each bar takes room that may make the other one necessary.
void zTable::arrange() {
  if (!getContainer() || !scrollers_[0]) return;
  const zDimension room = roomInside();
  const zDimension labels = labelRoom();
  const int acrossNeeds = labels.width + cols_.total();
  const int downNeeds = labels.height + rows_.total();
  bool down = downNeeds > room.height;
  const bool across = acrossNeeds > room.width - (down ? barBreadth : 0);
  down = downNeeds > room.height - (across ? barBreadth : 0);
  area_ = {std::max(room.width - (down ? barBreadth : 0), 1),
           std::max(room.height - (across ? barBreadth : 0), 1)};
  XtVaSetValues(getWidget(), XmNx, zTableBorder, XmNy, zTableBorder, XmNwidth, area_.width,
                XmNheight, area_.height, nullptr);
  const zPoint inside{zTableBorder + area_.width, zTableBorder + area_.height};
  scrollers_[zTLabelRows]->place(down ? zRect({inside.x, zTableBorder}, {barBreadth, area_.height})
                                      : zRect());
  scrollers_[zTLabelColumns]->place(
      across ? zRect({zTableBorder, inside.y}, {area_.width, barBreadth}) : zRect());
  scrollTo(scroll_);
}

zRect zTable::cellsArea() const {
  const zDimension labels = labelRoom();
  return {labels.width, labels.height, std::max(area_.width, labels.width),
          std::max(area_.height, labels.height)};
}

// The furthest offsets, at which the last column ends at the right and the last row is whole.
zPoint zTable::furthest() const {
  const zRect cells = cellsArea();
  const int below = rows_.total() - cells.height();
  return {std::max(cols_.total() - cells.width(), 0), below > 0 ? rows_.nextStart(below) : 0};
}

void zTable::updateScrollers() {
  const zRect cells = cellsArea();
  const zPoint most = furthest();
  scrollers_[zTLabelColumns]->set(most.x + cells.width(), cells.width(), scroll_.x, rows_.size(1));
  scrollers_[zTLabelRows]->set(most.y + cells.height(), cells.height(), scroll_.y,
                               rows_.size(std::max(rows_.at(scroll_.y), 1UL)));
}

// Down, the table scrolls by whole rows.
bool zTable::takeOffset(const zPoint& offset) {
  const zPoint most = furthest();
  const int down = std::clamp(offset.y, 0, most.y);
  const zPoint wanted{std::clamp(offset.x, 0, most.x),
                      down < most.y ? rows_.start(rows_.at(down)) : most.y};
  if (wanted == scroll_) return false;
  const zRect cells = cellsArea();
  image_.shift({0, cells.top, cells.right, cells.bottom}, {0, scroll_.y - wanted.y});
  image_.shift({cells.left, 0, cells.right, cells.bottom}, {scroll_.x - wanted.x, 0});
  scroll_ = wanted;
  zPane::setDirty(nullptr, 0);  // shows the image as it is now
  return true;
}

void zTable::scrollTo(const zPoint& offset) {
  takeOffset(offset);
  if (scrollers_[0]) updateScrollers();
}

// The bar has the value that the user gave it and keeps it.
void zTable::scrolledCB(Widget bar, XtPointer link, XtPointer callData) {
  auto* table = static_cast<zTable*>(static_cast<ziControlCB*>(link)->window);
  const int value = static_cast<const XmScrollBarCallbackStruct*>(callData)->value;
  const bool across = bar == table->scrollers_[zTLabelColumns]->bar();
  table->takeOffset(across ? zPoint{value, table->scroll_.y} : zPoint{table->scroll_.x, value});
}

void zTable::scrollIntoView(const zTableLoc& cell) {
  if (!cell.isCell()) return;
  const zRect cells = cellsArea();
  zPoint to = scroll_;
  if (cols_.size(cell.x) > hiddenWidth) {
    to.x = std::max(to.x, cols_.end(cell.x) - cells.width());
    to.x = std::min(to.x, cols_.start(cell.x));
  }
  const int below = rows_.end(cell.y) - cells.height();
  if (below > to.y) to.y = rows_.nextStart(below);
  to.y = std::min(to.y, rows_.start(cell.y));
  if (to != scroll_) scrollTo(to);
}

// Cells and labels.

zRect zTable::cellRect(const zTableLoc& cell) const {
  if (!cell.isCell()) return {};
  const zDimension labels = labelRoom();
  return {{labels.width + cols_.start(cell.x) - scroll_.x,
           labels.height + rows_.start(cell.y) - scroll_.y},
          {cols_.size(cell.x), rows_.size(cell.y)}};
}

// The cells that a part of the drawing area touches.
zTableRegion zTable::dirtyToLogical(const zRect& area) const {
  const zRect cells = cellsArea();
  const zRect part = area.intersection(cells);
  if (part.isEmpty()) return {};
  const zRect there = part.moved(scroll_.x - cells.left, scroll_.y - cells.top);
  const auto last = [](const ziTableAxis& axis, int end) {
    return end > axis.total() ? axis.count() : axis.at(end - 1);
  };
  return {{cols_.at(there.left), rows_.at(there.top)},
          {last(cols_, there.right), last(rows_, there.bottom)}};
}

zTableRegion zTable::calcVisible() const {
  return dirtyToLogical(cellsArea());
}

void zTable::setCellsDirty(const zTableRegion& cells) {
  const zTableRegion seen = cells.intersection(calcVisible());
  if (seen.isEmpty()) return;
  const zRect place =
      cellRect(seen.topLeft).unionWith(cellRect(seen.bottomRight)).intersection(cellsArea());
  if (!place.isEmpty()) setDirty(&place, 0);
}

zRect zTable::labelStrip(zTLabelKind kind) const {
  const zRect cells = cellsArea();
  return kind == zTLabelColumns ? zRect(cells.left, 0, cells.right, cells.top)
                                : zRect(0, cells.top, cells.left, cells.bottom);
}

zRect zTable::labelRect(zTLabelKind kind, unsigned long number) const {
  const zRect strip = labelStrip(kind);
  if (kind == zTLabelColumns) {
    return {{strip.left + cols_.start(number) - scroll_.x, strip.top},
            {cols_.size(number), strip.height()}};
  }
  return {{strip.left, strip.top + rows_.start(number) - scroll_.y},
          {strip.width(), rows_.size(number)}};
}
