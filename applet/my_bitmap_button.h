// Read-only lamps.
#pragma once

#include "framework/controls/bitmap_button.h"

// A bitmap button that shows a state: disabled, enabled, or enabled and checked. `check(int)` sets
// it; the mouse and the keyboard do nothing.
class myBitmapButton : public zBitmapButton {
 public:
  myBitmapButton(zWindow* parent, int id, std::unique_ptr<zBitmap> bitmap);

  int mouseButtonDown(zMouseClickEvt* event) override;
  int mouseButtonUp(zMouseClickEvt* event) override;
};
