#include "stats/stats_table.h"

#include <algorithm>
#include <string>

#include "framework/resources/resources.h"
#include "stats/stat_texts.h"

namespace {

constexpr int columnPadding = 8;  // pixels
constexpr std::uint16_t switchedConnection = 1;

// Centred over the columns of an address.
constexpr char noPrefix[] = "   PVC Connection                     ";
constexpr char noEsiSelector[] = "   PVC Connection   ";

// The rows behind those that all tables align; as many as the driver can number.
const zTableRegion furtherRows({1, 101}, {100, 65535});

}  // namespace

StatsTable::StatsTable(zWindow* parent, int id, zTableModel* shown, int columnLabels, int rowLabels)
    : myTable(parent, id, shown) {
  shown->addAttr(std::make_unique<zTableTextAlignmentAttr>(zAlignCenterAcross, furtherRows));
  setLabelType(zTLabelColumns, zTLabelText);
  setLabelText(zTLabelColumns, zResStrBlock(columnLabels));
  if (rowLabels != numberedRows) {
    setLabelType(zTLabelRows, zTLabelText);
    setLabelText(zTLabelRows, zResStrBlock(rowLabels));
  }
  enableLabelSelect(0);
  enableMultiLabelSelect(0);
  enableMultiSelect(0);
}

void StatsTable::measureLabels(const char* sample, int padding) {
  labelPadding_ = padding;
  const int width = std::max(getFont()->textWidth(sample), labelFont().textWidth(sample));
  labelSize_ = {width + padding, getFont()->height() + padding};
  setLabelSize(labelSize_);
}

void StatsTable::measureColumns(std::initializer_list<const char*> samples) {
  unsigned long column = 0;
  for (const char* sample : samples) {
    const int label = labelFont().textWidth(getLabelText(zTLabelColumns, ++column));
    const int width = std::max(getFont()->textWidth(sample), label);
    setColWidth(column, static_cast<unsigned>(width + columnPadding));
  }
}

void StatsTable::empty() {
  if (model()->getNumRows() > 0) setRowCount(0);
}

// Numbers that have more digits than any before get the room for them.
void StatsTable::setRowCount(unsigned long rows) {
  if (model()->getNumRows() == rows) return;
  model()->setDimension(model()->getNumCols(), rows);
  const int width = labelFont().textWidth(std::to_string(rows)) + labelPadding_;
  if (width <= labelSize_.width) return;
  labelSize_.width = width;
  setLabelSize(labelSize_);
}

void StatsTable::writeCount(unsigned long column, unsigned long row, std::uint32_t count) {
  SetCellText({column, row}, countText(count));
}

void StatsTable::writeCircuit(unsigned long column, unsigned long row, short link,
                              std::uint16_t vci) {
  SetCellText({column, row}, circuitText(link, vci));
}

void StatsTable::writeAddress(unsigned long column, unsigned long row,
                              const std::uint8_t* address) {
  SetCellText({column, row}, prefixText(address));
  SetCellText({column + 1, row}, esiSelectorText(address));
}

void StatsTable::writeFarEnd(unsigned long column, unsigned long row, std::uint16_t connectionKind,
                             const std::uint8_t* address) {
  if (connectionKind == switchedConnection) {
    writeAddress(column, row, address);
    return;
  }
  SetCellText({column, row}, noPrefix);
  SetCellText({column + 1, row}, noEsiSelector);
}
