#include "setup/pvc_table.h"

#include <algorithm>

#include "atm/transfer_buffers.h"
#include "foundation/bounded_stream.h"
#include "framework/resources/resources.h"

namespace {

constexpr unsigned long circuitColumn = 2;
constexpr char widestCircuit[] = "255 / 9999";

}  // namespace

PvcTable::PvcTable(zWindow* parent, int id, zTableModel* tableModel, int labelBlock)
    : myTable(parent, id, tableModel) {
  setLabelType(zTLabelColumns, zTLabelText);
  setLabelText(zTLabelColumns, zResStrBlock(labelBlock));
  enableLabelSelect(0);
  enableMultiLabelSelect(0);
  enableMultiSelect(0);
}

unsigned PvcTable::columnFor(unsigned long column, const char* sample, int padding) const {
  int width = std::max(getFont()->textWidth(sample),
                       labelFont().textWidth(getLabelText(zTLabelColumns, column)));
  if (column == circuitColumn) width = std::max(width, getFont()->textWidth(widestCircuit));
  return static_cast<unsigned>(width + padding);
}

void PvcTable::writeCells(unsigned long row, const char* address, std::uint16_t vci, bool isLlc) {
  char circuit[32];
  BoundedStream text(circuit, sizeof circuit);
  text << BoardVPI << " / " << vci;
  SetCellText({1, row}, address);
  SetCellText({circuitColumn, row}, text.terminate());
  SetCellText({3, row}, isLlc ? "LLC_SNAP" : "NULL");
}
