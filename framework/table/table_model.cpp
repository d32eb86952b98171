#include "framework/table/table_model.h"

#include <utility>

#include "framework/table/table_attr.h"

namespace {

constexpr std::size_t mostRegions = 1000;  // noted apart; the last of them is around all the rest

// Whether the region around both has no other cell, however far each reaches.
bool fitTogether(const zTableRegion& a, const zTableRegion& b) {
  const zTableRegion both = a.unionWith(b);
  if (both == a || both == b) return true;
  const auto meet = [](unsigned long end, unsigned long start) { return start <= end + 1; };
  if (a.topLeft.x == b.topLeft.x && a.bottomRight.x == b.bottomRight.x) {
    return meet(a.bottomRight.y, b.topLeft.y) && meet(b.bottomRight.y, a.topLeft.y);
  }
  return a.topLeft.y == b.topLeft.y && a.bottomRight.y == b.bottomRight.y &&
         meet(a.bottomRight.x, b.topLeft.x) && meet(b.bottomRight.x, a.topLeft.x);
}

}  // namespace

zTableRegion zTableRegion::unionWith(const zTableRegion& o) const {
  if (isEmpty()) return o;
  if (o.isEmpty()) return *this;
  return {{std::min(topLeft.x, o.topLeft.x), std::min(topLeft.y, o.topLeft.y)},
          {std::max(bottomRight.x, o.bottomRight.x), std::max(bottomRight.y, o.bottomRight.y)}};
}

zTableRegion zTableRegion::intersection(const zTableRegion& o) const {
  return {{std::max(topLeft.x, o.topLeft.x), std::max(topLeft.y, o.topLeft.y)},
          {std::min(bottomRight.x, o.bottomRight.x), std::min(bottomRight.y, o.bottomRight.y)}};
}

zTableRegion zTableRegion::between(const zTableLoc& a, const zTableLoc& b) {
  return {{std::min(a.x, b.x), std::min(a.y, b.y)}, {std::max(a.x, b.x), std::max(a.y, b.y)}};
}

void zTableTextCell::setText(const char* text) {
  text_ = text ? text : "";
  setFlag(changed);
}

zTableModel::~zTableModel() {
  for (const auto& node : views_) node->model_ = nullptr;
}

std::unique_ptr<zTableCell> zTableModel::textToCell(const zTableLoc& at, const char* text) {
  if (!factory_ || !holds(at)) return nullptr;
  markChanged(zTableRegion(at));
  zTableCell* cell = getCell(at);
  if (cell && !(cell->getFlags() & zTableCell::mustReplace)) {
    cell->setText(text);
    return nullptr;
  }
  std::unique_ptr<zTableCell> old = setCell(at, factory_(text));
  if (old) old->setFlag(zTableCell::changed);
  return old;
}

zTableAttr* zTableModel::addAttr(std::unique_ptr<zTableAttr> attr) {
  if (!attr) return nullptr;
  attributes_.push_back(std::move(attr));
  zTableAttr* added = attributes_.back().get();
  markChanged(added->region());
  return added;
}

void zTableModel::removeAttr(zTableAttr* attr) {
  const auto here = std::find_if(attributes_.begin(), attributes_.end(),
                                 [attr](const auto& a) { return a.get() == attr; });
  if (here == attributes_.end()) return;
  markChanged((*here)->region());
  attributes_.erase(here);
}

std::shared_ptr<ziTableViewNode> zTableModel::attachView(const zEvH* view, zAction<int> update,
                                                         zAction<int> reset) {
  auto node = std::make_shared<ziTableViewNode>();
  node->model_ = this;
  node->view_ = view;
  node->update_ = update;
  node->reset_ = reset;
  views_.push_back(node);
  return node;
}

void zTableModel::detachView(const zEvH* view) {
  std::erase_if(views_, [view](const auto& node) {
    if (node->view_ != view) return false;
    node->model_ = nullptr;
    return true;
  });
}

// A refresh goes through the cells row by row, so that it is the latest regions which may grow: a
// cell joins the one on its left, and the row that comes about the one above.
void ziTableViewNode::note(zTableRegion region) {
  if (region.isEmpty()) return;
  while (!pending_.empty() &&
         (pending_.size() == mostRegions || fitTogether(pending_.back(), region))) {
    region = region.unionWith(pending_.back());
    pending_.pop_back();
  }
  pending_.push_back(region);
}

void ziTableViewNode::callBack() {
  if (!model_ || (pending_.empty() && !structureChanged_)) return;
  regions_ = std::exchange(pending_, {});
  const bool structure = std::exchange(structureChanged_, false);
  const zAction<int>& callback = structure ? reset_ : update_;
  if (callback) callback();
}

// The lists are copies, since a callback may attach and detach views.

void zTableModel::updateAllViews() {
  const auto now = views_;
  for (const auto& node : now) node->callBack();
}

void zTableModel::updateOtherViews(const zEvH* view) {
  const auto now = views_;
  for (const auto& node : now) {
    if (node->view_ != view) node->callBack();
  }
}

void zTableModel::updateView(const zEvH* view) {
  const auto now = views_;
  for (const auto& node : now) {
    if (node->view_ == view) node->callBack();
  }
}

void zTableModel::markChanged(const zTableRegion& region) {
  for (const auto& node : views_) node->note(region);
}

void zTableModel::changeDimension(unsigned long cols, unsigned long rows) {
  cols_ = cols;
  rows_ = rows;
  for (const auto& node : views_) node->structureChanged_ = true;
  updateAllViews();
}

zTableSmallModel::zTableSmallModel(unsigned long cols, unsigned long rows)
    : zTableModel(cols, rows, [](const char* text) -> std::unique_ptr<zTableCell> {
        return std::make_unique<zTableTextCell>(text);
      }) {}

zTableCell* zTableSmallModel::getCell(const zTableLoc& at) const {
  if (!holds(at) || at.y > cells_.size()) return nullptr;
  const Row& row = cells_[at.y - 1];
  return at.x > row.size() ? nullptr : row[at.x - 1].get();
}

std::unique_ptr<zTableCell> zTableSmallModel::setCell(const zTableLoc& at,
                                                      std::unique_ptr<zTableCell> cell) {
  if (!holds(at)) return nullptr;
  if (at.y > cells_.size()) cells_.resize(at.y);
  Row& row = cells_[at.y - 1];
  if (at.x > row.size()) row.resize(at.x);
  markChanged(zTableRegion(at));
  return std::exchange(row[at.x - 1], std::move(cell));
}

void zTableSmallModel::setDimension(unsigned long cols, unsigned long rows) {
  if (cols == getNumCols() && rows == getNumRows()) return;
  if (rows < cells_.size()) cells_.resize(rows);
  for (Row& row : cells_) {
    if (cols < row.size()) row.resize(cols);
  }
  changeDimension(cols, rows);
}

void zTableSmallModel::deleteRow(unsigned long row) {
  if (row == 0 || row > getNumRows()) return;
  if (row <= cells_.size()) cells_.erase(cells_.begin() + static_cast<long>(row - 1));
  changeDimension(getNumCols(), getNumRows() - 1);
}

void zTableSmallModel::deleteCol(unsigned long col) {
  if (col == 0 || col > getNumCols()) return;
  for (Row& row : cells_) {
    if (col <= row.size()) row.erase(row.begin() + static_cast<long>(col - 1));
  }
  changeDimension(getNumCols() - 1, getNumRows());
}

void zTableSmallModel::insertRow(unsigned long row) {
  if (row == 0 || row > getNumRows() + 1) return;
  if (row <= cells_.size()) cells_.emplace(cells_.begin() + static_cast<long>(row - 1));
  changeDimension(getNumCols(), getNumRows() + 1);
}

void zTableSmallModel::insertCol(unsigned long col) {
  if (col == 0 || col > getNumCols() + 1) return;
  for (Row& row : cells_) {
    if (col <= row.size()) row.emplace(row.begin() + static_cast<long>(col - 1));
  }
  changeDimension(getNumCols() + 1, getNumRows());
}
