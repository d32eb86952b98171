#include "framework/controls/check_box.h"

zCheckBox::zCheckBox(zWindow* parent, zSizer* sizer, unsigned long style, const char* title, int id)
    : zButton(parent, sizer, (style & ~typeMask) | checkAuto, title, id) {
  ziSetType(zTypeCheckBox);
  zButton::create();
}

// Nothing in the binding's style is about check boxes.
zCheckBox::zCheckBox(zWindow* parent, int id, int* store, unsigned long)
    : zButton(parent, id), store_(store) {
  ziSetType(zTypeCheckBox);
}

void zCheckBox::setToDefault() {
  if (store_) check(*store_);
}

int zCheckBox::storeData() {
  if (store_) *store_ = check();
  return 1;
}
