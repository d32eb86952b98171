// The font form, answered by keys and mouse while its constructor runs.
#include <X11/keysym.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

#include "framework/controls/combo_box.h"
#include "framework/core/app.h"
#include "framework/core/timer.h"
#include "framework/dialogs/font_form.h"
#include "tests/support/x_driver.h"

namespace {

using testing::ElementsAre;

enum Id { ok = 1, cancel, face = 100, size, bold, italic };

class Person : public zEvH {
 public:
  Person() : starts_(this, &Person::act, 50) {}

  // Brings the form up on `spec`; what is `done` in it is the last but for the button `ends`.
  int choose(std::function<void(Person&)> done, Id ends) {
    done_ = std::move(done);
    ends_ = ends;
    return zFontSelForm(app->rootWindow(), zColor{0, 0, 200}, &spec).completed();
  }
  void click(Id id) { x_driver::click(*form_->get(id), {8, 8}); }
  void typeSize(const char* text) {
    x_driver::giveFocus(*form_->get(size));
    x_driver::key(XK_Home);
    x_driver::key(XK_End, {XK_Shift_L});
    x_driver::text(text);
  }
  std::string text(Id id) { return static_cast<zComboBoxBase*>(form_->get(id))->getText(); }
  int sampleInk() {
    const auto* sample = form_->kidslist().back();
    zRect all;
    sample->getInterior(all);
    return x_driver::countPixels(*sample, all, {0, 0, 200});
  }

  zFontSpec spec{"Helv", zPrPoint(0, -120)};

 private:
  void act() {
    form_ = static_cast<zFontSelForm*>(app->rootWindow()->kidslist().back());
    ASSERT_TRUE(x_driver::show(*form_));
    done_(*this);
    click(ends_);
  }

  zOneShotTimer starts_;
  std::function<void(Person&)> done_;
  Id ends_ = ok;
  zFontSelForm* form_ = nullptr;
};

TEST(FontForm, ListsSizesInPoints) {
  for (const int tenths : {125, 100, 1000, 80, 100, 0}) {
    zAppFontDict->find(zFontSpec("Unheard", zPrPoint(0, tenths)));
  }
  EXPECT_THAT(zFontSelForm::getSizes("unheard"), ElementsAre("  8", " 10", " 12.5", "100"));
}

TEST(FontForm, GivesBackWhatItChangedWhenCancelled) {
  Person person;
  const zFontSpec before = person.spec;
  const auto changes = [&](Person& p) {
    EXPECT_EQ(p.text(face) + p.text(size), "Helv 12");
    const int ink = p.sampleInk();
    p.click(bold);
    p.click(italic);
    EXPECT_TRUE(p.spec.isBold() && p.spec.isItalic());
    EXPECT_GT(p.sampleInk(), ink) << "the sample is bold";
  };
  EXPECT_EQ(person.choose(changes, cancel), 0);
  EXPECT_EQ(person.spec, before);
}

TEST(FontForm, StartsAnotherFaceWithTenPoints) {
  Person person;
  const auto picks = [](Person& p) {
    p.typeSize("14.5");
    EXPECT_EQ(p.spec.pointSize(), 145);
    p.click(face);
    for (const KeySym key : {KeySym{XK_c}, KeySym{XK_Return}}) x_driver::key(key);
    EXPECT_EQ(p.text(size), " 10");
  };
  EXPECT_EQ(person.choose(picks, ok), 1);
  EXPECT_EQ(person.spec.pointSize(), 100);
  EXPECT_NE(person.spec.faceName(), "Helv");
}

TEST(FontForm, BoundsWhatIsTyped) {
  struct Case {
    const char* typed;
    const char* shown;
    int tenths;
  };
  for (const Case& c : {Case{"500", "399", 3990}, {"abc", "abc", 0}, {"-7", "-7", 0}}) {
    Person person;
    const auto types = [&](Person& p) {
      p.typeSize(c.typed);
      EXPECT_EQ(p.text(size), c.shown);
      EXPECT_GT(p.sampleInk(), 0);
    };
    EXPECT_EQ(person.choose(types, ok), 1);
    EXPECT_EQ(person.spec.pointSize(), c.tenths);
  }
}

}  // namespace
