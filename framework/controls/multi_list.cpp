#include "framework/controls/multi_list.h"

#include <Xm/List.h>

zMultiList::zMultiList(zWindow* parent, int id, Store store, unsigned long bindingStyle)
    : zListBoxBase(parent, id, {}, bindingStyle), rows_(store) {
  if (!list() || (styleValue() & zListBoxStyle::multiple)) return;
  styleSet(zListBoxStyle::multiple);
  XtVaSetValues(list(), XmNselectionPolicy, XmMULTIPLE_SELECT, nullptr);
}

int zMultiList::getSelection(std::vector<int>* rows) const {
  if (!rows) return 0;
  rows->clear();
  int* positions = nullptr;
  int selected = 0;
  if (!list() || !XmListGetSelectedPos(list(), &positions, &selected)) return 0;
  for (int i = 0; i < selected; ++i) rows->push_back(positions[i] - 1);
  XtFree(reinterpret_cast<char*>(positions));
  return selected;
}

int zMultiList::getSelection(std::vector<std::string>* texts) const {
  if (!texts) return 0;
  std::vector<int> rows;
  getSelection(&rows);
  texts->clear();
  for (const int row : rows) texts->push_back(text(row));
  return static_cast<int>(texts->size());
}

void zMultiList::setSelection(const std::vector<int>& rows) {
  if (!list()) return;
  std::vector<int> positions;
  for (const int row : rows) {
    if (hasItem(row)) positions.push_back(row + 1);
  }
  setCurrent(positions.empty() ? -1 : positions.front() - 1);
  XtVaSetValues(list(), XmNselectedPositions, positions.data(), XmNselectedPositionCount,
                static_cast<int>(positions.size()), nullptr);
}

void zMultiList::setSelection(const std::vector<std::string>& texts) {
  std::vector<int> rows;
  for (const std::string& text : texts) rows.push_back(findExact(text));
  setSelection(rows);
}

void zMultiList::setToDefault() {
  if (const auto* rows = std::get_if<std::vector<int>*>(&rows_); rows && *rows) {
    setSelection(**rows);
  }
  if (const auto* texts = std::get_if<std::vector<std::string>*>(&rows_); texts && *texts) {
    setSelection(**texts);
  }
}

int zMultiList::checkData() {
  std::vector<int> rows;
  return bindingAllowsEmpty() || getSelection(&rows) > 0;
}

int zMultiList::storeData() {
  if (const auto* rows = std::get_if<std::vector<int>*>(&rows_)) getSelection(*rows);
  if (const auto* texts = std::get_if<std::vector<std::string>*>(&rows_)) getSelection(*texts);
  return 1;
}
