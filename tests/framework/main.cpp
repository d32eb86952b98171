// The tests of the framework: one application object and one root window for all of them.
#include <gtest/gtest.h>

#include "framework/core/app.h"
#include "framework/dialogs/dialog_frame.h"
#include "tests/support/x_driver.h"

namespace {

constexpr unsigned long rootStyle = 0x80CE0000;
int result = 1;

}  // namespace

// Test dialogs stand over app->rootWindow().
void zApp::zAppEntry() {
  initIntPack();
  zDialogFrame root(nullptr, new zSizer(900, 700, 120, 40, nullptr), rootStyle, "Tests", 0);
  root.setFont(std::make_shared<zFont>("Helv", zPrPoint(0, 100), zFontSpec::weightBold), 0);
  if (x_driver::show(root)) result = RUN_ALL_TESTS();
}

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  ZAPPXMprogname = argv[0];
  const auto count = static_cast<unsigned>(argc);
  app = new zApp(count, argv, getCommandLine(count - 1, argv + 1));
  app->zAppEntry();
  delete app;
  return result;
}
