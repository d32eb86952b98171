#include "shell/adapter_table.h"

#include <cstdio>

#include "applet/run_state.h"
#include "foundation/odlog.h"
#include "framework/resources/resources.h"
#include "shell/adapter_status.h"

namespace {

constexpr int columnLabelBlock = 540;
constexpr int labelPadding = 8;  // pixels added to the text's height
constexpr int rowPadding = 4;
constexpr int columnPadding = 4;  // pixels added to the widest text
constexpr int resizeSpace = 5;

// The widest text that each column shows.
constexpr const char* samples[] = {
    "Adapter", "Primary X", "Data Link", "11:AA:AA:AA:AA:AA", "Available X", "Switch Config",
};

zTableRegion rowRegion(unsigned long row, unsigned long lastColumn) {
  return {{1, row}, {lastColumn, row}};
}

}  // namespace

MainDlgAdapterInfoTBL::MainDlgAdapterInfoTBL(zWindow* parent, int id, zTableModel* tableModel)
    : myTable(parent, id, tableModel),
      boldFont_(std::make_shared<zFont>("Helv", zPrPoint(0, 120), zFontSpec::weightBold)) {
  setupLabels();
  for (unsigned long row = 1; row <= maxAdapters; ++row) {
    SetCellText({columnAdapter, row}, std::to_string(row).c_str());
  }
  setupAttributes();
  currentAdapter = 0;
  SelectRow(1);
  show(1);
  setActiveCell({columnType, 1});
  moveLeft();
}

void MainDlgAdapterInfoTBL::setupLabels() {
  setLabelType(zTLabelColumns, zTLabelText);
  setLabelType(zTLabelRows, zTLabelNone);
  enableLabelSelect(0);
  enableMultiSelect(0);

  zWinDisplay display(this);
  display.lock();
  display.setFont(boldFont_);
  const int height = display.textDimension(samples[0]).height;
  setLabelSize({0, height + labelPadding});
  setRowHeight(1, maxAdapters, static_cast<unsigned>(height + rowPadding));
  setResizeSpace(resizeSpace);
  setActiveMoveDirection(zTMoveDown);
  for (unsigned long column = 1; column <= visibleColumns; ++column) {
    const int width = display.textDimension(samples[column - 1]).width;
    setColWidth(column, static_cast<unsigned>(width + columnPadding));
  }
  display.unlock();
  setColWidth(columnHidden, 1);
  setLabelText(zTLabelColumns, zResStrBlock(columnLabelBlock));
}

void MainDlgAdapterInfoTBL::setupAttributes() {
  setGridLineColor(zDialogGrey);
  const zTableRegion visible{{1, 1}, {visibleColumns, maxAdapters}};
  model()->addAttr(std::make_unique<zTableReadOnlyAttr>(visible));
  model()->addAttr(std::make_unique<zTableTextAlignmentAttr>(zAlignCenterDown, visible));
  model()->addAttr(std::make_unique<zTableTextColorAttr>(
      zBlack, zTableRegion{{1, 1}, {columns, maxAdapters}}));
}

void MainDlgAdapterInfoTBL::replaceAttr(zTableAttr*& slot, std::unique_ptr<zTableAttr> attr) {
  if (slot) model()->removeAttr(slot);
  slot = model()->addAttr(std::move(attr));
}

void MainDlgAdapterInfoTBL::SelectRow(unsigned long row) {
  if (row < 1 || row > maxAdapters) return;
  if (selectedRow_) {
    SetCellText({columnAdapter, selectedRow_}, std::to_string(selectedRow_).c_str());
  }
  replaceAttr(selectionFont_,
              std::make_unique<zTableFontAttr>(boldFont_, rowRegion(row, columns)));
  char mark[32];
  std::snprintf(mark, sizeof mark, "[  %d  ]", static_cast<int>(row));
  SetCellText({columnAdapter, row}, mark);
  selectedRow_ = row;
  setDirty(nullptr, 0);
  update();
}

void MainDlgAdapterInfoTBL::SetRowBGColor(unsigned long row, const zColor& color) {
  if (row < 1 || row > maxAdapters) return;
  replaceAttr(rowBackgrounds_[row - 1],
              std::make_unique<zTableBackColorAttr>(color, rowRegion(row, visibleColumns)));
}

void MainDlgAdapterInfoTBL::SetRowTextColor(unsigned long row, const zColor& color) {
  if (row < 1 || row > maxAdapters) return;
  replaceAttr(rowTextColors_[row - 1],
              std::make_unique<zTableTextColorAttr>(color, rowRegion(row, columns)));
}

void MainDlgAdapterInfoTBL::Update() {
  const int rows = adapterRows(atmDevices);
  model()->setDimension(columns, static_cast<unsigned long>(rows));
  for (int adapter = 0; adapter < rows; ++adapter) updateRow(adapter);
  setDirty(nullptr, 0);
  update();
}

void MainDlgAdapterInfoTBL::updateRow(int adapter) {
  const AdapterStatus status = describeAdapter(atmDevices, adapter);
  const auto row = static_cast<unsigned long>(adapter) + 1;
  odlog << "Setting MAC Addr for Adapt#" << row << " to " << status.macAddress << std::endl;
  SetCellText({columnMac, row}, status.macAddress.c_str());
  SetRowBGColor(row, status.color);
  SetCellText({columnType, row}, status.type);
  SetCellText({columnDataLink, row}, status.dataLink.c_str());
  odlog << "Setting Status for Adapt#" << row << " to '" << status.status << "' status == "
        << status.sentence << std::endl;
  SetCellText({columnStatus, row}, status.status);
  atmDevices.phy[adapter].boardText2 = status.sentence;
  SetCellText({columnSwitch, row}, status.switchConfig);
}
