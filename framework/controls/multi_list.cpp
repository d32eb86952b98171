#include "framework/controls/multi_list.h"

#include <Xm/List.h>

#include <algorithm>

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
  for (const int row : rows) texts->push_back(itemText(row));
  return static_cast<int>(texts->size());
}

void zMultiList::setSelection(const std::vector<int>& rows) {
  if (!list()) return;
  // Under any other policy each row selected would put out the one before.
  unsigned char policy = XmMULTIPLE_SELECT;
  XtVaGetValues(list(), XmNselectionPolicy, &policy, nullptr);
  XtVaSetValues(list(), XmNselectionPolicy, XmMULTIPLE_SELECT, nullptr);
  setCurrent(-1);
  XmListDeselectAllItems(list());
  for (const int row : rows) {
    if (!hasItem(row) || XmListPosSelected(list(), row + 1)) continue;
    XmListSelectPos(list(), row + 1, False);
    setCurrent(row);
  }
  XtVaSetValues(list(), XmNselectionPolicy, policy, nullptr);
}

void zMultiList::setSelection(const std::vector<std::string>& texts) {
  std::vector<int> rows(texts.size());
  std::transform(texts.begin(), texts.end(), rows.begin(),
                 [this](const std::string& text) { return findExact(text); });
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
