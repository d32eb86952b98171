#include "framework/layout/dialog_unit.h"

#include "framework/core/app.h"
#include "framework/drawing/display.h"

namespace {

constexpr int sampleLength = sizeof zDialogUnit::averageSample - 1;
static_assert(sampleLength == 52);

// Width of the sample and height, in pixels.
struct FontMeasure {
  int sampleWidth = 0;
  int height = 0;
};

FontMeasure measuringFontMeasure;  // empty until measured, and again after a display was measured

FontMeasure measure(zDisplay* display) {
  if (display) {
    measuringFontMeasure = {};
    const zDimension sample = display->textDimension(zDialogUnit::averageSample);
    return {sample.width, sample.height};
  }
  if (!measuringFontMeasure.height && __zAppXfs) {
    measuringFontMeasure = {XTextWidth(__zAppXfs, zDialogUnit::averageSample, sampleLength),
                            __zAppXfs->ascent + __zAppXfs->descent};
  }
  return measuringFontMeasure;
}

}  // namespace

int zDialogUnit::acrossPixels(int x, int sampleWidth) {
  const int product = x * sampleWidth;
  const int quarters = product / sampleLength + (product % sampleLength > 25 ? 1 : 0) + 1;
  return quarters / 4 + (quarters % 4 > 1 ? 1 : 0);
}

int zDialogUnit::downPixels(int y, int fontHeight) {
  const int eighths = fontHeight * y;
  return eighths / 8 + (eighths % 8 > 3 ? 1 : 0) + y / 3 + y / 6;
}

zDialogUnit::zDialogUnit(int x, int y, zDisplay* display) : zLogMeasure(x, y) {
  const FontMeasure font = measure(display);
  pixelX_ = acrossPixels(x, font.sampleWidth);
  pixelY_ = downPixels(y, font.height);
}

zDialogUnit::zDialogUnit(int x, int y, const zFont* font)
    : zLogMeasure(x, y),
      pixelX_(acrossPixels(x, font->textWidth(averageSample))),
      pixelY_(downPixels(y, font->height())) {}

void zDialogUnit::setLogX(int x, zDisplay* display) {
  logX_ = x;
  pixelX_ = acrossPixels(x, measure(display).sampleWidth);
}

void zDialogUnit::setLogY(int y, zDisplay* display) {
  logY_ = y;
  pixelY_ = downPixels(y, measure(display).height);
}
