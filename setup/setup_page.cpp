#include "setup/setup_page.h"

#include <cstdio>

#include "atm/address.h"
#include "framework/controls/bitmap_button.h"
#include "framework/controls/tab_control.h"
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

SetupPage::SetupPage(zNotebookDialog* notebook, zPageDef* def, const zStatusMessage* tips)
    : zDialogPage(notebook, def, def->getStyle()), tips_(tips), toolTips_(this) {
  toolTips_.setTipMessageTable(tips);
}

void SetupPage::add(zChildWin* control) {
  controls_.push_back(control);
  if (tips_.lookup(control->ctrlId())) toolTips_.add(control);
}

void SetupPage::makeAddress(AddressFields& address) {
  address.prefixField = make<zStringEdit>(148, &address.prefix, networkPrefixPicture, wholeDigits);
  address.esiSelectorField =
      make<zStringEdit>(169, &address.esiSelector, esiSelectorPicture, wholeDigits);
}

zBitmapButton* SetupPage::makeButton(int id, int bitmap) {
  return make<zBitmapButton>(id, std::make_unique<zBitmap>(zResId(bitmap)));
}

zTabCtrl* SetupPage::makeTabs(int id, int count, const char* nameFormat) {
  auto* tabs = make<zTabCtrl>(id);
  for (int number = 1; number <= count; ++number) {
    char name[32];
    std::snprintf(name, sizeof name, nameFormat, number);
    tabs->add(number, name);
  }
  return tabs;
}

void SetupPage::showFields() {
  for (zChildWin* control : controls_) control->setToDefault();
}
