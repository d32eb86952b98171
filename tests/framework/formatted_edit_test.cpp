// Fields with a formatter: every way to change a text goes through it.
#include <gtest/gtest.h>

#include "framework/entry/number_edits.h"
#include "framework/entry/string_edit.h"
#include "tests/framework/edit_form.h"

namespace {

using edit_form::firstId;
using edit_form::Form;
using edit_form::play;
using edit_form::secondId;
using edit_form::shown;

constexpr const char* ipPicture = "[0-9](3)'.'[0-9](3)'.'[0-9](3)'.'[0-9](3)";
constexpr unsigned long ipStyle = 0x280000;
constexpr zPoint inText{60, 12};
const std::initializer_list<KeySym> alone{}, withShift{XK_Shift_L}, withControl{XK_Control_L};

TEST(FormattedEdit, TakesKeysThroughItsFormatter) {
  Form form;
  std::string value;
  zStringEdit field(&form, firstId, &value, ipPicture, ipStyle);
  ASSERT_TRUE(form.start(field));
  play(form, field,
       {{'1', alone, "1|__.___.___.___"},
        {'x', alone, "1|__.___.___.___", ""},
        {'v', withControl, "1|__.___.___.___", ""},
        {'2', alone, "12|_.___.___.___"},
        {'3', alone, "123.|___.___.___"},
        {'4', alone, "123.4|__.___.___"},
        {XK_BackSpace, alone, "123.|___.___.___"},
        {XK_BackSpace, alone, "12|_.___.___.___"},
        {XK_Escape, alone, "12|_.___.___.___", ""},
        {XK_Home, alone, "|12_.___.___.___", ""},
        {XK_Delete, alone, "|2__.___.___.___"},
        {XK_Right, withShift, "{2}__.___.___.___", ""},
        {'7', alone, "7|__.___.___.___"},
        {XK_Home, withShift, "{7}__.___.___.___", ""},
        {XK_Delete, alone, "|___.___.___.___"},
        {'8', alone, "8|__.___.___.___"},
        {XK_Home, withShift, "{8}__.___.___.___", ""},
        {XK_Delete, withShift, "|___.___.___.___"},
        {XK_Insert, withShift, "8|__.___.___.___"},
        {XK_Home, alone, "|8__.___.___.___", ""},
        {XK_Delete, withControl, "|___.___.___.___"}});
}

TEST(FormattedEdit, TellsASelectedCharacterFromOneAtTheCaret) {
  Form form;
  std::string value = "123.456.789.012";
  zStringEdit field(&form, firstId, &value, ipPicture, ipStyle);
  ASSERT_TRUE(form.start(field));
  EXPECT_EQ(shown(field), "|123.456.789.012");
  for (const KeySym key : {KeySym{XK_Delete}, KeySym{XK_BackSpace}}) {
    field.selection(3, 4);  // a literal alone
    play(form, field, {{key, alone, "123{.}456.789.012", ""}});
  }
  field.selection(4, 4);
  play(form, field, {{XK_BackSpace, alone, "12|4.567.890.12_"}});
  EXPECT_TRUE(field.undo());
  EXPECT_EQ(shown(field), "123.|456.789.012");
}

// Does something of its own when a change is announced.
struct Meddler : Form {
  explicit Meddler(zStringEdit*& field, bool deletes) : field_(field), deletes_(deletes) {}
  int update(zNotifyEvt*) override {
    if (deletes_) {
      delete this;
    } else {
      field_->setToDefault();
    }
    return 0;
  }

 private:
  zStringEdit*& field_;
  bool deletes_;
};

TEST(FormattedEdit, LeavesTheLastWordToItsParent) {
  for (const bool deletes : {true, false}) {
    for (const KeySym key : {KeySym{XK_Delete}, KeySym{'7'}}) {
      zStringEdit* field = nullptr;
      auto* form = new Meddler(field, deletes);
      const zWindowWatch watch(form);
      std::string value = "10.0.0.1";
      field = new zStringEdit(form, firstId, &value, ipPicture, ipStyle);
      ASSERT_TRUE(form->start(*field));
      x_driver::key(key);
      ASSERT_EQ(watch.gone(), deletes);
      if (deletes) continue;
      EXPECT_EQ(shown(*field), "|10_.0__.0__.1__");
      delete form;
    }
  }
}

TEST(FormattedEdit, TakesWhatIsPastedAndMoved) {
  Form form;
  std::string value;
  zStringEdit field(&form, firstId, &value, ipPicture, ipStyle);
  zEditLine other(&form, secondId);
  ASSERT_TRUE(form.start(field));
  struct Case {
    const char* pasted;
    bool moved;
    const char* shows;
    const char* left;
    const char* heard;
  };
  const Case cases[] = {
      {"192.168.1.20", false, "192.168.1__.20_", "192.168.1.20", "uc"},
      {"192168", false, "192.168.___.___", "192168", "uc"},
      {"10.x.9", false, "10_.___.___.___", "10.x.9", "uc"},
      {"rubbish", false, "___.___.___.___", "rubbish", ""},
      {"4", false, "4__.___.___.___", "4", "uc"},
      {"17", true, "17_.___.___.___", "", "uc"},
  };
  for (const Case& c : cases) {
    other.text(c.pasted);
    other.selection(0, 20);
    field.setToDefault();  // which leaves the selection with its owner
    form.heard.clear();
    if (c.moved) x_driver::keyDown(XK_Shift_L);
    x_driver::click(field, {5, 12}, 2);
    if (c.moved) x_driver::keyUp(XK_Shift_L);
    x_driver::waitUntil([&] { return field.getText() == c.shows && other.getText() == c.left; });
    x_driver::settle();
    EXPECT_EQ(field.getText(), c.shows) << c.pasted;
    EXPECT_EQ(other.getText(), c.left) << c.pasted;
    EXPECT_EQ(form.heard, c.heard) << c.pasted;
  }
}

TEST(FormattedEdit, PutsTheCaretOnTheFirstBadCharacter) {
  Form form;
  std::string value = "1.2.3", other = "filled";
  zStringEdit field(&form, firstId, &value, ipPicture, ipStyle);
  zEditLine second(&form, secondId, &other);
  second.setToDefault();
  form.get(edit_form::boxId)->disable();
  ASSERT_TRUE(form.start(second));
  EXPECT_EQ(field.getRawText(zFormatter::rawValue), "123");
  x_driver::key(XK_Return);
  ASSERT_TRUE(x_driver::waitUntil([&] { return x_driver::hasFocus(field); }));
  EXPECT_FALSE(form.isFinished());
  EXPECT_EQ(form.completed(), 0);
  EXPECT_EQ(shown(field), "1|__.2__.3__.___");
  field.setStoreAddr(&other);
  other = "111.222.333.444";
  field.setToDefault();
  EXPECT_EQ(form.heard, "");
  x_driver::key(XK_Return);
  ASSERT_TRUE(x_driver::waitUntil([&] { return form.isFinished(); }));
}

TEST(NumberEdits, ShowTypeAndStoreNumbers) {
  Form form;
  int number = -12;
  unsigned long large = 4294967295UL;
  zIntEdit field(&form, firstId, &number);
  zUnsignedLongEdit second(&form, secondId, &large);
  EXPECT_EQ(field.getText(), "-12");
  EXPECT_EQ(second.getText(), "4294967295");
  second.storeData();
  EXPECT_EQ(large, 2147483647UL);
  ASSERT_TRUE(form.start(field));
  x_driver::key(XK_End);
  play(form, field,
       {{'3', alone, "-123|"},
        {'x', alone, "-123|", ""},
        {XK_BackSpace, alone, "-12|"},
        {XK_BackSpace, alone, "-1|"}});
  field.storeData();
  EXPECT_EQ(number, -1);
  number = 7;
  field.setToDefault();
  EXPECT_EQ(field.getRawText(0), "+7");
  const unsigned long before = x_driver::requestsSent();
  field.setToDefault();
  EXPECT_EQ(x_driver::requestsSent(), before) << "it shows that already";
  unsigned count = 40;
  auto* four = new zUnsignedIntEdit(&form, edit_form::boxId, &count, "####", 0);
  EXPECT_EQ(four->getText(), "40");
  auto* positive = new zIntEdit(&form, edit_form::boxId, &number, "##", 0);
  EXPECT_EQ(positive->getText(), "7");
  EXPECT_EQ(form.heard, "uc");
}

TEST(FormattedEdit, WithoutAFormatterIsAFieldOfOneLine) {
  Form form;
  zFormattedEdit field(&form, firstId, nullptr, 0);
  zStringEdit nowhere(&form, 77, nullptr, ipPicture, ipStyle);
  std::string pasted = "1";
  EXPECT_TRUE(nowhere.pasteStr(pasted));
  EXPECT_EQ(nowhere.getText(), "");
  ASSERT_TRUE(form.start(field));
  play(form, field, {{'x', alone, "x|"}, {XK_Delete, alone, "x|", ""}});
  EXPECT_TRUE(field.checkData());
}

}  // namespace
