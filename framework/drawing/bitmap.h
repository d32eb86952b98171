// Pictures out of the compiled-in resources: bitmaps, icons and cursors, in the layouts of Windows
// BMP, ICO and CUR files.
#pragma once

#include <X11/Xlib.h>

#include <cstdint>
#include <vector>

#include "framework/core/geometry.h"

class zResId;

// An uncompressed device-independent bitmap of 1, 4, 8 or 24 bits per pixel, unpacked to 0xRRGGBB
// words, top row first.
struct ziPixels {
  zDimension size;
  std::vector<std::uint32_t> rgb;

  std::uint32_t at(int x, int y) const {
    return rgb[static_cast<std::size_t>(y) * static_cast<std::size_t>(size.width) +
               static_cast<std::size_t>(x)];
  }
};

// Unpacks a bitmap whose information header stands at `header` and whose pixels at `bits`;
// `height` is given apart, since an icon's header counts its mask too. Empty for a layout that is
// not one of the above.
ziPixels ziUnpackDib(const unsigned char* header, const unsigned char* bits, int height);

// A picture on the server.
class zBitmap {
 public:
  // From the bitmap resource `id`; without one the bitmap is empty.
  explicit zBitmap(const zResId& id);
  // Takes a pixmap as deep as the screen.
  zBitmap(Pixmap pixmap, const zDimension& size) : size_(size), pixmap_(pixmap) {}
  ~zBitmap();
  zBitmap(const zBitmap&) = delete;
  zBitmap& operator=(const zBitmap&) = delete;

  const zDimension& size() const { return size_; }
  Pixmap pixmap() const { return pixmap_; }  // None when empty

 private:
  zDimension size_;
  Pixmap pixmap_ = None;
};

// A window's icon: a picture and its mask.
class zIcon {
 public:
  explicit zIcon(const zResId& id);
  ~zIcon();
  zIcon(const zIcon&) = delete;
  zIcon& operator=(const zIcon&) = delete;

  const zDimension& size() const { return size_; }
  Pixmap pixmap() const { return pixmap_; }
  Pixmap mask() const { return mask_; }

 private:
  zDimension size_;
  Pixmap pixmap_ = None;
  Pixmap mask_ = None;
};

// A mouse pointer, shared by its copies.
class zCursor {
 public:
  // Numbers of the X cursor font.
  enum Stock : unsigned { arrow = 2, watch = 150 };

  explicit zCursor(Stock shape);
  // From the cursor resource `id`.
  explicit zCursor(const zResId& id);
  Cursor cursor() const { return cursor_; }

 private:
  Cursor cursor_;
};
