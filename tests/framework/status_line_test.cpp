#include <gtest/gtest.h>

#include "framework/controls/status_line.h"
#include "framework/core/app.h"
#include "framework/dialogs/dialog_frame.h"
#include "tests/support/x_driver.h"

namespace {

struct StatusLine : testing::Test {
  zDialogFrame form{app->rootWindow(), new zSizer(40, 40, 300, 100, nullptr), 0, "Form", 0};
  zStatusLineEZ* line =
      new zStatusLineEZ(&form, new zGravSizer(zGravBottom, 0, form.sizer()), 0x100, 0, nullptr);

  void SetUp() override {
    line->show(1);
    ASSERT_TRUE(x_driver::show(form));
  }
  int inkIn(const zRect& area) { return x_driver::countPixels(*line, area, zBlack); }
};

TEST_F(StatusLine, StandsAtTheBottomAsHighAsItsFont) {
  const zFont font("Helv", zPrPoint(0, 120));
  zRect inside;
  line->getInterior(inside);
  EXPECT_EQ(inside, zRect(0, 0, 300, font.height() + 8));
  EXPECT_EQ(line->sizer()->rect().bottom, 100);
}

TEST_F(StatusLine, RepaintsATextOnce) {
  line->text(0, "Backup of adapter 2");
  EXPECT_GT(inkIn({0, 0, 150, 20}), 50);
  const unsigned long before = x_driver::requestsSent();
  line->text(0, "Backup of adapter 2");
  EXPECT_EQ(x_driver::requestsSent(), before);
  line->text(0, nullptr);
  EXPECT_EQ(inkIn({0, 0, 300, 20}), 0);
}

TEST_F(StatusLine, PassesOverUnknownItems) {
  EXPECT_EQ(line->getItem(7), nullptr);
  line->text(7, "lost");
  line->deleteStatusItem(7);
  line->deleteStatusItem(0);
  EXPECT_EQ(line->getItem(0), nullptr);
}

TEST_F(StatusLine, CutsATextThatIsTooLong) {
  const std::string text(700, 'm');
  line->text(0, text.c_str());
  EXPECT_EQ(line->getItem(0)->text(), std::string(499, 'm'));
  EXPECT_EQ(inkIn({297, 0, 300, 20}), 0) << "drawn over the edge";
}

TEST_F(StatusLine, AlignsItems) {
  new zStatusItemText(line, zStatusItem::alignRight, 1);
  new zStatusItemText(line, zStatusItem::centred, 2);
  line->text(1, "M");
  line->text(2, "M");
  EXPECT_GT(inkIn({170, 0, 192, 20}), 0);
  EXPECT_EQ(inkIn({100, 0, 170, 20}), 0);
  EXPECT_GT(inkIn({235, 0, 260, 20}), 0);
}

TEST_F(StatusLine, ComesToRestWhenTheFormIsResizedFast) {
  for (int i = 0; i < 24; ++i) {
    XResizeWindow(app->display(), XtWindow(form.shell()), static_cast<unsigned>(300 + i * 13 % 90),
                  static_cast<unsigned>(100 + i * 11 % 60));
    XFlush(app->display());
    if (i % 3 == 0) x_driver::handlePending();
  }
  zRect inside;
  EXPECT_TRUE(x_driver::waitUntil([&] { return line->getInterior(inside), inside.right == 329; }));
  x_driver::settle();
  const unsigned long before = x_driver::requestsSent();
  x_driver::settle();
  EXPECT_LT(x_driver::requestsSent(), before + 10);
}

}  // namespace
