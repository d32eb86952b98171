// List boxes with one selection and with several: their items, bindings and what the user does.
#include <gmock/gmock.h>  // first: X has macros with names that it uses
#include <gtest/gtest.h>

#include <Xm/Xm.h>

#include <X11/keysym.h>

#include "framework/controls/multi_list.h"
#include "framework/core/app.h"
#include "framework/dialogs/form_dialog.h"
#include "tests/support/x_driver.h"

namespace {

using testing::ElementsAre;

constexpr std::uint32_t tab = 0x50010000;
constexpr zControlRecord controls[] = {
    {zAtomListBox, nullptr, 101, "", tab | 2, 7, 7, 60, 60},
    {zAtomListBox, nullptr, 102, "", tab | 8, 77, 7, 60, 60},
    {zAtomListBox, nullptr, 103, "", tab | 0x80A, 147, 7, 60, 60},
    {zAtomScrollBar, nullptr, 104, "", tab, 7, 70, 60, 8},
    {0, nullptr, 0, nullptr, 0, 0, 0, 0, 0},
};
constexpr zDialogTemplate dialogs[] = {
    {controls, 9300, 0x80C80000, 20, 20, 220, 84, "Lists", "Helv", 12, zNoMenu},
};
const char* const rows[] = {"one", "two", "three", "four", nullptr};

struct Listener : zEvH {
  int changed(zNotifyEvt*) { return ++changes, 0; }
  int doubleClicked(zNotifyEvt*) { return ++doubleClicks, 0; }
  int changes = 0;
  int doubleClicks = 0;
};

class ListTest : public testing::Test {
 protected:
  ListTest() : made((ziAddDialogs(dialogs), 0)), form(app->rootWindow(), zResId(9300), 0) {}
  zPoint row(int index) const {
    return {20, 4 + (form.getFont()->height() + 2) * index + form.getFont()->height() / 2};
  }
  int made;
  zFormDialog form;
  Listener listener;
};

std::vector<std::string> itemsOf(const ziItemControl& control) {
  std::vector<std::string> items(static_cast<std::size_t>(control.count()));
  for (int i = 0; i < control.count(); ++i) control.getItem(items[static_cast<unsigned>(i)], i);
  return items;
}

TEST_F(ListTest, ItemsKeepTheirOrderAndTheSelectionItsItem) {
  static_cast<zListBoxBase*>(form.get(101))->add("kept by the one that takes its place");
  auto* list = new zListBox(&form, 101);
  EXPECT_EQ(list->count(), 1);
  list->clear();
  for (const char* text : {"pear", "Apple", "apple", "fig", "APPLE", "Pear"}) list->add(text);
  EXPECT_THAT(itemsOf(*list), ElementsAre("APPLE", "Apple", "apple", "fig", "Pear", "pear"));
  EXPECT_EQ(list->selection("P"), 4);
  EXPECT_EQ(list->insert("first", 0), 0);
  EXPECT_EQ(list->insert("last", 99), 7);
  EXPECT_EQ(list->selection(), 5);
  EXPECT_EQ(list->del(1), 7);
  EXPECT_EQ(list->getText(), "Pear");
  EXPECT_EQ(list->del(4), 6);
  EXPECT_EQ(list->selection(), -1);
  for (const int none : {-2, -1, 6, 1000}) {
    EXPECT_EQ(list->del(none), -1);
    EXPECT_EQ(list->text(none), "");
    EXPECT_EQ(list->selection(none), -1);
  }
  list->clear();
  EXPECT_EQ(list->checkData(), 1);  // nothing there to be selected
}

TEST_F(ListTest, TellsOnceOfWhatTheUserDoesAndNotOfTheProgram) {
  auto* list = new zListBox(&form, 101);
  list->setNotifySelChange(&listener, &Listener::changed);
  list->setNotifyDoubleClick(&listener, &Listener::doubleClicked);
  list->addCharStrings(rows);
  ASSERT_TRUE(x_driver::show(form));
  list->selection(3);
  EXPECT_EQ(listener.changes, 0);
  x_driver::outwaitDoubleClick();
  x_driver::click(*list, row(1));
  EXPECT_EQ(list->selection(), 1);
  EXPECT_EQ(listener.changes, 1);
  list->selection(2);
  x_driver::key(XK_Down);  // goes on from where the program put the selection
  EXPECT_EQ(list->selection(), 3);
  EXPECT_EQ(listener.changes, 2);
  x_driver::doubleClick(*list, row(0));
  EXPECT_EQ(list->selection(), 0);
  EXPECT_EQ(listener.changes, 3);
  EXPECT_EQ(listener.doubleClicks, 1);
}

TEST_F(ListTest, SelectsSeveralRows) {
  std::vector<int> numbers{3, 0, 17};
  std::vector<std::string> texts;
  for (const int id : {102, 103}) {
    auto* list = new zMultiList(&form, id, &numbers);
    list->setNotifySelChange(&listener, &Listener::changed);
    list->addCharStrings(rows);
    EXPECT_EQ(list->checkData(), 0);
    list->setToDefault();
    std::vector<int> chosen{9};
    EXPECT_EQ(list->getSelection(&chosen), 2);
    EXPECT_THAT(chosen, ElementsAre(0, 3));
    list->setSelection(std::vector<int>{});
    EXPECT_EQ(list->getSelection(&chosen), 0);
    EXPECT_THAT(chosen, ElementsAre());
  }
  auto* list = new zMultiList(&form, 102, &texts);
  ASSERT_TRUE(x_driver::show(form));
  for (const int click : {2, 0, 1, 0}) {  // the second one of a row takes it off again
    x_driver::outwaitDoubleClick();
    x_driver::click(*list, row(click));
  }
  EXPECT_EQ(listener.changes, 4);
  EXPECT_EQ(list->storeData(), 1);
  EXPECT_THAT(texts, ElementsAre("two", "three"));
}

TEST_F(ListTest, AddingIsCheapHowMuchThereIs) {
  auto* list = new zListBoxUnsorted(&form, 101);
  ASSERT_TRUE(x_driver::show(form));
  unsigned long cost[2];
  for (unsigned long& c : cost) {
    const unsigned long before = x_driver::requestsSent();
    for (int i = 0; i < 500; ++i) list->add("item " + std::to_string(i));
    c = x_driver::requestsSent() - before;
  }
  EXPECT_LT(cost[1], 2 * cost[0]);
  const unsigned long before = x_driver::requestsSent();
  list->addStrSlist(std::vector<std::string>(500, "item"));
  EXPECT_LT(x_driver::requestsSent() - before, 100U);
  EXPECT_EQ(list->selection(1499), 1499);
}

}  // namespace
