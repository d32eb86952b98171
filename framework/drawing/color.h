// Colours, and the cache that turns them into pixels of the screen.
#pragma once

#include <X11/Xlib.h>

#include <cstdint>
#include <unordered_map>

struct zColor {
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;
  friend bool operator==(const zColor&, const zColor&) = default;
};

constexpr zColor zBlack{0, 0, 0};
constexpr zColor zWhite{255, 255, 255};
constexpr zColor zDialogGrey{192, 192, 192};
constexpr zColor zShadowGrey{128, 128, 128};

// Where pixels are made of their components, as on nearly every screen, a pixel is reckoned here.
// Elsewhere the server is asked once for each colour; one that it refuses gives the nearer of black
// and white. A colour asked for twice gives the same pixel.
class zColorMap {
 public:
  unsigned long pixel(const zColor& color);

 private:
  std::unordered_map<std::uint32_t, unsigned long> pixels_;
};

// The process's colour cache, made by the application object.
extern zColorMap* ziClrm;
