#include "setup/pvc_table.h"

#include <algorithm>

#include "atm/transfer_buffers.h"
#include "foundation/bounded_stream.h"
#include "framework/resources/resources.h"

PvcTable::PvcTable(zWindow* parent, int id, zTableModel* tableModel, int labelBlock)
    : myTable(parent, id, tableModel) {
  setLabelType(zTLabelColumns, zTLabelText);
  setLabelText(zTLabelColumns, zResStrBlock(labelBlock));
  enableLabelSelect(0);
  enableMultiLabelSelect(0);
  enableMultiSelect(0);
}

unsigned PvcTable::columnFor(unsigned long column, const char* sample, int padding) const {
  const int label = labelFont().textWidth(getLabelText(zTLabelColumns, column));
  return static_cast<unsigned>(std::max(getFont()->textWidth(sample), label) + padding);
}

void PvcTable::writeCells(unsigned long row, const char* address, std::uint16_t vci, bool isLlc) {
  char circuit[32];
  BoundedStream text(circuit, sizeof circuit);
  text << BoardVPI << " / " << vci;
  SetCellText({1, row}, address);
  SetCellText({2, row}, text.terminate());
  SetCellText({3, row}, isLlc ? "LLC_SNAP" : "NULL");
}
