// What the pages of the Setup notebook have in common.
//
// Life of a page: its constructor reads its transfer buffer into the page's fields and makes the
// controls, which show them; what is entered stays in the controls until the page is stored into
// its buffer, at Ok or when one of its own tabs is turned.
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "framework/controls/combo_box.h"
#include "framework/dialogs/dialog_page.h"
#include "framework/dialogs/tool_tips.h"
#include "framework/entry/string_edit.h"

class zBitmapButton;
class zTabCtrl;

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

class SetupPage : public zDialogPage {
 protected:
  // `tips` are the texts of the tool tips; null for none.
  SetupPage(zNotebookDialog* notebook, zPageDef* def, const zStatusMessage* tips);

  // A typed control over the template's control `id`, with its tool tip if there is one.
  // `binding` is the rest of its constructor's arguments.
  template <class Control, class... Binding>
  Control* make(int id, Binding&&... binding) {
    auto* control = new Control(this, id, std::forward<Binding>(binding)...);
    add(control);
    return control;
  }
  // The fields 148 and 169, whose digits are set already.
  void makeAddress(AddressFields& address);
  // A button with the picture of a bitmap resource.
  zBitmapButton* makeButton(int id, int bitmap);
  // A strip of the tabs 1 to `count`, named by a printf format of their number.
  zTabCtrl* makeTabs(int id, int count, const char* nameFormat);

  // Has all the controls made so far show the variables that they are bound to.
  void showFields();

 private:
  void add(zChildWin* control);

  const zStatusMessageTable tips_;
  zToolTipCtrl toolTips_;
  std::vector<zChildWin*> controls_;
};
