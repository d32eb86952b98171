#include "framework/drawing/bitmap.h"

#include <X11/Xutil.h>
#include <X11/cursorfont.h>

#include <cstdlib>
#include <cstring>
#include <map>

#include "framework/core/app.h"
#include "framework/drawing/color.h"
#include "framework/resources/resources.h"

static_assert(zCursor::arrow == XC_arrow && zCursor::watch == XC_watch);

namespace {

// Offsets in the file images, all little-endian.
constexpr int bmpBitsOffset = 10;  // of a bitmap file: where the pixels start
constexpr int bmpFileHeader = 14;  // its bytes in front of the information header
constexpr int dirHotSpotX = 10;    // of an icon or cursor file: first entry's hot spot
constexpr int dirHotSpotY = 12;
constexpr int dirImageOffset = 18;  // and where its image starts
constexpr int infoSize = 0, infoWidth = 4, infoHeight = 8, infoBitCount = 14, infoColors = 32;

unsigned read16(const unsigned char* p) {
  return static_cast<unsigned>(p[0] | p[1] << 8);
}
std::uint32_t read32(const unsigned char* p) {
  return read16(p) | read16(p + 2) << 16;
}

int rowBytes(int width, int bitsPerPixel) {
  return (width * bitsPerPixel + 31) / 32 * 4;
}

int paletteEntries(const unsigned char* header, int bitsPerPixel) {
  if (bitsPerPixel > 8) return 0;
  const auto used = static_cast<int>(read32(header + infoColors));
  return used ? used : 1 << bitsPerPixel;
}

std::uint32_t rgbOf(const unsigned char* blueGreenRed) {
  return static_cast<std::uint32_t>(blueGreenRed[2] << 16 | blueGreenRed[1] << 8 | blueGreenRed[0]);
}

// The pixel `x` of a row of a bitmap with a palette.
int indexAt(const unsigned char* row, int x, int bitsPerPixel) {
  const int perByte = 8 / bitsPerPixel;
  const int shift = 8 - bitsPerPixel * (x % perByte + 1);
  return row[x / perByte] >> shift & ((1 << bitsPerPixel) - 1);
}

unsigned long pixelOf(std::uint32_t rgb) {
  return ziClrm->pixel({static_cast<std::uint8_t>(rgb >> 16), static_cast<std::uint8_t>(rgb >> 8),
                        static_cast<std::uint8_t>(rgb)});
}

Pixmap toPixmap(const ziPixels& pixels) {
  if (pixels.rgb.empty()) return None;
  Display* display = app->display();
  const int screen = DefaultScreen(display);
  const auto width = static_cast<unsigned>(pixels.size.width);
  const auto height = static_cast<unsigned>(pixels.size.height);
  const auto depth = static_cast<unsigned>(DefaultDepth(display, screen));
  XImage* image = XCreateImage(display, DefaultVisual(display, screen), depth, ZPixmap, 0, nullptr,
                               width, height, 32, 0);
  image->data =
      static_cast<char*>(std::calloc(height, static_cast<std::size_t>(image->bytes_per_line)));
  std::uint32_t last = 0;  // neighbours are often alike
  unsigned long pixel = pixelOf(last);
  for (int y = 0; y < pixels.size.height; ++y) {
    for (int x = 0; x < pixels.size.width; ++x) {
      const std::uint32_t rgb = pixels.at(x, y);
      if (rgb != last) pixel = pixelOf(last = rgb);
      XPutPixel(image, x, y, pixel);
    }
  }
  const Pixmap pixmap = XCreatePixmap(display, DefaultRootWindow(display), width, height, depth);
  XPutImage(display, pixmap, DefaultGC(display, screen), image, 0, 0, 0, 0, width, height);
  XDestroyImage(image);
  return pixmap;
}

// A one-bit image of the pixels for which `isSet` answers true.
template <class IsSet>
Pixmap toBitmap(const zDimension& size, IsSet isSet) {
  const auto stride = static_cast<std::size_t>(size.width + 7) / 8;
  std::vector<char> bits(stride * static_cast<std::size_t>(size.height));
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) {
      if (!isSet(x, y)) continue;
      const std::size_t byte =
          static_cast<std::size_t>(y) * stride + static_cast<std::size_t>(x / 8);
      bits[byte] |= static_cast<char>(1 << x % 8);
    }
  }
  return XCreateBitmapFromData(app->display(), DefaultRootWindow(app->display()), bits.data(),
                               static_cast<unsigned>(size.width),
                               static_cast<unsigned>(size.height));
}

// The picture and the mask of an icon or cursor file's first image.
struct Masked {
  ziPixels picture;
  zDimension size;
  const unsigned char* mask = nullptr;  // set bits are see-through

  bool isOpaque(int x, int y) const {
    const unsigned char* row = mask + (size.height - 1 - y) * rowBytes(size.width, 1);
    return indexAt(row, x, 1) == 0;
  }
};

Masked unpackMasked(const unsigned char* file) {
  const unsigned char* header = file + read32(file + dirImageOffset);
  Masked image;
  image.size = {static_cast<int>(read32(header + infoWidth)),
                static_cast<int>(read32(header + infoHeight)) / 2};
  const auto bitsPerPixel = static_cast<int>(read16(header + infoBitCount));
  const unsigned char* bits =
      header + read32(header + infoSize) + 4 * paletteEntries(header, bitsPerPixel);
  image.picture = ziUnpackDib(header, bits, image.size.height);
  image.mask = bits + rowBytes(image.size.width, bitsPerPixel) * image.size.height;
  return image;
}

const unsigned char* lock(const zResId& id, int kind) {
  return static_cast<const unsigned char*>(ziLockResource(id, kind));
}

}  // namespace

ziPixels ziUnpackDib(const unsigned char* header, const unsigned char* bits, int height) {
  ziPixels pixels;
  const auto width = static_cast<int>(read32(header + infoWidth));
  const auto bitsPerPixel = static_cast<int>(read16(header + infoBitCount));
  const bool known =
      bitsPerPixel == 1 || bitsPerPixel == 4 || bitsPerPixel == 8 || bitsPerPixel == 24;
  if (!known || width <= 0 || height <= 0) return pixels;
  const unsigned char* palette = header + read32(header + infoSize);
  const int entries = paletteEntries(header, bitsPerPixel);
  pixels.size = {width, height};
  pixels.rgb.reserve(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
  for (int y = 0; y < height; ++y) {
    const unsigned char* row = bits + (height - 1 - y) * rowBytes(width, bitsPerPixel);
    for (int x = 0; x < width; ++x) {
      if (bitsPerPixel == 24) {
        pixels.rgb.push_back(rgbOf(row + 3 * x));
        continue;
      }
      const int index = indexAt(row, x, bitsPerPixel);
      pixels.rgb.push_back(index < entries ? rgbOf(palette + 4 * index) : 0);
    }
  }
  return pixels;
}

zBitmap::zBitmap(const zResId& id) {
  const unsigned char* file = lock(id, zResBitmap);
  if (!file) return;
  const unsigned char* header = file + bmpFileHeader;
  const ziPixels pixels = ziUnpackDib(header, file + read32(file + bmpBitsOffset),
                                      static_cast<int>(read32(header + infoHeight)));
  size_ = pixels.size;
  pixmap_ = toPixmap(pixels);
}

zBitmap::~zBitmap() {
  if (pixmap_ != None) XFreePixmap(app->display(), pixmap_);
}

zIcon::zIcon(const zResId& id) {
  const unsigned char* file = lock(id, zResIcon);
  if (!file) return;
  const Masked image = unpackMasked(file);
  size_ = image.size;
  pixmap_ = toPixmap(image.picture);
  mask_ = toBitmap(size_, [&](int x, int y) { return image.isOpaque(x, y); });
}

zIcon::~zIcon() {
  for (const Pixmap pixmap : {pixmap_, mask_}) {
    if (pixmap != None) XFreePixmap(app->display(), pixmap);
  }
}

// A theme's picture of a stock shape takes many requests, so each is made once in a run.
zCursor::zCursor(Stock shape) : cursor_(None) {
  static std::map<Stock, Cursor> made;
  Cursor& cursor = made[shape];
  if (cursor == None) cursor = XCreateFontCursor(app->display(), shape);
  cursor_ = cursor;
}

zCursor::zCursor(const zResId& id) : cursor_(None) {
  const unsigned char* file = lock(id, zResCursor);
  if (!file) return;
  const Masked image = unpackMasked(file);
  const Pixmap shape =
      toBitmap(image.size, [&](int x, int y) { return image.picture.at(x, y) == 0; });
  const Pixmap mask = toBitmap(image.size, [&](int x, int y) { return image.isOpaque(x, y); });
  XColor black{};
  XColor white{};
  white.red = white.green = white.blue = 0xFFFF;
  cursor_ = XCreatePixmapCursor(app->display(), shape, mask, &black, &white,
                                read16(file + dirHotSpotX), read16(file + dirHotSpotY));
  XFreePixmap(app->display(), shape);
  XFreePixmap(app->display(), mask);
}
