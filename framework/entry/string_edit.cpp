#include "framework/entry/string_edit.h"

#include "framework/entry/mask_formatter.h"
#include "framework/entry/picture_formatter.h"

zStringEdit::zStringEdit(zWindow* parent, int id, std::string* store, const char* picture,
                         unsigned long style)
    : zStringEdit(parent, id, store, std::make_unique<zPictFormatter>(style, picture), style) {}

zStringEdit::zStringEdit(zWindow* parent, int id, std::string* store,
                         std::unique_ptr<zFormatter> formatter, unsigned long style)
    : zFormattedEdit(parent, id, std::move(formatter), style), store_(store) {
  zStringEdit::setToDefault();
}

zStringEdit::zStringEdit(zWindow* parent, int id, std::string* store, unsigned long style)
    : zStringEdit(parent, id, store, std::make_unique<zMaskFormatter>(style), style) {}

void zStringEdit::setToDefault() {
  showEdited(textOf(store_ ? *store_ : ""), {0, 0});
}

int zStringEdit::storeData() {
  if (store_) *store_ = getRawText(bindingStyle());
  return 1;
}
