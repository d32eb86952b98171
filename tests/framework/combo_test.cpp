// Combo boxes of the three kinds, driven by keys and mouse, and all that closes an open list.
#include <gmock/gmock.h>  // first: X has macros with names that it uses
#include <gtest/gtest.h>

#include <X11/keysym.h>
#include <Xm/List.h>

#include <memory>

#include "framework/controls/combo_box.h"
#include "framework/controls/edit.h"
#include "framework/core/app.h"
#include "framework/dialogs/form_dialog.h"
#include "tests/framework/behind_a_loop.h"
#include "tests/support/x_driver.h"

namespace {

constexpr std::uint32_t tab = 0x50010000;
constexpr zControlRecord controls[] = {
    {zAtomComboBox, nullptr, 101, "", tab | 3, 7, 7, 60, 13},
    {zAtomComboBox, nullptr, 102, "", tab | 2, 77, 7, 60, 80},
    {zAtomComboBox, nullptr, 103, "", tab | 1, 147, 7, 60, 60},
    {zAtomEdit, nullptr, 104, "", tab, 7, 80, 60, 13},
    {zAtomButton, nullptr, 1, "OK", tab | 1, 147, 80, 40, 14},
    {0, nullptr, 0, nullptr, 0, 0, 0, 0, 0},
};
constexpr zDialogTemplate dialogs[] = {
    {controls, 9310, 0x80C80000, 20, 20, 220, 100, "Combo boxes", "Helv", 12, zNoMenu},
};
const char* const items[] = {"AutoDetect", "abc", "bits/s", "Cells/s", "b", nullptr};

class ComboForm : public zFormDialog {
 public:
  ComboForm() : zFormDialog(app->rootWindow(), (ziAddDialogs(dialogs), zResId(9310)), 0) {
    for (zComboBoxBase* combo : combos()) {
      combo->addCharStrings(items);
      combo->setNotifySelChange(this, &ComboForm::changed);
      combo->setNotifyEditChange(this, &ComboForm::typed);
      combo->setNotifyDropDown(this, &ComboForm::dropped);
    }
  }
  std::array<zComboBoxBase*, 3> combos() { return {list, full, simple}; }
  int changed(zNotifyEvt*) {
    ++changes;
    if (deletesItself) delete this;
    return 0;
  }
  int typed(zNotifyEvt*) { return ++edits, 0; }
  int dropped(zNotifyEvt*) { return ++drops, 0; }

  zComboBoxStatic* list = new zComboBoxStatic(this, 101);
  zComboBoxFull* full = new zComboBoxFull(this, 102);
  zComboBox* simple = new zComboBox(this, 103);
  zEditLine* edit = new zEditLine(this, 104);
  int changes = 0, edits = 0, drops = 0;
  bool deletesItself = false;
};

class ComboTest : public testing::Test {
 protected:
  // Where an item of the open list is, as seen from the field that it drops from.
  zPoint item(int index) const {
    zRect field;
    form->list->getInterior(field);
    const int height = form->getFont()->height();
    return {15, field.height() + 4 + (height + 2) * index + height / 2};
  }
  zPoint arrow() const {
    zRect field;
    form->list->getInterior(field);
    return {field.width() - field.height() / 2, field.height() / 2};
  }
  // Whether another program could take the pointer.
  static bool pointerIsFree() {
    const std::unique_ptr<Display, int (*)(Display*)> other(
        XOpenDisplay(DisplayString(app->display())), XCloseDisplay);
    return XGrabPointer(other.get(), DefaultRootWindow(other.get()), False, 0, GrabModeAsync,
                        GrabModeAsync, None, None, CurrentTime) == GrabSuccess;
  }
  std::unique_ptr<ComboForm> form = std::make_unique<ComboForm>();
};

TEST_F(ComboTest, SelectsByIndexOrBeginningAndTellsNobody) {
  zComboBoxStatic& list = *form->list;
  struct Case {
    const char* text;
    int result, selected;
  };
  for (const Case& c : {Case{"AB", 1, 1}, Case{"b", 2, 2}, Case{"zz", -1, 2}, Case{"", -1, -1},
                        Case{"Cells/s and more", -1, -1}, Case{"au", 0, 0}}) {
    EXPECT_EQ(list.selection(c.text), c.result) << c.text;
    EXPECT_EQ(list.selection(), c.selected) << c.text;
  }
  EXPECT_EQ(list.selection(5), -1);
  EXPECT_EQ(list.getText(), "AutoDetect");
  list.add("aaa");
  EXPECT_EQ(list.text(0), "aaa");  // every drop-down sorts what is added one by one
  form->full->text("free text");
  EXPECT_EQ(form->full->selection(), -1);
  EXPECT_EQ(form->changes + form->edits + form->drops, 0);
}

TEST_F(ComboTest, DrawsNothingForTheSelectionThatItHas) {
  ASSERT_TRUE(x_driver::show(*form) && x_driver::giveFocus(*form->edit));
  form->list->selection(1);
  const unsigned long before = x_driver::requestsSent();
  form->list->selection(1);
  EXPECT_EQ(x_driver::requestsSent(), before);
  form->list->selection(2);
  EXPECT_GT(x_driver::requestsSent(), before);
}

TEST_F(ComboTest, BindsAnIndexOrAText) {
  int index = 3;
  std::string text = "b";
  auto* list = new zComboBoxStatic(form.get(), 101, &index);
  EXPECT_EQ(list->checkData(), 0);
  list->setToDefault();
  EXPECT_EQ(list->getText(), "Cells/s");
  list->setStoreAddr(&text);
  list->setToDefault();
  EXPECT_EQ(list->selection(), 4);  // "bits/s" begins with it, but this is it
  list->selection(1);
  EXPECT_EQ(list->checkData(), 1);
  list->storeData();
  EXPECT_EQ(text, "abc");
  list->selection(-1);
  EXPECT_EQ((new zComboBoxStatic(form.get(), 101, &index, 0x100))->checkData(), 1);
}

TEST_F(ComboTest, ObeysTheKeyboard) {
  struct Case {
    int combo, start;
    std::initializer_list<KeySym> keys;
    int selected, changes;
    bool open;
  };
  const Case cases[] = {
      {0, 0, {XK_Down, XK_Down}, 2, 2, false},
      {0, 0, {XK_Up}, 0, 0, false},
      {0, -1, {XK_Up}, 0, 1, false},
      {0, 0, {XK_b, XK_b, XK_B}, 2, 3, false},
      {0, 2, {XK_z, XK_End, XK_Home}, 0, 2, false},
      {0, 1, {XK_F4, XK_Down, XK_Down}, 1, 0, true},
      {0, 1, {XK_space, XK_Down, XK_c, XK_space}, 3, 1, false},
      {0, 1, {XK_F4, XK_End, XK_Return}, 4, 1, false},
      {0, 1, {XK_F4, XK_Down, XK_Escape}, 1, 0, false},
      {0, 1, {XK_F4, XK_Down, XK_Tab}, 1, 0, false},
      {1, 1, {XK_Page_Down, XK_Up}, 3, 2, false},
      {1, -1, {XK_F4, XK_Return}, -1, 0, false},
      {1, 1, {XK_F4, XK_F4}, 1, 0, false},
      {2, 1, {XK_F4, XK_Down}, 2, 1, false},
  };
  ASSERT_TRUE(x_driver::show(*form));
  for (const Case& c : cases) {
    const std::string where = "case " + std::to_string(&c - cases);
    zComboBoxBase& combo = *form->combos()[static_cast<std::size_t>(c.combo)];
    combo.selection(c.start);
    form->changes = 0;
    ASSERT_TRUE(x_driver::giveFocus(combo));
    for (const KeySym k : c.keys) x_driver::key(k);
    EXPECT_EQ(combo.selection(), c.selected) << where;
    EXPECT_EQ(form->changes, c.changes) << where;
    EXPECT_EQ(ziActiveCombo == &combo, c.open) << where;
    combo.pop();
  }
  x_driver::giveFocus(*form->list);
  x_driver::key(XK_Down, {XK_Alt_L});
  EXPECT_EQ(ziActiveCombo, form->list);
}

TEST_F(ComboTest, ObeysTheMouse) {
  ASSERT_TRUE(x_driver::show(*form));
  form->list->selection(0);
  for (const zPoint& opener : {zPoint{8, 8}, arrow()}) {
    x_driver::click(*form->list, opener);
    ASSERT_EQ(ziActiveCombo, form->list);
    EXPECT_TRUE(x_driver::hasFocus(*form->list));
    x_driver::click(*form->list, opener);  // on itself again: closes
    EXPECT_EQ(ziActiveCombo, nullptr);
    EXPECT_EQ(form->changes, 0);
  }
  x_driver::click(*form->list, arrow());
  x_driver::click(*form->list, item(3));
  EXPECT_EQ(form->list->getText(), "Cells/s");
  EXPECT_EQ(form->changes, 1);
  EXPECT_EQ(form->drops, 3);
  EXPECT_EQ(ziActiveCombo, nullptr);
  form->list->drop();
  x_driver::click(*form->edit, {10, 10});  // closes, and is a click there
  EXPECT_EQ(ziActiveCombo, nullptr);
  EXPECT_TRUE(x_driver::waitUntil([&] { return x_driver::hasFocus(*form->edit); }));
  form->list->drop();
  x_driver::click(*form->list, {900, 800});  // outside the program
  EXPECT_EQ(ziActiveCombo, nullptr);
  EXPECT_TRUE(pointerIsFree());
  EXPECT_EQ(form->changes, 1);
}

TEST_F(ComboTest, ShowsLongListsThroughAWindow) {
  form->list->addStrSlist(std::vector<std::string>(500, "item"));
  ASSERT_TRUE(x_driver::show(*form));
  form->list->drop();
  const Widget list = XtNameToWidget(form->list->getWidget(), "*ScrolledList");
  const auto top = [list] {
    int first = 0;
    XtVaGetValues(list, XmNtopItemPosition, &first, nullptr);
    return first;
  };
  EXPECT_EQ(top(), 1);
  x_driver::click(*form->list, item(1), Button5);
  const int scrolled = top();
  EXPECT_GT(scrolled, 1);
  EXPECT_EQ(ziActiveCombo, form->list);
  const int bar = arrow().x + 7;
  x_driver::drag(*form->list, {bar, item(0).y + 6}, {bar + 60, 600});  // the slider
  EXPECT_EQ(ziActiveCombo, form->list);
  EXPECT_GT(top(), 400);
  x_driver::click(*form->list, item(0));
  EXPECT_EQ(form->list->selection(), top() - 1);
}

TEST_F(ComboTest, TellsOfTyping) {
  ASSERT_TRUE(x_driver::show(*form));
  ASSERT_TRUE(x_driver::giveFocus(*form->full));
  form->full->selection(1);
  x_driver::text("xy");  // over the text, which is selected
  EXPECT_EQ(form->full->getText(), "xy");
  EXPECT_EQ(form->edits, 2);
  EXPECT_EQ(form->changes, 1);
  EXPECT_EQ(form->full->selection(), -1);
}

TEST_F(ComboTest, SharesTheClipboardOfFieldsAndTakesNoControlCharacters) {
  ASSERT_TRUE(x_driver::show(*form));
  ASSERT_TRUE(x_driver::giveFocus(*form->full));
  form->full->text("");
  x_driver::text("xy");
  for (const KeySym k : {XK_b, XK_c, XK_v, XK_x}) x_driver::key(k, {XK_Control_L});
  EXPECT_EQ(form->full->getText(), "xy");
  x_driver::key(XK_Home, {XK_Shift_L});
  x_driver::key(XK_Caps_Lock);
  x_driver::key(XK_c, {XK_Control_L});
  x_driver::key(XK_Caps_Lock);
  x_driver::key(XK_End);
  x_driver::key(XK_v, {XK_Control_L});
  EXPECT_TRUE(x_driver::waitUntil([&] { return form->full->getText() == "xyxy"; }));
  x_driver::key(XK_Home, {XK_Shift_L});
  x_driver::key(XK_x, {XK_Control_L});
  EXPECT_EQ(form->full->getText(), "");
  ASSERT_TRUE(x_driver::giveFocus(*form->edit));
  x_driver::key(XK_Insert, {XK_Shift_L});
  EXPECT_TRUE(x_driver::waitUntil([&] { return form->edit->getText() == "xyxy"; }));
}

TEST_F(ComboTest, ClosesWithWhatItBelongsTo) {
  const std::function<void()> reasons[] = {
      [&] { x_driver::giveFocus(*form->edit); },
      [&] { form->vmove(60, 60, 400, 250); },
      [&] { form->list->disable(); },
      [&] { form->list->show(0); },
      [&] { form->full->drop(), form->full->pop(); },
      [&] { form->shutdown(); },
  };
  ASSERT_TRUE(x_driver::show(*form));
  for (const auto& closes : reasons) {
    form->list->enable();
    form->list->show(1);
    x_driver::giveFocus(*form->list);
    form->list->drop();
    ASSERT_EQ(ziActiveCombo, form->list);
    closes();
    EXPECT_TRUE(x_driver::waitUntil([] { return !ziActiveCombo; })) << &closes - reasons;
    EXPECT_TRUE(pointerIsFree());
  }
}

TEST_F(ComboTest, ReturnPressesTheDefaultButtonUnlessItIsDisabled) {
  for (const int id : {101, 102, 103, 104}) {
    ComboForm dialog;
    dialog.list->selection(0);
    dialog.edit->text("x");
    dialog.show(1);
    ASSERT_TRUE(x_driver::show(dialog));
    for (const bool enabled : {false, true}) {
      enabled ? dialog.get(1)->enable() : dialog.get(1)->disable();
      ASSERT_TRUE(x_driver::giveFocus(*dialog.get(id))) << id;
      x_driver::key(XK_Return);
      EXPECT_EQ(dialog.completed() != 0, enabled) << id;
    }
  }
}

TEST_F(ComboTest, MayBeDestroyedWhileOpen) {
  ASSERT_TRUE(x_driver::show(*form));
  form->list->drop();
  form = std::make_unique<ComboForm>();
  x_driver::settle();
  EXPECT_TRUE(pointerIsFree());
  ASSERT_TRUE(x_driver::show(*form));
  form->deletesItself = true;
  form->list->drop();
  const zPoint first = item(0);
  zWindowWatch watch(form.get());
  x_driver::click(*form.release()->list, first);
  EXPECT_TRUE(watch.gone());
}

TEST_F(ComboTest, WorksInAModalDialog) {
  bool opened = false;
  Later plays(600, [&] {
    x_driver::click(*form->list, {8, 8});
    opened = ziActiveCombo == form->list;
    x_driver::key(XK_End);
    x_driver::key(XK_Return);
    form->shutdown();
  });
  form->modal();
  EXPECT_TRUE(opened);
  EXPECT_EQ(form->list->selection(), 4);
}

}  // namespace
