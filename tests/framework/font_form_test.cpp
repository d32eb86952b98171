// The font form, answered by keys and mouse while its constructor runs.
#include <X11/keysym.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "framework/controls/combo_box.h"
#include "framework/core/app.h"
#include "framework/core/timer.h"
#include "framework/dialogs/font_form.h"
#include "tests/support/x_driver.h"

namespace {

using testing::ElementsAre;

enum Id { ok = 1, cancel, face = 100, size, bold, italic };
constexpr zColor blue{0, 0, 200};

struct Case {
  const char* typed;  // as the size; before a face with this letter is chosen, unless it is 0
  KeySym face;
  Id ends;
  const char* shown;
  int tenths;
};

// Does as a case tells.
class Person : public zEvH {
 public:
  explicit Person(const Case& c) : case_(c), starts_(this, &Person::act, 50) {}
  zFontSpec spec{"Helv", zPrPoint(0, -120)};

 private:
  void click(Id id) { x_driver::click(*form_->get(id), {8, 8}); }
  int sampleInk() {
    const auto* sample = form_->kidslist().back();
    return x_driver::countPixels(*sample, {zPoint{}, sample->sizer()->dimension()}, blue);
  }
  void act() {
    form_ = static_cast<zFontSelForm*>(app->rootWindow()->kidslist().back());
    ASSERT_TRUE(x_driver::show(*form_));
    auto* sizes = static_cast<zComboBoxBase*>(form_->get(size));
    EXPECT_EQ(sizes->getText(), " 12");
    x_driver::giveFocus(*sizes);
    x_driver::key(XK_Home);
    x_driver::key(XK_End, {XK_Shift_L});
    x_driver::text(case_.typed);
    if (case_.face) {
      click(face);
      for (const KeySym key : {case_.face, KeySym{XK_Return}}) x_driver::key(key);
    }
    EXPECT_EQ(sizes->getText(), case_.shown);
    const int ink = sampleInk();
    click(bold);
    click(italic);
    EXPECT_TRUE(spec.isBold() && spec.isItalic());
    EXPECT_GT(sampleInk(), ink) << "bold takes more";
    click(case_.ends);
  }

  const Case& case_;
  zOneShotTimer starts_;
  zFontSelForm* form_ = nullptr;
};

TEST(FontForm, TakesAFontOrGivesItBack) {
  const zFont bold("Helv", zPrPoint(0, -120), zFontSpec::weightBold);
  if (bold.textWidth("Sample") == zFont("Helv", zPrPoint(0, -120)).textWidth("Sample")) {
    GTEST_SKIP() << "the display has one font only";
  }
  for (const Case& c : {Case{"500", 0, ok, "399", 3990},
                        {"abc", 0, ok, "abc", 0},
                        {"-7", 0, ok, "-7", 0},
                        {"14.5", 0, cancel, "14.5", 120},
                        {"14.5", XK_c, ok, " 10", 100}}) {
    Person person(c);
    const zFontSpec before = person.spec;
    EXPECT_EQ(zFontSelForm(app->rootWindow(), blue, &person.spec).completed(), c.ends == ok);
    EXPECT_EQ(person.spec.pointSize(), c.tenths);
    EXPECT_EQ(person.spec.faceName() == "Helv", c.face == 0);
    EXPECT_EQ(person.spec == before, c.ends == cancel);
  }
}

TEST(FontForm, ListsSizesInPoints) {
  for (const int tenths : {125, 100, 1000, 80, 100, 0}) {
    zAppFontDict->find(zFontSpec("Unheard", zPrPoint(0, tenths)));
  }
  EXPECT_THAT(zFontSelForm::getSizes("unheard"), ElementsAre("  8", " 10", " 12.5", "100"));
}

}  // namespace
