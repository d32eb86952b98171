// Labels, and the rectangles and lines that a template draws with statics.
#pragma once

#include "framework/controls/control.h"

class zBitmap;

class zStaticText : public zControl {
 public:
  // The low nibble of the style.
  enum SubStyle {
    left = 0,
    centre = 1,
    right = 2,
    icon = 3,  // the title is '#' and the number of an icon
    blackRect = 4,
    greyRect = 5,
    whiteRect = 6,
    blackFrame = 7,
    greyFrame = 8,
    whiteFrame = 9,
  };

  zStaticText(zWindow* parent, zSizer* sizer, unsigned long style, const char* title, int id);
  zStaticText(zWindow* parent, int id);
  ~zStaticText() override;

 protected:
  void doText(const char* value) override;

 private:
  int subStyle() const { return static_cast<int>(styleValue() & 0xF); }
  void createLabel();
  void createDrawn();
  void showIcon(int number);
  void drawFrame();
  static void redrawCB(Widget widget, XtPointer link, XtPointer callData);
  static void resizeCB(Widget widget, XtPointer link, XtPointer callData);

  std::unique_ptr<zBitmap> picture_;  // of an icon
};
