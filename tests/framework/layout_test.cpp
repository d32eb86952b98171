// Sizers and dialog units: arithmetic without a widget.
#include <gtest/gtest.h>

#include <memory>

#include "framework/layout/dialog_unit.h"
#include "framework/layout/sizer.h"

namespace {

TEST(DialogUnit, RoundsAcrossAsTheLayoutsWereDrawnFor) {
  constexpr struct {
    int x, sampleWidth, pixels;
  } cases[] = {
      {0, 390, 0},  // t 0, u 1
      {1, 390, 2},  // 390/52 = 7 rest 26: t 8, u 9, 2 rest 1
      {4, 364, 7},  // 28 exactly, u 29, 7 rest 1
      {3, 364, 6},  // 21, u 22, 5 rest 2 goes up
      {286, 364, 501},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(zDialogUnit::acrossPixels(c.x, c.sampleWidth), c.pixels)
        << c.x << " " << c.sampleWidth;
  }
}

TEST(DialogUnit, AddsHalfAPixelForEachUnitDown) {
  EXPECT_EQ(zDialogUnit::downPixels(6, 12), 12);  // 9, and 2, and 1
  EXPECT_EQ(zDialogUnit::downPixels(0, 12), 0);
  EXPECT_EQ(zDialogUnit::downPixels(1, 12), 2);  // 12/8 is 1 rest 4, which goes up
  EXPECT_EQ(zDialogUnit::downPixels(5, 15), 10);
}

class Sizers : public testing::Test {
 protected:
  zSizer* strip(zGrav gravity, int extent) { return new zGravSizer(gravity, extent, &root_); }
  void layOut(int width, int height) {
    const zRect area(0, 0, width, height);
    root_.update(&area);
  }

  zSizer root_{nullptr};
};

TEST_F(Sizers, ShareOutStripsInTheOrderTheyWereMade) {
  zSizer* bottom = strip(zGravBottom, 10);
  zSizer* left = strip(zGravLeft, 20);
  zSizer* top = strip(zGravTop, 5);
  zSizer* right = strip(zGravRight, 30);
  zSizer* rest = strip(zGravAll, 0);
  zSizer* late = strip(zGravBottom, 7);
  layOut(200, 100);
  EXPECT_EQ(bottom->rect(), zRect(0, 90, 200, 100));
  EXPECT_EQ(left->rect(), zRect(0, 0, 20, 90));
  EXPECT_EQ(top->rect(), zRect(20, 0, 200, 5));
  EXPECT_EQ(right->rect(), zRect(170, 5, 200, 90));
  EXPECT_EQ(rest->rect(), zRect(20, 5, 170, 90));
  EXPECT_TRUE(late->rect().isEmpty());  // nothing was left for it
}

TEST_F(Sizers, LeaveAloneWhatHasNoGravity) {
  auto* fixed = new zSizer(11, 12, 13, 14, &root_);
  zSizer* all = strip(zGravAll, 0);
  layOut(50, 60);
  EXPECT_EQ(fixed->rect(), zRect(11, 12, 24, 26));
  EXPECT_EQ(all->rect(), zRect(0, 0, 50, 60));
}

TEST_F(Sizers, AnswerWithWhatTheyWereBuiltWith) {
  const zGravSizer asked(zGravTop, 17, &root_);
  zReqGeom request;
  asked.reqArea(request);
  EXPECT_EQ(request.dimension, (zDimension{0, 17}));
  EXPECT_EQ(request.affinity, zGravTop);
  zNormalLayout layout;
  strip(zGravLeft, 30);
  EXPECT_EQ(layout.request(root_.children()), (zDimension{30, 17}));
}

TEST_F(Sizers, ReplaceKeepsThePlaceInTheOrder) {
  zSizer* first = strip(zGravTop, 10);
  strip(zGravTop, 20);
  auto* below = new zGravSizer(zGravBottom, 4, first);
  auto* other = new zGravSizer(zGravTop, 15, nullptr);
  first->replace(other);
  ASSERT_EQ(root_.children().front(), other);
  delete first;
  layOut(100, 100);
  EXPECT_EQ(other->rect(), zRect(0, 0, 100, 15));
  EXPECT_EQ(below->rect(), zRect(0, 11, 100, 15));
  EXPECT_EQ(root_.children().back()->rect(), zRect(0, 15, 100, 35));
}

TEST_F(Sizers, ExpandWithTheirParent) {
  zExpandLayout layout;
  root_.layout(&layout);
  using E = zExpandSizer;
  auto* list = new E(E::stretchAcross | E::stretchDown, &root_);
  auto* button = new E(E::holdRight | E::holdBottom, &root_);
  list->pos({5, 5});
  list->dimension({90, 60});
  button->pos({70, 80});
  button->dimension({25, 15});
  layOut(100, 100);
  layOut(130, 110);
  EXPECT_EQ(list->rect(), zRect(5, 5, 125, 75));
  EXPECT_EQ(button->rect(), zRect(100, 90, 125, 105));
  layOut(100, 100);
  EXPECT_EQ(list->rect(), zRect(5, 5, 95, 65));
}

}  // namespace
