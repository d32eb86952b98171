#include "shell/adapter_table.h"

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <numeric>

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
constexpr int hiddenPixels = 1;

// Of each column, a text with room to spare, and the widest text that it does show.
struct Sample {
  const char* ample;
  const char* widest;
};
constexpr Sample samples[] = {
    {"Adapter", "[  8  ]"},       {"Primary X", "Primary"},
    {"Data Link", "8"},           {"11:AA:AA:AA:AA:AA", "00:00:00:00:00:00"},
    {"Available X", "Available"}, {"Switch Config", "Manual"},
};
constexpr std::size_t sampleCount = std::size(samples);

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

  setLabelText(zTLabelColumns, zResStrBlock(columnLabelBlock));
  setGridLineColor(zDialogGrey);

  const int height = getFont()->height();
  setLabelSize({0, height + labelPadding});
  setRowHeight(1, maxAdapters, static_cast<unsigned>(height + rowPadding));
  setResizeSpace(resizeSpace);
  setActiveMoveDirection(zTMoveDown);
  setColWidth(columnHidden, hiddenPixels);
  const std::vector<int> widths = columnWidths();
  for (unsigned long column = 1; column <= visibleColumns; ++column) {
    setColWidth(column, static_cast<unsigned>(widths[column - 1]));
  }
}

// Ample columns, if the table has the room; otherwise each as wide as it needs to be for what it
// shows, on the selected row too, with its share of what is left.
std::vector<int> MainDlgAdapterInfoTBL::columnWidths() const {
  std::vector<int> ample, tight;
  for (std::size_t i = 0; i < sampleCount; ++i) {
    ample.push_back(getFont()->textWidth(samples[i].ample) + columnPadding);
    const int label = labelFont().textWidth(getLabelText(zTLabelColumns, i + 1));
    tight.push_back(std::max(label, boldFont_->textWidth(samples[i].widest)) + columnPadding);
  }
  const int room = roomForCells().width - hiddenPixels;
  if (std::accumulate(ample.begin(), ample.end(), 0) <= room) return ample;
  const int left = room - std::accumulate(tight.begin(), tight.end(), 0);
  constexpr int columnCount = static_cast<int>(sampleCount);
  for (int i = 0; left > 0 && i < columnCount; ++i) {
    tight[static_cast<std::size_t>(i)] += left / columnCount + (i < left % columnCount);
  }
  return tight;
}

void MainDlgAdapterInfoTBL::setupAttributes() {
  const zTableRegion visible{{1, 1}, {visibleColumns, maxAdapters}};
  model()->addAttr(std::make_unique<zTableReadOnlyAttr>(visible));
  model()->addAttr(std::make_unique<zTableTextAlignmentAttr>(zAlignCenterDown, visible));
  model()->addAttr(
      std::make_unique<zTableTextColorAttr>(zBlack, zTableRegion{{1, 1}, {columns, maxAdapters}}));
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
  replaceAttr(selectionFont_, std::make_unique<zTableFontAttr>(boldFont_, rowRegion(row, columns)));
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
  odlog << "Setting Status for Adapt#" << row << " to '" << status.status
        << "' status == " << status.sentence << std::endl;
  SetCellText({columnStatus, row}, status.status);
  atmDevices.phy[adapter].boardText2 = status.sentence;
  SetCellText({columnSwitch, row}, status.switchConfig);
}
