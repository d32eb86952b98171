// Check boxes, radio buttons, their groups, and what all buttons share, driven by keys and mouse.
#include <X11/keysym.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <utility>
#include <vector>

#include "framework/controls/check_box.h"
#include "framework/controls/edit.h"
#include "framework/controls/group_box.h"
#include "framework/controls/radio_button.h"
#include "framework/controls/static_text.h"
#include "framework/controls/status_line.h"
#include "framework/core/app.h"
#include "framework/dialogs/form_dialog.h"
#include "tests/support/x_driver.h"

namespace {

using testing::ElementsAre;

constexpr int plain = 9400;
constexpr int inHostileColors = 9401;
constexpr std::uint32_t tab = 0x50010000;

enum Id {
  ok = 1,
  cancel,
  none,
  bold = 10,
  named,
  off,
  one = 20,
  two,
  three,
  solo,
  field = 30,
  box
};

constexpr zControlRecord controls[] = {
    {zAtomButton, nullptr, bold, "&Bold", tab | 3, 10, 10, 70, 12},
    {0, "zCheckBox3dClass", named, "&Italic", tab, 10, 26, 70, 12},
    {zAtomButton, nullptr, off, "O&ff", tab | 2 | zStyleDisabled, 10, 42, 70, 12},
    {zAtomButton, nullptr, one, "&One", tab | 9 | zStyleGroup, 96, 18, 60, 12},
    {0, "zRadioBtn3dClass", two, "&Two", tab, 96, 32, 60, 12},
    {zAtomButton, nullptr, three, "T&hree", tab | 13, 96, 46, 60, 12},
    {zAtomButton, nullptr, solo, "&Solo", tab | 4 | zStyleGroup, 96, 66, 60, 12},
    {zAtomStatic, nullptr, 40, "&Name:", 0x50000000, 10, 58, 30, 14},
    {zAtomEdit, nullptr, field, "abc", tab, 40, 58, 40, 14},
    {zAtomButton, nullptr, ok, "O&k", tab | 1, 10, 84, 50, 15},
    {zAtomPictureButton, nullptr, cancel, "Cancel", tab, 66, 84, 50, 22},
    {zAtomPictureButton, nullptr, none, "None", tab, 120, 84, 50, 22},
    {zAtomStatic, nullptr, 41, "#100", 0x50000003, 134, 84, 30, 22},
    {zAtomStatic, nullptr, 42, nullptr, 0x50000008, 10, 110, 150, 1},
    {0, "zBmpBtnClass", 43, "Drawn", tab, 10, 114, 50, 15},
    {0, "zPanel3dClass", 44, nullptr, 0x50000000, 66, 114, 50, 15},
    {zAtomButton, nullptr, box, "Group", 0x50000007, 88, 6, 76, 76},
    {0, nullptr, 0, nullptr, 0, 0, 0, 0, 0},
};
constexpr zDialogTemplate dialogs[] = {
    {controls, plain, 0x80C80080, 0, 0, 180, 150, "Toggles", "Helv", 12, zNoMenu},
    {controls, inHostileColors, 0x80C80080, 0, 0, 180, 150, "Hostile", "Helv", 12, zNoMenu},
};
const int registered = (ziAddDialogs(dialogs), 0);

struct Toggles : zFormDialog {
  explicit Toggles(int id = plain) : zFormDialog(app->rootWindow(), zResId(id), 0) {
    for (const int check : {bold, named, off})
      checks.push_back(new zCheckBox(this, check, &stored));
    for (int radio = one; radio <= solo; ++radio) radios.push_back(new zRadioButton(this, radio));
    for (zWindow* kid : kidslist()) {
      if (kid->isA(zTypeButton)) static_cast<zButton*>(kid)->setCommand(this, &Toggles::hear);
    }
  }
  int hear(zNotifyEvt* event) { return heard.push_back(event->cmd()), 0; }
  int client(zNotifyEvt*) { return storedWhenAsked = stored; }
  std::vector<int> set() const {
    std::vector<int> on;
    for (int id = one; id <= solo; ++id) {
      const auto* radio = static_cast<zRadioButton*>(get(id));
      if (radio && radio->check()) on.push_back(id);
    }
    return on;
  }
  void click(int id) { x_driver::click(*get(id), {8, 8}); }

  int stored = 0;
  int storedWhenAsked = -1;
  std::vector<zCheckBox*> checks;
  std::vector<zRadioButton*> radios;
  std::vector<int> heard;
};

TEST(Toggle, CheckBoxesFollowClicksAndTheirVariable) {
  Toggles form;
  ASSERT_TRUE(x_driver::show(form));
  form.click(bold);
  EXPECT_TRUE(x_driver::giveFocus(*form.checks[1]));
  x_driver::text("  ");
  form.click(off);
  EXPECT_THAT(form.heard, ElementsAre(bold, named, named)) << "the last is disabled";
  EXPECT_EQ(form.checks[0]->check(), 1);
  EXPECT_EQ(form.checks[1]->check(), 0);
  form.stored = 2;
  form.checks[1]->setToDefault();
  EXPECT_EQ(form.checks[1]->check(), 1);
  form.checks[0]->storeData();
  EXPECT_EQ(form.stored, 1);
  EXPECT_EQ(form.heard.size(), 3U) << "set by the program";
}

TEST(Toggle, OneRadioButtonOfAGroupIsSet) {
  Toggles form;
  ASSERT_TRUE(x_driver::show(form));
  EXPECT_EQ(form.getGroupList().front().box, new zGroupBox(&form, box));
  form.get(box)->show(0);  // mapped anew, it stays below what stands in it
  form.get(box)->show(1);
  x_driver::settle();
  form.click(one);
  form.click(solo);
  ASSERT_TRUE(x_driver::giveFocus(*form.radios[1]));
  x_driver::key(XK_space);
  EXPECT_THAT(form.set(), ElementsAre(two, solo));
  form.click(two);
  EXPECT_THAT(form.set(), ElementsAre(two, solo)) << "a click unset it";
  form.click(three);
  form.click(solo);
  EXPECT_THAT(form.set(), ElementsAre(three)) << "subtype 4 leaves the states to Motif";
  EXPECT_THAT(form.heard, ElementsAre(one, solo, two, two, three, solo));

  delete form.radios[2];
  x_driver::settle();
  form.click(one);
  EXPECT_THAT(form.set(), ElementsAre(one));
  zButton::resetStaticGroups();
  form.click(two);
  EXPECT_THAT(form.set(), ElementsAre(one, two)) << "no template's group any more";
}

TEST(RadioController, KeepsOneSetAndItsVariableAlong) {
  Toggles form;
  auto controller = std::make_unique<zRadioController>(&form, one, solo, &form.stored);
  controller->setNotifyClicked(&form, &Toggles::client);
  form.radios[0]->check(1);
  controller->setToDefault();
  EXPECT_THAT(form.set(), ElementsAre(one)) << "0 is none of the ids";
  form.stored = three;
  controller->setToDefault();
  EXPECT_THAT(form.set(), ElementsAre(three));
  ASSERT_TRUE(x_driver::show(form));
  zButton::resetStaticGroups();
  for (const int id : {two, two, solo, solo}) {
    form.heard.clear();
    form.click(id);
    EXPECT_EQ(form.stored, id);
    EXPECT_THAT(form.set(), ElementsAre(id));
    EXPECT_THAT(form.heard, ElementsAre(id)) << "others hear it, too";
  }
  EXPECT_EQ(form.storedWhenAsked, solo) << "at the second click on it";
  controller.reset();
  form.click(one);
  EXPECT_EQ(form.stored, solo);
}

TEST(Buttons, DrawNothingForWhatTheyShow) {
  Toggles form;
  zRadioController controller(&form, one, three, &form.stored);
  zStaticText label(&form, 40);
  ASSERT_TRUE(x_driver::show(form));
  const std::pair<const char*, std::function<void(bool other)>> cases[] = {
      {"label", [&](bool other) { label.text(other ? "&Other" : "&Name:"); }},
      {"mnemonic", [&](bool other) { label.text(other ? "Na&me:" : "&Name:"); }},
      {"button", [&](bool other) { form.checks[1]->text(other ? "Yes" : "&Italic"); }},
      {"check box", [&](bool other) { form.checks[0]->check(other); }},
      {"radio buttons",
       [&](bool other) {
         form.stored = other ? one : two;
         controller.setToDefault();
       }},
  };
  for (const auto& [what, show] : cases) {
    show(false);
    const unsigned long before = x_driver::requestsSent();
    show(false);
    EXPECT_EQ(x_driver::requestsSent(), before) << what;
    show(true);
    EXPECT_GT(x_driver::requestsSent(), before) << what;
  }
}

TEST(Buttons, AnswerToTheirMnemonics) {
  Toggles form;
  ASSERT_TRUE(x_driver::show(form));
  auto* edit = static_cast<zEditBase*>(form.get(field));
  ASSERT_TRUE(x_driver::giveFocus(*edit));
  for (const KeySym lock : {KeySym{XK_Num_Lock}, KeySym{XK_Caps_Lock}}) {
    form.heard.clear();
    x_driver::key(lock);
    for (const KeySym letter : {KeySym{XK_b}, KeySym{XK_f}, KeySym{XK_z}, KeySym{XK_n}}) {
      x_driver::key(letter, {XK_Alt_L});
    }
    EXPECT_THAT(form.heard, ElementsAre(bold)) << "one is disabled, one unknown";
    EXPECT_TRUE(x_driver::hasFocus(*edit)) << "the label's";
    x_driver::key(XK_k, {XK_Alt_L});
    EXPECT_THAT(form.heard, ElementsAre(bold, ok));
    x_driver::key(XK_t, {XK_Alt_L, XK_Control_L});
    x_driver::key(lock);
  }
  EXPECT_EQ(edit->getText(), "abc");
  EXPECT_THAT(form.set(), ElementsAre());
}

TEST(Buttons, TakeNoColorsFromTheResourceDatabase) {
  XrmDatabase database = XtDatabase(app->display());
  for (const char* what :
       {"background", "foreground", "selectColor", "unselectColor", "armColor", "highlightColor",
        "topShadowColor", "bottomShadowColor", "borderColor"}) {
    XrmPutStringResource(&database, (std::string("*Hostile*") + what).c_str(), "#ff0000");
  }
  Toggles form(inHostileColors);
  auto* sizer = new zGravSizer(zGravBottom, 0, form.sizer());
  (new zStatusLineEZ(&form, sizer, zStatusLineEZ::textItem, 0, nullptr))->show(1);
  form.checks[0]->check(1);
  form.radios[0]->check(1);
  form.checks[1]->backgroundColor(zDialogGrey);
  ASSERT_TRUE(x_driver::show(form));
  const zRect all(zPoint{}, form.sizer()->dimension());
  for (const int pressed : {int{bold}, int{two}, int{ok}, int{cancel}, 43}) {
    x_driver::moveTo(*form.get(pressed), {8, 8});
    x_driver::press();
    EXPECT_EQ(x_driver::countPixels(form, all, {255, 0, 0}), 0) << pressed;
    x_driver::release();
  }
  EXPECT_GT(x_driver::countPixels(*form.checks[2], {0, 0, 20, 20}, zWhite), 30) << "box";
  EXPECT_GT(x_driver::countPixels(*form.get(cancel), {10, 5, 60, 30}, zBlack), 40) << "picture";
  EXPECT_GT(x_driver::countPixels(*form.get(41), {0, 0, 40, 30}, zDialogGrey), 100) << "masked";
  EXPECT_EQ(form.get(none)->getWidget(), nullptr);
}

}  // namespace
