#include "framework/drawing/color.h"

#include "framework/core/app.h"

zColorMap* ziClrm = nullptr;

unsigned long zColorMap::pixel(const zColor& color) {
  const std::uint32_t key =
      std::uint32_t{color.red} << 16 | std::uint32_t{color.green} << 8 | color.blue;
  if (const auto known = pixels_.find(key); known != pixels_.end()) return known->second;

  Display* display = app->display();
  const int screen = DefaultScreen(display);
  XColor wanted{};
  wanted.red = static_cast<unsigned short>(color.red * 257);
  wanted.green = static_cast<unsigned short>(color.green * 257);
  wanted.blue = static_cast<unsigned short>(color.blue * 257);
  if (!XAllocColor(display, DefaultColormap(display, screen), &wanted)) {
    const bool light = color.red + color.green + color.blue > 3 * 127;
    wanted.pixel = light ? WhitePixel(display, screen) : BlackPixel(display, screen);
  }
  return pixels_[key] = wanted.pixel;
}
