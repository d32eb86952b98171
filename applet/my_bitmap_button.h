// Read-only lamps.
#pragma once

#include "framework/controls/bitmap_button.h"

// What a lamp shows, each by a picture of its own.
enum class Lamp { disabled, unchecked, checked };

// A bitmap button that shows a state. The mouse and the keyboard do nothing.
class myBitmapButton : public zBitmapButton {
 public:
  myBitmapButton(zWindow* parent, int id, std::unique_ptr<zBitmap> bitmap);

  // Draws nothing for the state that it shows already.
  void setLamp(Lamp lamp);
  Lamp lamp() const { return lamp_; }

  int mouseButtonDown(zMouseClickEvt* event) override;
  int mouseButtonUp(zMouseClickEvt* event) override;

 private:
  Lamp lamp_ = Lamp::unchecked;
};
