#include "applet/my_bitmap_button.h"

myBitmapButton::myBitmapButton(zWindow* parent, int id, std::unique_ptr<zBitmap> bitmap)
    : zBitmapButton(parent, id, std::move(bitmap)) {
  removeHandler(this, &myBitmapButton::ziXmKeybindNP, zMsgKeyDown);
  removeHandler(this, &myBitmapButton::ziXmKeybindNP, zMsgKeyUp);
  setCtrlStyle(ctrlStyle() | ziVisBmpButtonInternal::showsOn | ziVisBmpButtonInternal::noShadeMask);
}

// What changes while it is disabled is not seen, so that each change is drawn once.
void myBitmapButton::setLamp(Lamp lamp) {
  if (lamp == lamp_) return;
  lamp_ = lamp;
  if (lamp == Lamp::disabled) disable();
  check(lamp == Lamp::checked);
  if (lamp != Lamp::disabled) enable();
}

int myBitmapButton::mouseButtonDown(zMouseClickEvt*) {
  return 1;
}

int myBitmapButton::mouseButtonUp(zMouseClickEvt*) {
  return 1;
}
