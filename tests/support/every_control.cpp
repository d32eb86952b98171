#include "tests/support/every_control.h"

#include "framework/controls/bitmap_button.h"
#include "framework/controls/check_box.h"
#include "framework/controls/combo_box.h"
#include "framework/controls/edit.h"
#include "framework/controls/group_box.h"
#include "framework/controls/list_box.h"
#include "framework/controls/multi_list.h"
#include "framework/controls/panel.h"
#include "framework/controls/radio_button.h"
#include "framework/controls/scroll_bar.h"
#include "framework/controls/static_text.h"
#include "framework/controls/status_line.h"
#include "framework/core/app.h"
#include "framework/dialogs/font_form.h"
#include "framework/dialogs/message.h"
#include "framework/drawing/bitmap.h"
#include "framework/entry/number_edits.h"
#include "framework/entry/string_edit.h"
#include "framework/resources/resources.h"

namespace {

// Templates, in dialog units.

constexpr std::uint32_t label = 0x50000000;
constexpr std::uint32_t tab = label | zStyleTabStop;
constexpr std::uint32_t group = label | 7;
constexpr std::uint32_t centred = label | 1;
constexpr std::uint32_t atRight = label | 2;
constexpr std::uint32_t box = tab | zEditStyle::multiLine | zEditStyle::wantReturn;
constexpr std::uint32_t picture = tab | 0x800;
constexpr std::uint32_t pictureToggle = picture | 0x220;
constexpr std::uint32_t firstRadio = tab | 9 | zStyleGroup;

constexpr zControlRecord end{0, nullptr, 0, nullptr, 0, 0, 0, 0, 0};

constexpr zControlRecord mainControls[] = {
    {zAtomStatic, nullptr, 100, "A table with a timer:", label, 7, 7, 208, 9},
    {0, "zTable", 101, nullptr, tab, 7, 18, 208, 81},
    {0, "zGroupBox3dClass", 102, "Dialogs", group, 221, 7, 58, 92},
    {0, "zBmpBtnClass", 103, " Form", picture, 225, 19, 50, 15},
    {0, "zBmpBtnClass", 104, " Pages", picture, 225, 37, 50, 15},
    {0, "zBmpBtnClass", 105, " Font", picture, 225, 55, 50, 15},
    {zAtomStatic, nullptr, 106, nullptr, label | 8, 225, 74, 50, 1},
    {0, "zBmpBtnClass", 107, "Close", picture, 225, 78, 50, 15},
    {0, "zGroupBox3dClass", 108, "Message Boxes", group, 7, 106, 272, 52},
    {zAtomButton, nullptr, 110, "OK", tab, 13, 118, 84, 15},
    {zAtomButton, nullptr, 111, "OK, Cancel", tab, 101, 118, 84, 15},
    {zAtomButton, nullptr, 112, "Abort, Retry, Ignore", tab, 189, 118, 84, 15},
    {zAtomButton, nullptr, 113, "Yes, No, Cancel", tab, 13, 137, 84, 15},
    {zAtomButton, nullptr, 114, "Yes, No", tab, 101, 137, 84, 15},
    {zAtomButton, nullptr, 115, "Retry, Cancel", tab, 189, 137, 84, 15},
    end,
};

constexpr zControlRecord formControls[] = {
    {zAtomStatic, nullptr, 100, "&Name:", label, 7, 7, 40, 14},
    {zAtomEdit, nullptr, 101, nullptr, tab, 49, 7, 146, 14},
    {zAtomStatic, nullptr, 102, "&Speed:", label, 7, 25, 40, 14},
    {zAtomComboBox, nullptr, 103, nullptr, tab | 3, 49, 25, 146, 14},
    {zAtomButton, nullptr, 104, "&Enabled", tab | 3, 49, 43, 146, 14},
    {zAtomButton, nullptr, 1, "OK", tab | 1, 7, 64, 44, 15},
    {zAtomButton, nullptr, 2, "Cancel", tab, 55, 64, 44, 15},
    {zAtomButton, nullptr, 105, "Nested...", tab, 103, 64, 44, 15},
    {zAtomButton, nullptr, 106, "Message...", tab, 151, 64, 44, 15},
    end,
};

constexpr zControlRecord entryControls[] = {
    {0, "zGroupBox3dClass", 100, "Lines", group, 7, 7, 152, 104},
    {zAtomStatic, nullptr, 101, "&Plain:", label, 13, 19, 46, 14},
    {zAtomEdit, nullptr, 102, nullptr, tab, 61, 19, 92, 14},
    {zAtomStatic, nullptr, 103, "&Upper case:", label, 13, 37, 46, 14},
    {zAtomEdit, nullptr, 104, nullptr, tab | zEditStyle::upperCase, 61, 37, 92, 14},
    {zAtomStatic, nullptr, 105, "&Lower case:", label, 13, 55, 46, 14},
    {zAtomEdit, nullptr, 106, nullptr, tab | zEditStyle::lowerCase, 61, 55, 92, 14},
    {zAtomStatic, nullptr, 107, "Read-only:", label, 13, 73, 46, 14},
    {zAtomEdit, nullptr, 108, "8 adapters", label | zEditStyle::readOnly, 61, 73, 92, 14},
    {zAtomStatic, nullptr, 109, "Disabled:", label, 13, 91, 46, 14},
    {zAtomEdit, nullptr, 110, "no access", tab | zStyleDisabled, 61, 91, 92, 14},
    {0, "zGroupBox3dClass", 111, "Several Lines", group, 166, 7, 113, 104},
    {zAtomEdit, nullptr, 112, nullptr, box | zStyleVScroll, 172, 19, 101, 41},
    {zAtomEdit, nullptr, 113, nullptr, box | zStyleHScroll | zStyleVScroll, 172, 64, 101, 41},
    {0, "zGroupBox3dClass", 114, "Formatted", group, 7, 118, 272, 97},
    {zAtomStatic, nullptr, 115, "&ATM address:", label, 13, 130, 260, 9},
    {zAtomEdit, nullptr, 116, nullptr, tab, 13, 141, 260, 14},
    {zAtomStatic, nullptr, 117, "&IP address:", label, 13, 159, 46, 14},
    {zAtomEdit, nullptr, 118, nullptr, tab, 61, 159, 92, 14},
    {zAtomStatic, nullptr, 119, "&Number:", label, 172, 159, 46, 14},
    {zAtomEdit, nullptr, 120, nullptr, tab, 220, 159, 53, 14},
    {zAtomStatic, nullptr, 121, "&MAC address:", label, 13, 177, 46, 14},
    {zAtomEdit, nullptr, 122, nullptr, tab, 61, 177, 92, 14},
    {zAtomStatic, nullptr, 123, "&Signed:", label, 172, 177, 46, 14},
    {zAtomEdit, nullptr, 124, nullptr, tab, 220, 177, 53, 14},
    {zAtomStatic, nullptr, 125, "&ESI, selector:", label, 13, 195, 46, 14},
    {zAtomEdit, nullptr, 126, nullptr, tab, 61, 195, 92, 14},
    {zAtomStatic, nullptr, 127, "&Capitals:", label, 172, 195, 46, 14},
    {zAtomEdit, nullptr, 128, nullptr, tab, 220, 195, 53, 14},
    end,
};

constexpr zControlRecord choiceControls[] = {
    {0, "zGroupBox3dClass", 100, "Check Boxes", group, 7, 7, 132, 68},
    {zAtomButton, nullptr, 101, "&Automatic", tab | 3, 13, 19, 120, 14},
    {0, "zCheckBox3dClass", 102, "&By class", tab, 13, 37, 120, 14},
    {zAtomButton, nullptr, 103, "Disabled", tab | 3 | zStyleDisabled, 13, 55, 120, 14},
    {0, "zGroupBox3dClass", 104, "Radio Buttons", group, 146, 7, 133, 68},
    {zAtomButton, nullptr, 105, "&SONET", firstRadio, 152, 19, 121, 14},
    {0, "zRadioBtn3dClass", 106, "SD&H", tab, 152, 37, 121, 14},
    {zAtomButton, nullptr, 107, "Disabled", tab | 9 | zStyleDisabled, 152, 55, 121, 14},
    {0, "zGroupBox3dClass", 108, "Buttons", group, 7, 82, 272, 52},
    {zAtomButton, nullptr, 109, "&Push", tab, 13, 94, 50, 15},
    {zAtomButton, nullptr, 110, "De&fault", tab | 1, 67, 94, 50, 15},
    {zAtomButton, nullptr, 111, "Disabled", tab | zStyleDisabled, 121, 94, 50, 15},
    {zAtomPictureButton, nullptr, 8, "Help", tab, 175, 94, 50, 34},
    {0, "zBmpBtnClass", 113, " Setup", picture, 13, 113, 50, 15},
    {0, "zBmpBtnClass", 114, "Toggle", pictureToggle, 67, 113, 50, 15},
    {0, "zBmpBtnClass", 115, " Global", picture | zStyleDisabled, 121, 113, 50, 15},
    end,
};

constexpr zControlRecord listControls[] = {
    {0, "zGroupBox3dClass", 100, "Lists", group, 7, 7, 272, 86},
    {zAtomStatic, nullptr, 101, "S&orted:", label, 13, 19, 82, 9},
    {zAtomListBox, nullptr, 102, nullptr, tab | zListBoxStyle::sort, 13, 30, 82, 57},
    {zAtomStatic, nullptr, 103, "&Multiple:", label, 102, 19, 82, 9},
    {zAtomListBox, nullptr, 104, nullptr, tab | zListBoxStyle::multiple, 102, 30, 82, 57},
    {zAtomStatic, nullptr, 105, "&Extended:", label, 191, 19, 82, 9},
    {zAtomListBox, nullptr, 106, nullptr, tab | zListBoxStyle::multiple | zListBoxStyle::extended,
     191, 30, 82, 57},
    {0, "zGroupBox3dClass", 107, "Combo Boxes", group, 7, 100, 272, 78},
    {zAtomStatic, nullptr, 108, "S&imple:", label, 13, 112, 82, 9},
    {zAtomComboBox, nullptr, 109, nullptr, tab | 1, 13, 123, 82, 49},
    {zAtomStatic, nullptr, 110, "&Typed:", label, 102, 112, 82, 9},
    {zAtomComboBox, nullptr, 111, nullptr, tab | 2, 102, 123, 82, 14},
    {zAtomStatic, nullptr, 112, "&Chosen:", label, 191, 112, 82, 9},
    {zAtomComboBox, nullptr, 113, nullptr, tab | 3, 191, 123, 82, 14},
    end,
};

constexpr zControlRecord displayControls[] = {
    {0, "zGroupBox3dClass", 100, "Texts", group, 7, 7, 132, 68},
    {zAtomStatic, nullptr, 101, "At the left", label, 13, 19, 120, 14},
    {zAtomStatic, nullptr, 102, "In the middle", centred, 13, 37, 120, 14},
    {0, "zStatTxt3dClass", 103, "At the right", atRight, 13, 55, 120, 14},
    {0, "zGroupBox3dClass", 104, "Panes", group, 146, 7, 133, 68},
    {zAtomStatic, nullptr, 105, "#100", label | 3, 152, 19, 18, 18},
    {0, "zBitmapPane", 106, "#515", label, 174, 19, 99, 18},
    {0, "zTextPane", 107, "Two lines\nof text", label, 152, 40, 121, 17},
    {zAtomScrollBar, nullptr, 108, nullptr, tab, 152, 59, 121, 10},
    {0, "zGroupBox3dClass", 109, "Rectangles", group, 7, 82, 272, 63},
    {zAtomStatic, nullptr, 110, nullptr, label | 4, 13, 94, 40, 18},
    {zAtomStatic, nullptr, 111, nullptr, label | 5, 57, 94, 40, 18},
    {zAtomStatic, nullptr, 112, nullptr, label | 6, 101, 94, 40, 18},
    {zAtomStatic, nullptr, 113, nullptr, label | 7, 145, 94, 40, 18},
    {zAtomStatic, nullptr, 114, nullptr, label | 8, 189, 94, 40, 18},
    {zAtomStatic, nullptr, 115, nullptr, label | 9, 233, 94, 40, 18},
    {0, "zPanel3dClass", 116, nullptr, label, 13, 119, 260, 20},
    end,
};

constexpr zControlRecord tableControls[] = {
    {0, "zTabCtrl", 100, nullptr, tab, 7, 7, 272, 60},
    {0, "zTable", 101, nullptr, tab, 7, 74, 272, 104},
    end,
};

constexpr std::uint32_t pageStyle = 0x80C80080;
constexpr zDialogTemplate dialogs[] = {
    {mainControls, 9600, 0x80CE0000, 0, 0, 286, 172, "Every Control", "Helv", 12, zNoMenu},
    {formControls, 9601, pageStyle, 20, 20, 202, 86, "Form", "Helv", 12, zNoMenu},
    {entryControls, 9602, pageStyle, 0, 0, 286, 222, "Entry", "Helv", 12, zNoMenu},
    {choiceControls, 9603, pageStyle, 0, 0, 286, 185, "Choices", "Helv", 12, zNoMenu},
    {listControls, 9604, pageStyle, 0, 0, 286, 185, "Lists", "Helv", 12, zNoMenu},
    {displayControls, 9605, pageStyle, 0, 0, 286, 185, "Display", "Helv", 12, zNoMenu},
    {tableControls, 9606, pageStyle, 0, 0, 286, 185, "Tables", "Helv", 12, zNoMenu},
};

// What the controls show.

const char* const adapterNames[] = {"Primary",   "Backup",     "Data Link",  "Signalling",
                                    "Emulation", "Clients",    "Circuits",   "Configuration",
                                    "Switch",    "Statistics", "Interfaces", nullptr};
const char* const speeds[] = {"OC-12", "OC-3", "DS-3", "E-3", "DS-1", "25 Mbit/s", nullptr};

const zStatusMessage tips[] = {
    {103, "A form that opens more of its kind"},
    {104, "A notebook with the controls, kind by kind"},
    {105, "The choice of a font"},
    {107, "Close the program"},
    {0, nullptr},
};

constexpr unsigned long tableColumns = 6;
constexpr unsigned long tableRows = 900;
constexpr unsigned long changePeriodMs = 200;
constexpr int formTemplate = 9601;
constexpr int deepestForm = 4;

// What the formatted fields take.
constexpr unsigned long required = zFormatter::fillMode | zFormatter::required;
constexpr unsigned long requiredRaw = required | zFormatter::rawValue;
constexpr char ipPicture[] = "[0-9](3)'.'[0-9](3)'.'[0-9](3)'.'[0-9](3)";
constexpr int atmPairs = 20;
constexpr int macPairs = 6;

// The message boxes behind the buttons from this one on.
constexpr int firstMessageButton = 110;
constexpr unsigned messageStyles[] = {0x10, 0x21, 0x12, 0x23, 0x34, 0x45};

void fill(zTableSmallModel& model) {
  for (unsigned long row = 1; row <= model.getNumRows(); ++row) {
    for (unsigned long column = 1; column <= model.getNumCols(); ++column) {
      model.textToCell({column, row}, std::to_string(row * column).c_str());
    }
  }
}

// Pairs of hex digits with colons between.
std::string hexPicture(int pairs) {
  std::string text = "[0-9A-Fa-f](2)";
  while (--pairs > 0) text += "':'[0-9A-Fa-f](2)";
  return text;
}

zBitmapButton* adoptBitmapButton(zWindow* window, int id, int bitmap) {
  return new zBitmapButton(window, id, std::make_unique<zBitmap>(zResId(bitmap)));
}

// Pages of the notebook.

class EveryPage : public zDialogPage {
 protected:
  EveryPage(zNotebookDialog* notebook, zPageDef* def)
      : zDialogPage(notebook, def, def->getStyle()) {}

  // Once its controls are adopted: moves every bound variable into its control.
  void setControlsToDefault() {
    for (zWindow* kid : kidslist()) static_cast<zChildWin*>(kid)->setToDefault();
  }
};

class EntryPage : public EveryPage {
 public:
  EntryPage(zNotebookDialog* notebook, zPageDef* def) : EveryPage(notebook, def) {
    for (const int id : {101, 103, 105, 107, 109}) new zStaticText(this, id);
    new zEditLine(this, 102, &plain_);
    new zEditLine(this, 104, &upper_, zEditBase::mayStayEmpty);
    new zEditLine(this, 106, &lower_, zEditBase::mayStayEmpty);
    new zEditLine(this, 108);
    new zEditLine(this, 110);
    new zEditBase(this, 112, &text_, zEditBase::mayStayEmpty);
    new zEditBase(this, 113, &text_, zEditBase::mayStayEmpty);
    createFormatted();
    for (const int id : {100, 111, 114}) new zGroupBox(this, id);
    setControlsToDefault();
  }

 private:
  void createFormatted() {
    const std::string mac = hexPicture(macPairs);
    for (const int id : {115, 117, 119, 121, 123, 125, 127}) new zStaticText(this, id);
    new zStringEdit(this, 116, &atm_, hexPicture(atmPairs).c_str(), requiredRaw);
    new zStringEdit(this, 118, &ip_, ipPicture, required);
    new zUnsignedIntEdit(this, 120, &number_, "####", 0);
    new zStringEdit(this, 122, &mac_, mac.c_str(), required);
    new zIntEdit(this, 124, &signed_);
    new zStringEdit(this, 126, &esi_, (mac + "'-'[0-9A-Fa-f](2)").c_str(), requiredRaw);
    new zStringEdit(this, 128, &capitals_, zFormatter::upperCase);
  }

  std::string plain_ = "plain";
  std::string upper_ = "UPPER";
  std::string lower_ = "lower";
  std::string text_ = "The quick brown fox\njumps over\nthe lazy dog\nand comes back.";
  // The widest that the fields have room for.
  std::string atm_ = std::string(2 * atmPairs, 'D');
  std::string ip_ = "192.168.100.200";
  std::string mac_ = "DD:DD:DD:DD:DD:DD";
  std::string esi_ = "DDDDDDDDDDDDDD";
  unsigned number_ = 9999;
  int signed_ = -32768;
  std::string capitals_ = "ONDRELLE";
};

class ChoicePage : public EveryPage {
 public:
  ChoicePage(zNotebookDialog* notebook, zPageDef* def) : EveryPage(notebook, def) {
    new zCheckBox(this, 101, &automatic_);
    new zCheckBox(this, 102, &byClass_);
    new zCheckBox(this, 103, &byClass_);
    for (const int id : {105, 106, 107}) new zRadioButton(this, id);
    framing_ = std::make_unique<zRadioController>(this, 105, 107, &framed_);
    framing_->setToDefault();
    new zPushButton(this, 109);
    new zDefPushButton(this, 110);
    new zPushButton(this, 111);
    new zPushButton(this, 8);
    adoptBitmapButton(this, 113, 500);
    adoptBitmapButton(this, 114, 502);
    adoptBitmapButton(this, 115, 503);
    for (const int id : {100, 104, 108}) new zGroupBox(this, id);
    setControlsToDefault();
  }

 private:
  int automatic_ = 1;
  int byClass_ = 0;
  int framed_ = 106;
  std::unique_ptr<zRadioController> framing_;
};

class ListPage : public EveryPage {
 public:
  ListPage(zNotebookDialog* notebook, zPageDef* def) : EveryPage(notebook, def) {
    for (const int id : {101, 103, 105, 108, 110, 112}) new zStaticText(this, id);
    new zListBox(this, 102, &sorted_);
    new zMultiList(this, 104, &several_, ziItemControl::mayStayEmpty);
    new zMultiList(this, 106, &several_, ziItemControl::mayStayEmpty);
    new zComboBox(this, 109, &speed_);
    new zComboBoxFull(this, 111, &speed_);
    new zComboBoxStatic(this, 113, &speed_);
    for (const int id : {102, 104, 106}) addTo(id, adapterNames);
    for (const int id : {109, 111, 113}) addTo(id, speeds);
    for (const int id : {100, 107}) new zGroupBox(this, id);
    setControlsToDefault();
  }

 private:
  void addTo(int id, const char* const* texts) {
    for (; *texts; ++texts) static_cast<ziItemControl*>(get(id))->add(*texts);
  }

  int sorted_ = 2;
  std::vector<int> several_{1, 3};
  std::string speed_ = "OC-3";
};

class DisplayPage : public EveryPage {
 public:
  DisplayPage(zNotebookDialog* notebook, zPageDef* def) : EveryPage(notebook, def) {
    for (const int id : {101, 102, 103, 105, 110, 111, 112, 113, 114, 115}) {
      new zStaticText(this, id);
    }
    new zBitmapPane(this, 106);
    new zTextPane(this, 107);
    new zScrollBarBase(this, 108);
    new zPanel3d(this, 116);
    for (const int id : {100, 104, 109}) new zGroupBox(this, id);
  }
};

class TablePage : public EveryPage {
 public:
  TablePage(zNotebookDialog* notebook, zPageDef* def) : EveryPage(notebook, def) {
    auto* tabs = new zTabCtrl(this, 100, &tab_);
    for (int i = 0; adapterNames[i]; ++i) tabs->add(i, adapterNames[i]);
    fill(model_);
    auto* table = new zTable(this, 101, &model_);
    table->enableMultiSelect(1);
    table->enableLabelSelect(1);
    table->enableMultiLabelSelect(1);
    table->setResizeSpace(5);
    constexpr unsigned both = zExpandSizer::stretchAcross | zExpandSizer::stretchDown;
    table->sizer()->replace(new zExpandSizer(both, nullptr));
    setControlsToDefault();
  }

 private:
  int tab_ = 1;
  zTableSmallModel model_{tableColumns, tableRows};
};

template <class Page>
zDialogPage* makePage(zNotebookDialog* notebook, zPageDef* def) {
  return new Page(notebook, def);
}

struct PageRow {
  int pageTemplate;
  zDialogPage* (*make)(zNotebookDialog* notebook, zPageDef* def);
};
constexpr PageRow pages[] = {
    {9602, makePage<EntryPage>},   {9603, makePage<ChoicePage>}, {9604, makePage<ListPage>},
    {9605, makePage<DisplayPage>}, {9606, makePage<TablePage>},
};

// Makes the templates known, once.
int known(int id) {
  static const bool added = (ziAddDialogs(dialogs), true);
  return added ? id : 0;
}

}  // namespace

// The main window.

EveryControlDlg::EveryControlDlg(int firstPage)
    : zFormDialog(nullptr, zResId(known(9600)), 0),
      model_(tableColumns, tableRows),
      firstPage_(firstPage) {
  backgroundColor(zDialogGrey);
  setIcon(std::make_unique<zIcon>(zResId(100)));
  statusLine_ = new zStatusLineEZ(this, new zGravSizer(zGravBottom, 0, sizer()),
                                  zStatusLineEZ::textItem, 0, nullptr);
  statusLine_->show(1);
  createTable();
  createButtons();
  timer_ = std::make_unique<zTimer>(this, &EveryControlDlg::changeCell, changePeriodMs);
  setMinimumSize(sizer()->dimension());
  centerWindow(0);
  show(1);
  table_->setFocus();
}

void EveryControlDlg::createTable() {
  new zStaticText(this, 100);
  fill(model_);
  table_ = new zTable(this, 101, &model_);
  table_->setResizeSpace(5);
  table_->enableMultiSelect(1);
}

void EveryControlDlg::createButtons() {
  tips_ = std::make_unique<zToolTipCtrl>(this);
  tips_->setTipMessageTable(tips);
  const auto button = [this](int id, int bitmap, int (EveryControlDlg::*clicked)(zNotifyEvt*)) {
    zBitmapButton* const made = adoptBitmapButton(this, id, bitmap);
    made->setNotifyClicked(this, clicked);
    tips_->add(made);
  };
  button(103, 500, &EveryControlDlg::openForm);
  button(104, 501, &EveryControlDlg::openNotebook);
  button(105, 503, &EveryControlDlg::openFonts);
  button(107, 504, &EveryControlDlg::close);
  new zStaticText(this, 106);
  for (std::size_t i = 0; i < std::size(messageStyles); ++i) {
    auto* const asks = new zPushButton(this, firstMessageButton + static_cast<int>(i));
    asks->setNotifyClicked(this, &EveryControlDlg::openMessage);
  }
  for (const int id : {102, 108}) new zGroupBox(this, id);
}

// One at a time, which doesn't block the main window.
int EveryControlDlg::openForm(zNotifyEvt*) {
  if (get(formTemplate)) return 0;
  auto* const form = new EveryForm(this, 0);
  form->deleteOnClose(1);
  form->show(1);
  return 0;
}

int EveryControlDlg::openNotebook(zNotifyEvt*) {
  EveryNotebook notebook(this);
  notebook.select(notebook.findPage(firstPage_));
  notebook.modal();
  return 0;
}

int EveryControlDlg::openFonts(zNotifyEvt*) {
  zFontSpec font("Helv", zPrPoint(0, 120), zFontSpec::weightNormal);
  zFontSelForm(this, zBlack, &font);
  return 0;
}

int EveryControlDlg::openMessage(zNotifyEvt* event) {
  const unsigned style = messageStyles[event->cmd() - firstMessageButton];
  const zMessage box(this, "A text of two lines.\nThis is the second one.", "Message", style);
  statusLine_->text(0, ("The answer is " + std::to_string(box.result()) + ".").c_str());
  return 0;
}

int EveryControlDlg::close(zNotifyEvt*) {
  shutdown();
  return 0;
}

void EveryControlDlg::changeCell() {
  const unsigned long row = ++changes_ % tableRows + 1;
  model_.textToCell({changes_ % tableColumns + 1, row}, std::to_string(changes_).c_str());
  model_.updateAllViews();
}

// Forms.

EveryForm::EveryForm(zWindow* parent, int depth)
    : zFormDialog(parent, zResId(known(formTemplate)), 0), depth_(depth) {
  for (const int id : {100, 102}) new zStaticText(this, id);
  new zEditLine(this, 101, &name_);
  (new zComboBoxStatic(this, 103, &speed_))->addCharStrings(speeds);
  new zCheckBox(this, 104, &enabled_);
  new zDefPushButton(this, okId);
  new zPushButton(this, cancelId);
  auto* const nested = new zPushButton(this, 105);
  nested->setNotifyClicked(this, &EveryForm::openNested);
  if (depth_ == deepestForm) nested->disable();
  (new zPushButton(this, 106))->setNotifyClicked(this, &EveryForm::openMessage);
  setControlsToDefault();
}

int EveryForm::openNested(zNotifyEvt*) {
  EveryForm form(this, depth_ + 1);
  form.modal();
  return 0;
}

int EveryForm::openMessage(zNotifyEvt*) {
  zMessage(this, "A message over a form.", "Message", 0x24);
  return 0;
}

// The notebook.

EveryNotebook::EveryNotebook(zWindow* parent)
    : zNotebookDialog(parent, new zPageDef(zResId(known(9602)), 0), pageStyle, "Notebook") {
  int pageId = 0;
  for (const PageRow& row : pages) add(new zPageDef(zResId(row.pageTemplate), pageId++));
  show(1);
}

zDialogPage* EveryNotebook::createPage(zPageDef* def) {
  return pages[def->id()].make(this, def);
}
