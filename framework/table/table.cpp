// Making a table, its settings, and its active cell and selection.
#include "framework/table/table.h"

#include <Xm/Xm.h>

#include <utility>

#include "framework/core/app.h"
#include "framework/drawing/bitmap.h"
#include "framework/resources/resources.h"

namespace {

const zPrPoint labelPoints(0, 100);
constexpr int labelWeight = 300;

}  // namespace

std::string numToAlphaLabel(unsigned long number) {
  constexpr unsigned long letters = 26;
  std::string label;
  for (; number > 0; number = (number - 1) / letters) {
    label.insert(label.begin(), static_cast<char>('A' + (number - 1) % letters));
  }
  return label;
}

zTable::zTable(zWindow* parent, zSizer* sizer, unsigned long style, const char* title, int id)
    : zPane(parent, sizer, style, title, id) {
  setup();
  zTable::create();
}

zTable::zTable(zWindow* parent, int id, zTableModel* model) : zPane(ziAdopt{}, parent, id) {
  if (auto* generic = dynamic_cast<zTable*>(husk())) {
    for (const zTLabelKind kind : {zTLabelColumns, zTLabelRows}) {
      scrollers_[kind] = std::move(generic->scrollers_[kind]);
    }
  }
  bury();
  setup();
  listenToModel(model);
  zTable::resetProc();
}

zTable::~zTable() {
  if (zTableModel* shown = model()) shown->detachView(this);
}

void zTable::setup() {
  styleSet(zStyleTabStop);
  setHandler(this, &zTable::keyDownInput, zMsgKeyDown);
  labelFont_ = std::make_shared<zFont>("System", labelPoints, labelWeight);
  labelSize_ = {labelFont_->textWidth("9999"), labelFont_->height() + 8};
  measureDefaults();
}

int zTable::create() {
  zPane::create();
  const Widget board = getContainer();
  XtVaSetValues(board, XmNshadowThickness, zTableBorder, XmNshadowType, XmSHADOW_IN, nullptr);
  scrollers_[zTLabelColumns] = std::make_unique<ziTableScroller>(board, ziTableScroller::across);
  scrollers_[zTLabelRows] = std::make_unique<ziTableScroller>(board, ziTableScroller::down);
  for (const auto& scroller : scrollers_) {
    addCallback(scroller->bar(), XmNvalueChangedCallback, scrolledCB);
    addCallback(scroller->bar(), XmNdragCallback, scrolledCB);
  }
  arrange();
  return 1;
}

// The model.

void zTable::listenToModel(zTableModel* model) {
  if (!model) return;
  node_ = model->attachView(this, {this, &zTable::updateProc}, {this, &zTable::resetProc});
}

int zTable::updateProc() {
  for (const zTableRegion& region : node_->regions()) setCellsDirty(region);
  return 0;
}

int zTable::resetProc() {
  cols_.setCount(model() ? model()->getNumCols() : 0);
  rows_.setCount(model() ? model()->getNumRows() : 0);
  arrange();
  setDirty(nullptr, 0);
  if (!active_.isCell()) return 0;
  const zTableLoc kept(std::clamp(active_.x, 1UL, std::max(cols_.count(), 1UL)),
                       std::clamp(active_.y, 1UL, std::max(rows_.count(), 1UL)));
  if (kept != active_) changeActive(kept);
  return 0;
}

void zTable::update() {
  if (model()) model()->updateView(this);
  zPane::update();
}

// Settings.

void zTable::setLabelSize(const zDimension& size) {
  labelSize_ = size;
  arrange();
  setDirty(nullptr, 0);
}

void zTable::setLabelType(zTLabelKind kind, zTLabelType type) {
  labels_[kind].type = type;
  arrange();
  setDirty(nullptr, 0);
}

void zTable::setLabelText(zTLabelKind kind, const zResStrBlock& texts) {
  unsigned long number = 0;
  while (const char* text = texts()) setLabelText(kind, ++number, text);
}

void zTable::setLabelText(zTLabelKind kind, unsigned long number, const char* text) {
  labels_[kind].texts[number] = text ? text : "";
  const zRect place = labelRect(kind, number).intersection(labelStrip(kind));
  if (!place.isEmpty()) setDirty(&place, 0);
}

std::string zTable::getLabelText(zTLabelKind kind, unsigned long number) const {
  const Labels& labels = labels_[kind];
  switch (labels.type) {
    case zTLabelNumbers:
      return std::to_string(number);
    case zTLabelLetters:
      return numToAlphaLabel(number);
    case zTLabelText:
      if (const auto text = labels.texts.find(number); text != labels.texts.end()) {
        return text->second;
      }
      return {};
    default:
      return {};
  }
}

void zTable::setColWidth(unsigned long first, unsigned long last, unsigned pixels) {
  cols_.setSize(first, last, pixels);
  arrange();
  setDirty(nullptr, 0);
}

void zTable::setRowHeight(unsigned long first, unsigned long last, unsigned pixels) {
  rows_.setSize(first, last, pixels);
  arrange();
  setDirty(nullptr, 0);
}

void zTable::setGridLineColor(zColor color) {
  gridColor_ = color;
  setDirty(nullptr, 0);
}

void zTable::setFont(std::shared_ptr<zFont> font, int redraw) {
  zPane::setFont(std::move(font), redraw);
  measureDefaults();
  arrange();
  setDirty(nullptr, 0);
}

// The cells keep their colours, whatever stands around the table.
void zTable::ziBackgroundColor(const zColor& color) {
  zPane::ziBackgroundColor(color);
  if (getContainer()) XmChangeColor(getContainer(), ziClrm->pixel(color));
  setDirty(nullptr, 0);
}

int zTable::enable() {
  setDirty(nullptr, 0);
  return zPane::enable();
}

int zTable::disable() {
  setDirty(nullptr, 0);
  return zPane::disable();
}

// Active cell and selection.

bool zTable::isInTable(const zTableLoc& cell) const {
  return cell.isCell() && cell.x <= cols_.count() && cell.y <= std::max(rows_.count(), 1UL);
}

void zTable::setActiveCell(const zTableLoc& cell) {
  if (cell == zTableLoc() || isInTable(cell)) changeActive(cell);
}

void zTable::changeActive(const zTableLoc& cell) {
  setCellsDirty(zTableRegion(active_));
  active_ = cell;
  setCellsDirty(zTableRegion(active_));
  scrollIntoView(cell);
  zWindowWatch watch(this);
  changeSelection(zTableRegion(cell));
  if (!watch.gone() && activeCellChanged_) activeCellChanged_();
}

void zTable::changeCurSelLoc(int across, int down) {
  const auto step = [](unsigned long from, int by, unsigned long last) {
    if (by < 0) return std::max(from, 2UL) - 1;
    return by > 0 ? std::min(from + 1, std::max(last, 1UL)) : from;
  };
  const zTableLoc to(step(active_.x, across, cols_.count()), step(active_.y, down, rows_.count()));
  moveTo(to);
}

// A move by the keyboard or by the program: at the border there is none.
void zTable::moveTo(const zTableLoc& cell) {
  clearSelectedLabels();
  const zTableLoc to(std::max(cell.x, 1UL), std::max(cell.y, 1UL));  // from no cell, the first
  if (to != active_) changeActive(to);
}

void zTable::setSelection(const zTableRegion& region) {
  changeSelection(region);
}

void zTable::changeSelection(const zTableRegion& region) {
  if (region == selection_) return;
  setCellsDirty(selection_.unionWith(region));
  selection_ = region;
  if (selectionChanged_) selectionChanged_();
}

void zTable::clearSelectedLabels() {
  if (!std::exchange(selectedLabels_, SelectedLabels()).any) return;
  setDirty(nullptr, 0);
}

void zTable::selectLabels(zTLabelKind kind, unsigned long from, unsigned long to) {
  const auto [first, last] = std::minmax(from, to);
  selectedLabels_ = {true, kind, first, last};
  setDirty(nullptr, 0);
  changeSelection(kind == zTLabelColumns ? zTableRegion({first, 1}, {last, rows_.count()})
                                         : zTableRegion({1, first}, {cols_.count(), last}));
}
