#include <gtest/gtest.h>

#include "framework/core/app.h"
#include "framework/drawing/color.h"
#include "framework/drawing/font.h"

namespace {

// A pixel reckoned here is the one that the server would give.
TEST(Colors, AreTheServersPixels) {
  Display* display = app->display();
  for (const zColor& color : {zBlack, zWhite, zDialogGrey, zShadowGrey, zColor{255, 0, 0},
                              zColor{0, 255, 0}, zColor{0, 0, 255}, zColor{1, 2, 3}}) {
    XColor asked{};
    asked.red = static_cast<unsigned short>(color.red * 257);
    asked.green = static_cast<unsigned short>(color.green * 257);
    asked.blue = static_cast<unsigned short>(color.blue * 257);
    const Colormap map = DefaultColormap(display, DefaultScreen(display));
    ASSERT_TRUE(XAllocColor(display, map, &asked));
    EXPECT_EQ(zColorMap().pixel(color), asked.pixel)
        << int{color.red} << ' ' << int{color.green} << ' ' << int{color.blue};
  }
}

TEST(Fonts, AreSharedByDescriptionsThatLookAlike) {
  const zFont font("Helv", zPrPoint(0, 120));
  EXPECT_EQ(font.xFont(), zFont("Helv", zPrPoint(0, -120), 500, zFamSwiss).xFont());
  EXPECT_NE(font.xFont(), zFont("Helv", zPrPoint(0, 100)).xFont());
  EXPECT_NE(font.xFont(), zFont("Helv", zPrPoint(0, 120), zFontSpec::weightBold).xFont());
  EXPECT_NE(font.xFont(), zFont("Courier", zPrPoint(0, 120)).xFont());
}

}  // namespace
