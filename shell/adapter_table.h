// The main dialog's table: a row for each adapter.
#pragma once

#include <memory>
#include <vector>

#include "applet/my_table.h"
#include "atm/limits.h"

class MainDlgAdapterInfoTBL : public myTable {
 public:
  // The columns; the last one, a pixel wide, keeps the active cell out of sight.
  enum Column : unsigned long {
    columnAdapter = 1,
    columnType,
    columnDataLink,
    columnMac,
    columnStatus,
    columnSwitch,
    columnHidden,
  };
  static constexpr unsigned long columns = columnHidden;
  static constexpr unsigned long visibleColumns = columnSwitch;

  MainDlgAdapterInfoTBL(zWindow* parent, int id, zTableModel* model);

  // Writes all rows anew from the adapters' records, and the sentences into them.
  void Update();
  // Marks a row (from 1) as the selected one.
  void SelectRow(unsigned long row);
  void SetRowColor(unsigned long row, const zColor& color) { SetRowTextColor(row, color); }
  void SetRowBGColor(unsigned long row, const zColor& color);
  void SetRowTextColor(unsigned long row, const zColor& color);

 private:
  void setupLabels();
  std::vector<int> columnWidths() const;
  void setupAttributes();
  void updateRow(int adapter);
  void replaceAttr(zTableAttr*& slot, std::unique_ptr<zTableAttr> attr);

  unsigned long selectedRow_ = 0;  // 0 before the first selection
  std::shared_ptr<zFont> boldFont_;
  // Owned by the model; null where a row has none.
  zTableAttr* selectionFont_ = nullptr;
  zTableAttr* rowTextColors_[maxAdapters] = {};
  zTableAttr* rowBackgrounds_[maxAdapters] = {};
};
