#include "framework/drawing/color.h"

#include <bit>

#include "framework/core/app.h"

zColorMap* ziClrm = nullptr;

namespace {

// A component on the scale of its bits in a pixel.
unsigned long inBits(std::uint8_t component, unsigned long mask) {
  const int shift = std::countr_zero(mask);
  return (component * (mask >> shift) + 127) / 255 << shift;
}

unsigned long askServer(Display* display, const zColor& color) {
  const int screen = DefaultScreen(display);
  XColor wanted{};
  wanted.red = static_cast<unsigned short>(color.red * 257);
  wanted.green = static_cast<unsigned short>(color.green * 257);
  wanted.blue = static_cast<unsigned short>(color.blue * 257);
  if (XAllocColor(display, DefaultColormap(display, screen), &wanted)) return wanted.pixel;
  const bool light = color.red + color.green + color.blue > 3 * 127;
  return light ? WhitePixel(display, screen) : BlackPixel(display, screen);
}

}  // namespace

unsigned long zColorMap::pixel(const zColor& color) {
  Display* display = app->display();
  const Visual* visual = DefaultVisual(display, DefaultScreen(display));
  if (visual->c_class == TrueColor) {
    return inBits(color.red, visual->red_mask) | inBits(color.green, visual->green_mask) |
           inBits(color.blue, visual->blue_mask);
  }
  const std::uint32_t key =
      std::uint32_t{color.red} << 16 | std::uint32_t{color.green} << 8 | color.blue;
  if (const auto known = pixels_.find(key); known != pixels_.end()) return known->second;
  return pixels_[key] = askServer(display, color);
}
