#include "setup/setup_page.h"

#include "atm/address.h"
#include "framework/controls/bitmap_button.h"
#include "framework/drawing/bitmap.h"
#include "framework/resources/resources.h"
#include "setup/field_formats.h"

// Lists.

ChoiceBox::ChoiceBox(zWindow* parent, int id, int textBlock, int* place)
    : zComboBoxStatic(parent, id, place), place_(place) {
  addStrBlock(zResStrBlock(textBlock));
  ChoiceBox::setToDefault();
}

void ChoiceBox::setToDefault() {
  if (selection() == *place_) return;
  selection(-1);
  zComboBoxStatic::setToDefault();
}

int ChoiceBox::storeData() {
  return selection() < 0 ? 1 : zComboBoxStatic::storeData();
}

// Addresses.

void AddressFields::storeData() {
  prefixField->storeData();
  esiSelectorField->storeData();
}

void AddressFields::setToDefault() {
  prefixField->setToDefault();
  esiSelectorField->setToDefault();
}

void AddressFields::showWellKnown() {
  storeData();
  prefixField->text(wellKnownAddress.prefix);
  esiSelectorField->text(wellKnownAddress.esiSelector);
}

// The page.

void SetupPage::makeAddress(AddressFields& address) {
  address.prefixField = make<zStringEdit>(148, &address.prefix, networkPrefixPicture, wholeDigits);
  address.esiSelectorField =
      make<zStringEdit>(169, &address.esiSelector, esiSelectorPicture, wholeDigits);
}

zBitmapButton* SetupPage::makeButton(int id, int bitmap) {
  return make<zBitmapButton>(id, std::make_unique<zBitmap>(zResId(bitmap)));
}
