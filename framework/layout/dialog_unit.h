// Lengths that follow a font: a dialog drawn in them keeps its proportions whatever the font.
#pragma once

#include "framework/core/geometry.h"

class zDisplay;
class zFont;

// A pair of lengths kept both in logical units and in pixels.
class zLogMeasure {
 public:
  zLogMeasure(int x, int y) : logX_(x), logY_(y) {}
  int logX() const { return logX_; }
  int logY() const { return logY_; }

 protected:
  int logX_;
  int logY_;
};

// Across, a unit is a quarter of the average character's width; down, an eighth of the font's
// height and half a pixel more, the measure that the layouts are drawn for.
class zDialogUnit : public zLogMeasure {
 public:
  // In the font selected in `display`; with null in the measuring font.
  zDialogUnit(int x, int y, zDisplay* display);
  zDialogUnit(int x, int y, const zFont* font);

  void setLogX(int x, zDisplay* display);
  void setLogY(int y, zDisplay* display);

  int x() const { return pixelX_; }
  int y() const { return pixelY_; }
  operator zPoint() const { return {pixelX_, pixelY_}; }
  operator zDimension() const { return {pixelX_, pixelY_}; }

  // The arithmetic itself: `sampleWidth` is the width in pixels of averageSample.
  static int acrossPixels(int x, int sampleWidth);
  static int downPixels(int y, int fontHeight);

  // Gives an average character width when measured and divided by its length, 52.
  static constexpr char averageSample[] = "ABCDEFGHIJLKMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";

 private:
  int pixelX_ = 0;
  int pixelY_ = 0;
};
