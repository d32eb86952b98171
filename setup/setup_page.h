// What the pages of the Setup notebook have in common.
//
// Life of a page: its constructor reads its transfer buffer into the page's fields and makes the
// controls, which show them; what is entered stays in the controls until the page is stored into
// its buffer, at Ok or when one of its own tabs is turned.
#pragma once

#include <cstdint>
#include <string>

#include "applet/control_page.h"
#include "framework/controls/combo_box.h"
#include "framework/entry/string_edit.h"

class zBitmapButton;

// A check box or a place in a list as the transfer buffers hold it.
constexpr std::int16_t buffered(int value) {
  return static_cast<std::int16_t>(value);
}

// A drop-down list of a block's texts, bound to the place of the one selected. For a number that
// it does not offer it shows nothing, and the number is kept until something is selected.
class ChoiceBox : public zComboBoxStatic {
 public:
  ChoiceBox(zWindow* parent, int id, int textBlock, int* place);
  void setToDefault() override;
  int storeData() override;

 private:
  int* place_;
};

// The fields for an ATM address of another end system, and the digits that they are bound to.
struct AddressFields {
  std::string prefix;
  std::string esiSelector;
  zStringEdit* prefixField = nullptr;
  zStringEdit* esiSelectorField = nullptr;

  void storeData();
  // Shows the digits as they were stored last.
  void setToDefault();
  // Stores what is typed, so that setToDefault brings it back, and shows the well-known address of
  // the configuration server.
  void showWellKnown();
};

class SetupPage : public ControlPage {
 protected:
  using ControlPage::ControlPage;

  // The fields 148 and 169, whose digits are set already.
  void makeAddress(AddressFields& address);
  // A button with the picture of a bitmap resource.
  zBitmapButton* makeButton(int id, int bitmap);
};
