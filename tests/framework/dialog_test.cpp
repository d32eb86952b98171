// Dialogs out of templates, their controls, modal loops and message boxes, driven by keys and
// mouse.
#include <X11/keysym.h>
#include <gtest/gtest.h>

#include <functional>
#include <memory>

#include "framework/controls/button.h"
#include "framework/controls/edit.h"
#include "framework/controls/group_box.h"
#include "framework/controls/static_text.h"
#include "framework/core/app.h"
#include "framework/core/timer.h"
#include "framework/dialogs/dialog_reader.h"
#include "framework/dialogs/form_dialog.h"
#include "framework/dialogs/message.h"
#include "framework/resources/resources.h"
#include "tests/support/x_driver.h"

namespace {

constexpr int plainForm = 584;
constexpr int editId = 20;

// Runs what it is given once the main loop has come round.
class Later : public zEvH {
 public:
  Later(unsigned long milliseconds, std::function<void()> action)
      : action_(std::move(action)), timer_(this, &Later::run, milliseconds) {}

 private:
  void run() { action_(); }
  std::function<void()> action_;
  zOneShotTimer timer_;
};

// The plain form with an edit in it, bound to `stored`.
class TestForm : public zFormDialog {
 public:
  TestForm() : zFormDialog(app->rootWindow(), zResId(plainForm), 0) {
    new zEditBase(this, new zSizer(10, 8, 150, 26, sizer()), zStyleTabStop, "", editId);
    get(editId)->show(1);
    edit = new zEditLine(this, editId, &stored);
    text = new zStaticText(this, 100);
    ok = new zPushButton(this, okId);
  }
  int kill(zEvent*) override {
    ++closeRequests;
    return refusesToClose;
  }
  bool isFinished() const { return finished(); }

  std::string stored = "before";
  zEditLine* edit;
  zStaticText* text;
  zPushButton* ok;
  int closeRequests = 0;
  int refusesToClose = 0;
};

TEST(Template, GivesStyleCaptionSizeAndControls) {
  TestForm form;
  EXPECT_EQ(form.ctrlId(), plainForm);
  EXPECT_EQ(form.styleValue() & zStyleVisible, 0U);
  EXPECT_GT(form.sizer()->width(), 150);
  EXPECT_EQ(form.get(100), form.text);  // the typed control took the generic one's place
  EXPECT_EQ(form.kidslist().size(), 3U);
  form.text->text("changed");
  EXPECT_EQ(form.text->getText(), "changed");
}

TEST(Template, UnknownNumbersAreHarmless) {
  testing::internal::CaptureStderr();
  {
    zFormDialog form(app->rootWindow(), zResId(9999), 0);
    EXPECT_EQ(form.sizer()->dimension(), (zDimension{100, 100}));
    auto* nothing = new zEditLine(&form, 1234);
    nothing->text("nobody shows this");
    nothing->selection(1, 2);
    nothing->limitText(3);
    nothing->setFocus();
    nothing->show(0);
    EXPECT_EQ(nothing->getText(), "");
    EXPECT_EQ(nothing->enable(), 0);
    EXPECT_FALSE(nothing->isEnabled());
    (new zPushButton(&form, 1235))->text("x");
    (new zGroupBox(&form, 1236))->text("y");
    new zStaticText(&form, 1237);
  }
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "Error: Unable to find dialog resource for id=9999.\n");
}

TEST(StringBlock, StartsOverBehindItsEnd) {
  zResStrBlock block(zResId(542));
  EXPECT_STREQ(block(), "Backup");
  EXPECT_STREQ(block(), "Primary");
  EXPECT_EQ(block(), nullptr);
  EXPECT_STREQ(block(), "Backup");
  EXPECT_EQ(zResStrBlock(zResId(1))(), nullptr);
  EXPECT_EQ(zAppFindResource(540, 4).data, nullptr);
  EXPECT_EQ(zResId(537).loadStr(), "Setup");
}

TEST(Form, OkStoresValidDataAndEnds) {
  TestForm form;
  form.setControlsToDefault();
  EXPECT_EQ(form.edit->getText(), "before");
  form.show(1);
  ASSERT_TRUE(x_driver::show(form));
  ASSERT_TRUE(x_driver::giveFocus(*form.edit));
  x_driver::key(XK_End);
  x_driver::text(" now");
  EXPECT_EQ(form.edit->getText(), "before now");
  EXPECT_EQ(form.stored, "before");
  x_driver::key(XK_Return);  // no default button: as a click on the control 1
  ASSERT_TRUE(x_driver::waitUntil([&] { return form.isFinished(); }));
  EXPECT_EQ(form.completed(), 1);
  EXPECT_EQ(form.stored, "before now");
}

TEST(Form, OkWithInvalidDataStaysAndPutsTheFocusThere) {
  TestForm form;
  form.show(1);
  ASSERT_TRUE(x_driver::show(form));
  ASSERT_TRUE(x_driver::giveFocus(*form.ok));
  x_driver::key(XK_space);
  ASSERT_TRUE(x_driver::waitUntil([&] { return x_driver::hasFocus(*form.edit); }));
  EXPECT_FALSE(form.isFinished());
  EXPECT_EQ(form.completed(), 0);
  EXPECT_EQ(form.stored, "before");
  form.edit->disable();  // is not checked then
  x_driver::click(*form.ok, {5, 5});
  EXPECT_TRUE(x_driver::waitUntil([&] { return form.isFinished(); }));
}

TEST(Form, MayRefuseToClose) {
  TestForm form;
  form.show(1);
  ASSERT_TRUE(x_driver::show(form));
  form.refusesToClose = 1;
  form.shutdown();
  EXPECT_FALSE(form.isFinished());
  form.refusesToClose = 0;
  form.shutdown();
  EXPECT_TRUE(form.isFinished());
  EXPECT_EQ(form.closeRequests, 2);
}

TEST(Form, TakesTheDialogsOverItAlong) {
  auto below = std::make_unique<TestForm>();
  below->show(1);
  ASSERT_TRUE(x_driver::show(*below));
  auto* over = new zFormDialog(below.get(), zResId(plainForm), 0);
  over->show(1);
  ASSERT_TRUE(x_driver::show(*over));
  const zWindowWatch watch(over);
  below.reset();
  EXPECT_TRUE(watch.gone());
  x_driver::settle();
}

TEST(Modal, LoopsNestAndTimersRunOnTopOfThem) {
  TestForm outer, inner;
  int ticks = 0;
  bool innerEnded = false;
  Later opens(50, [&] {
    inner.modal();
    innerEnded = true;
    EXPECT_FALSE(outer.isFinished());
    outer.shutdown();
  });
  Later ticksAgain(120, [&] { ++ticks; });
  Later ends(200, [&] { inner.shutdown(); });
  outer.modal();
  EXPECT_TRUE(innerEnded);
  EXPECT_EQ(ticks, 1);
  EXPECT_EQ(ziModalSem, 0);
}

TEST(Modal, EveryLoopEndsWhenTheProgramDoes) {
  TestForm outer, inner;
  Later opens(30, [&] { inner.modal(); });
  Later ends(100, [] { zAppKeepRunning = 0; });
  outer.modal();
  EXPECT_FALSE(outer.isFinished());
  zAppKeepRunning = 1;
}

TEST(Modal, TheWindowBehindTakesNoInput) {
  TestForm behind, front;
  behind.show(1);
  ASSERT_TRUE(x_driver::show(behind));
  bool clicked = false;
  Later tries(600, [&] {
    x_driver::click(*behind.ok, {5, 5});
    clicked = true;
    front.shutdown();
  });
  front.vmove(500, 500, front.sizer()->width(), front.sizer()->height());
  front.modal();
  EXPECT_TRUE(clicked);
  EXPECT_FALSE(behind.isFinished());
  EXPECT_EQ(behind.closeRequests, 0);
}

// Message boxes.

struct BoxCase {
  unsigned style;
  std::initializer_list<KeySym> keys;
  int result;
};

TEST(Message, ReturnsTheAnswerOfEachType) {
  const BoxCase cases[] = {
      {0x30, {XK_Return}, 1},        {0x21, {XK_Return}, 1}, {0x21, {XK_Escape}, 2},
      {0x32, {XK_Tab, XK_space}, 3}, {0x23, {XK_Return}, 6}, {0x24, {XK_Escape}, 7},
      {0x45, {XK_Return}, 4},        {0x0F, {XK_Escape}, 2},
  };
  for (const BoxCase& c : cases) {
    Later answers(400, [&] {
      for (const KeySym k : c.keys) x_driver::key(k);
    });
    const zMessage box(app->rootWindow(), "Two\nlines", "Caption", c.style);
    if (c.style == 0x32) {
      EXPECT_GE(box.result(), 3);
      EXPECT_LE(box.result(), 5);
    } else {
      EXPECT_EQ(box.result(), c.result) << std::hex << c.style;
    }
  }
}

TEST(Message, EndsWithTheWindowItStandsOver) {
  auto form = std::make_unique<TestForm>();
  form->show(1);
  ASSERT_TRUE(x_driver::show(*form));
  Later deletes(300, [&] { form.reset(); });
  EXPECT_EQ(zMessage(form.get(), "text", "caption", 0x24).result(), 7);
}

TEST(Message, BlocksOnlyTheHandlerThatRaisedIt) {
  TestForm form;
  int answer = 0;
  Later raises(50, [&] {
    Later answers(500, [] { x_driver::key(XK_Return); });
    answer = zMessage(&form, "text", "caption", 0x30).result();
    form.shutdown();
  });
  form.modal();
  EXPECT_EQ(answer, 1);
  EXPECT_TRUE(form.isFinished());
}

}  // namespace
