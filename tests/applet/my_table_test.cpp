// The base of the applet's tables.
#include <gtest/gtest.h>  // first: X has macros with names that it uses

#include "applet/my_table.h"
#include "framework/core/app.h"
#include "framework/dialogs/dialog_frame.h"
#include "tests/support/x_driver.h"

namespace {

TEST(MyTable, ARefreshThatChangesNothingDrawsNothing) {
  zTableSmallModel model(3, 4);
  zDialogFrame dialog(app->rootWindow(), new zSizer(100, 100, 240, 240, nullptr), 0x80C80000,
                      "Table", 0);
  (new zTable(&dialog, new zSizer(10, 10, 204, 150, nullptr), 0x50010000, "", 101))->show(1);
  auto* table = new myTable(&dialog, 101, &model);
  const auto refresh = [&](const char* status) {
    for (unsigned long row = 1; row <= 4; ++row) table->SetCellText({1, row}, status);
    model.updateAllViews();
    x_driver::handlePending();
  };
  refresh("up");
  ASSERT_TRUE(x_driver::show(dialog));
  x_driver::settle();

  const unsigned long before = x_driver::requestsSent();
  refresh("up");
  EXPECT_EQ(x_driver::requestsSent(), before);
  refresh("down");
  EXPECT_GT(x_driver::requestsSent(), before);
  EXPECT_EQ(model.getCell({1, 4})->getText(), "down");
  table->SetCellText({4, 1}, "outside");
  table->SetCellText({1, 1}, nullptr);
  EXPECT_EQ(model.getCell({1, 1})->getText(), "");
}

}  // namespace
