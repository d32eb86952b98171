// When tool tips come, where, and when they go.
#include <gtest/gtest.h>

#include <chrono>
#include <optional>
#include <string>

#include "framework/controls/pane.h"
#include "framework/core/app.h"
#include "framework/dialogs/dialog_frame.h"
#include "framework/dialogs/tool_tips.h"
#include "tests/support/x_driver.h"

namespace {

using x_driver::waitUntil;
using Clock = std::chrono::steady_clock;

constexpr zStatusMessage messages[] = {{1, "First"}, {2, "Second"}, {1, "Never"}, {0, nullptr}};

class NamedPane : public zPane {
 public:
  using zPane::zPane;
  std::string getText() const override { return ctrlId() == 3 ? "Third" : ""; }
};

// The place of the tip on the screen, if one is there.
std::optional<zRect> tip() {
  Window root = None, parent = None, *windows = nullptr;
  unsigned count = 0;
  x_driver::settle();
  XQueryTree(app->display(), DefaultRootWindow(app->display()), &root, &parent, &windows, &count);
  std::optional<zRect> found;
  for (unsigned i = 0; i < count; ++i) {
    XWindowAttributes now;
    const Widget widget = XtWindowToWidget(app->display(), windows[i]);
    if (!widget || std::string(XtName(widget)) != "ToolTip") continue;
    XGetWindowAttributes(app->display(), windows[i], &now);
    if (now.map_state == IsViewable) found = zRect(zPoint{now.x, now.y}, {now.width, now.height});
  }
  XFree(windows);
  return found;
}

bool comes(int milliseconds = x_driver::patienceMs) {
  return waitUntil([] { return tip().has_value(); }, milliseconds);
}

struct ToolTips : testing::Test {
  std::unique_ptr<zDialogFrame> form = std::make_unique<zDialogFrame>(
      app->rootWindow(), new zSizer(40, 40, 300, 160, nullptr), 0, "Form", 0);
  zPane* panes[4];
  std::unique_ptr<zToolTipCtrl> tips = std::make_unique<zToolTipCtrl>(form.get());

  void SetUp() override {
    tips->setTipMessageTable(messages);
    for (int i = 0; i < 4; ++i) {
      panes[i] = new NamedPane(form.get(), new zSizer(20 + 60 * i, 20, 40, 40, form->sizer()), 0,
                               nullptr, i + 1);
      panes[i]->create();
      panes[i]->show(1);
      tips->add(panes[i]);
    }
    ASSERT_TRUE(x_driver::show(*form));
    x_driver::moveTo(*form, {5, 150});
  }
  void TearDown() override { EXPECT_FALSE(tip()) << "left behind"; }
};

TEST_F(ToolTips, ComeAfterAMomentAndGoWithThePointer) {
  x_driver::moveTo(*panes[0], {30, 30});
  waitUntil([] { return false; }, 100);  // still on its way
  const auto start = Clock::now();
  x_driver::moveTo(*panes[0], {10, 8});
  ASSERT_TRUE(comes());
  EXPECT_GE(Clock::now() - start, std::chrono::milliseconds(395));
  zRect pane;
  panes[0]->getExterior(pane);
  EXPECT_EQ(tip()->pos(), (zPoint{pane.left + 10 + 3, pane.top + 8 + 16}));
  const int narrow = tip()->width();

  x_driver::moveTo(*form, {5, 150});
  EXPECT_FALSE(tip());
  x_driver::moveTo(*panes[1], {10, 8});
  ASSERT_TRUE(comes());
  EXPECT_GT(tip()->width(), narrow) << "the second text is longer";
  x_driver::press();
  EXPECT_FALSE(tip());
  x_driver::release();
  x_driver::moveTo(*form, {5, 150});
}

TEST_F(ToolTips, ComeAtOnceOnTheNextControlAndOnlyWhileTheFrameIsActive) {
  x_driver::moveTo(*panes[0], {10, 8});
  ASSERT_TRUE(comes());
  const int first = tip()->left;
  x_driver::moveTo(*panes[1], {10, 8});
  ASSERT_TRUE(tip());
  EXPECT_GT(tip()->left, first);
  zDialogFrame other(app->rootWindow(), new zSizer(600, 500, 90, 90, nullptr), 0, "Other", 0);
  ASSERT_TRUE(x_driver::show(other));
  EXPECT_FALSE(tip());
  x_driver::moveTo(*panes[0], {12, 8});
  EXPECT_FALSE(comes(600));
}

TEST_F(ToolTips, FallBackOnTheControlsOwnTextWhenSwitchedOn) {
  tips->enable(0);
  x_driver::moveTo(*panes[0], {10, 8});
  EXPECT_FALSE(comes(600));
  tips->enable(1);
  x_driver::moveTo(*panes[2], {10, 8});
  EXPECT_TRUE(comes());
  x_driver::moveTo(*panes[3], {10, 8});
  EXPECT_FALSE(comes(700)) << "no text, no tip";
}

TEST_F(ToolTips, DoNotComeBackWhileThePointerRests) {
  x_driver::moveTo(*panes[0], {10, 8});
  ASSERT_TRUE(comes());
  const auto start = Clock::now();
  ASSERT_TRUE(waitUntil([] { return !tip(); }, 10000));
  EXPECT_GE(Clock::now() - start, std::chrono::milliseconds(5000));
  EXPECT_FALSE(comes(800));
}

TEST_F(ToolTips, StayOnTheScreen) {
  const int width = DisplayWidth(app->display(), 0);
  const int height = DisplayHeight(app->display(), 0);
  form->vmove(width - 80, height - 60, 300, 160);
  x_driver::settle();
  x_driver::moveTo(*panes[0], {10, 8});
  ASSERT_TRUE(comes());
  EXPECT_LE(tip()->right + 2, width);
  EXPECT_LE(tip()->bottom + 2, height);
  x_driver::moveTo(*form, {5, 5});
}

TEST_F(ToolTips, ForgetADeletedControl) {
  x_driver::moveTo(*panes[0], {10, 8});
  ASSERT_TRUE(comes());
  delete panes[0];
  EXPECT_TRUE(waitUntil([] { return !tip(); }));
  x_driver::moveTo(*panes[1], {10, 8});
  EXPECT_TRUE(comes()) << "the others go on";
  form.reset();
  EXPECT_TRUE(waitUntil([] { return !tip(); })) << "the dialog has gone";
}

}  // namespace
