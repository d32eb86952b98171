#include "applet/my_table.h"

zFontSpec tblFontSpec("Helv", zPrPoint(0, -120), zFontSpec::weightNormal);

namespace {

const zTableRegion allCells({1, 1}, {100, 100});

}  // namespace

myTable::myTable(zWindow* parent, int id, zTableModel* shown) : zTable(parent, id, shown) {
  shown->addAttr(std::make_unique<zTableTextAlignmentAttr>(zAlignCenterAcross, allCells));
  shown->addAttr(std::make_unique<zTableReadOnlyAttr>(allCells));
  setFont(std::make_shared<zFont>(tblFontSpec), 0);
}

void myTable::SetCellText(zTableLoc at, const char* text) {
  if (!model()) return;
  const zTableCell* cell = model()->getCell(at);
  if (cell && cell->getText() == (text ? text : "")) return;
  model()->textToCell(at, text);
}
