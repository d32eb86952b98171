#include "framework/resources/images.h"

#include "framework/resources/resources.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <vector>

namespace {

constexpr unsigned frames = 6;
constexpr std::array<unsigned char, 4> dialogGrey = {192, 192, 192, 0};

unsigned word16(const unsigned char* at) {
  return at[0] | unsigned{at[1]} << 8;
}
unsigned word32(const unsigned char* at) {
  return word16(at) | word16(at + 2) << 16;
}

// A compiled-in bitmap; positions count from the top left pixel, as they are shown.
struct Bitmap {
  explicit Bitmap(const unsigned char* file)
      : data(file), width(word32(file + 18)), height(word32(file + 22)) {}

  unsigned rowBytes() const { return (width * 4 + 31) / 32 * 4; }

  std::array<unsigned char, 4> pixel(unsigned x, unsigned y) const {
    const unsigned char* row = data + word32(data + 10) + (height - 1 - y) * rowBytes();
    const unsigned index = x % 2 == 0 ? row[x / 2] >> 4U : row[x / 2] & 15U;
    const unsigned char* entry = data + 54 + 4 * index;
    return {entry[0], entry[1], entry[2], entry[3]};
  }

  std::vector<std::array<unsigned char, 4>> frame(unsigned number) const {
    std::vector<std::array<unsigned char, 4>> pixels;
    for (unsigned y = 0; y < height; ++y)
      for (unsigned x = 0; x < width / frames; ++x)
        pixels.push_back(pixel(number * width / frames + x, y));
    return pixels;
  }

  const unsigned char* data;
  unsigned width, height;
};

struct BitmapCase {
  std::vector<int> ids;  // all show the same image
  unsigned width, height;
};

const std::vector<BitmapCase> bitmaps = {
    {{500}, 156, 20},
    {{501}, 132, 20},
    {{502}, 108, 20},
    {{503}, 144, 20},
    {{504, 529, 531, 533, 535}, 132, 20},
    {{505}, 1800, 30},
    {{506, 509, 512}, 132, 20},
    {{507, 513}, 144, 20},
    {{508, 511, 514}, 132, 20},
    {{510}, 132, 20},
    {{515, 516, 517}, 132, 20},
    {{518, 519, 520, 521, 522, 523, 524, 525, 526, 527, 528}, 132, 20},
    {{530, 532, 534, 536}, 132, 20},
};

TEST(Images, BitmapsAreSixFramesOfTheirSize) {
  for (const auto& expected : bitmaps) {
    SCOPED_TRACE(expected.ids[0]);
    const unsigned char* data = ziFindImage(expected.ids[0], zResBitmap);
    ASSERT_NE(data, nullptr);
    for (int id : expected.ids) EXPECT_EQ(ziFindImage(id, zResBitmap), data) << id;
    const Bitmap bitmap(data);
    EXPECT_EQ(word16(data), 0x4D42U);
    EXPECT_EQ(bitmap.width, expected.width);
    EXPECT_EQ(bitmap.height, expected.height);
    EXPECT_EQ(word16(data + 28), 4U) << "bits per pixel";
    EXPECT_EQ(word32(data + 30), 0U) << "compression";
    EXPECT_EQ(word32(data + 10), 54U + 16 * 4) << "a palette of 16 colours";
    EXPECT_EQ(word32(data + 2), word32(data + 10) + bitmap.height * bitmap.rowBytes())
        << "file size";
  }
}

TEST(Images, FramesStandOnTheDialogsGrey) {
  for (const auto& expected : bitmaps) {
    const Bitmap bitmap(ziFindImage(expected.ids[0], zResBitmap));
    const unsigned width = bitmap.width / frames;
    for (unsigned left = 0; left < bitmap.width; left += width)
      for (unsigned x : {left, left + width - 1})
        for (unsigned y : {0U, bitmap.height - 1})
          EXPECT_EQ(bitmap.pixel(x, y), dialogGrey) << expected.ids[0] << " at " << x << ", " << y;
  }
}

TEST(Images, StatesLookDifferent) {
  for (const auto& expected : bitmaps) {
    SCOPED_TRACE(expected.ids[0]);
    const Bitmap bitmap(ziFindImage(expected.ids[0], zResBitmap));
    EXPECT_NE(bitmap.frame(0), bitmap.frame(1)) << "off, disabled";
    EXPECT_NE(bitmap.frame(0), bitmap.frame(3)) << "off, depressed";
    EXPECT_NE(bitmap.frame(4), bitmap.frame(5)) << "on, disabled";
    EXPECT_NE(bitmap.frame(4), bitmap.frame(2)) << "on, depressed";
  }
  for (int twoStates : {502, 515, 518}) {
    const Bitmap bitmap(ziFindImage(twoStates, zResBitmap));
    EXPECT_NE(bitmap.frame(0), bitmap.frame(4)) << twoStates;
  }
}

struct IconCase {
  int id, kind;
  unsigned side, bits;
  unsigned first, second;  // planes and bits of an icon, the hot spot of a cursor
};

TEST(Images, IconsAndCursorsAreOneImageWithItsMask) {
  const std::vector<IconCase> cases = {
      {100, zResIcon, 32, 8, 1, 8},       {101, zResIcon, 16, 4, 1, 4},
      {102, zResIcon, 16, 4, 1, 4},       {103, zResIcon, 16, 4, 1, 4},
      {30000, zResCursor, 32, 1, 16, 15}, {30001, zResCursor, 32, 1, 15, 16},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.id);
    const unsigned char* data = ziFindImage(c.id, c.kind);
    ASSERT_NE(data, nullptr);
    EXPECT_EQ(word16(data + 2), c.kind == zResIcon ? 1U : 2U);
    EXPECT_EQ(word16(data + 4), 1U) << "images";
    EXPECT_EQ(data[6], c.side);
    EXPECT_EQ(data[7], c.side);
    EXPECT_EQ(word16(data + 10), c.first);
    EXPECT_EQ(word16(data + 12), c.second);
    const unsigned char* image = data + word32(data + 18);
    EXPECT_EQ(word32(image + 4), c.side);
    EXPECT_EQ(word32(image + 8), 2 * c.side) << "colours and mask";
    EXPECT_EQ(word16(image + 14), c.bits);
    const unsigned colours = 4U << c.bits;
    const unsigned pixels = c.side * ((c.side * c.bits + 31) / 32 + 1) * 4;
    EXPECT_EQ(word32(data + 14), 40 + colours + pixels) << "bytes of the image";
  }
}

TEST(Images, OthersAreNull) {
  for (int id : {499, 537, 100, 30000, 0, -1})
    EXPECT_EQ(ziFindImage(id, zResBitmap), nullptr) << id;
  for (int id : {99, 104, 500}) EXPECT_EQ(ziFindImage(id, zResIcon), nullptr) << id;
  for (int id : {29999, 30002, 100}) EXPECT_EQ(ziFindImage(id, zResCursor), nullptr) << id;
  for (int kind : {0, 4, 5, -1}) EXPECT_EQ(ziFindImage(500, kind), nullptr) << kind;
}

}  // namespace
