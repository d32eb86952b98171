#include "applet/my_bitmap_button.h"

myBitmapButton::myBitmapButton(zWindow* parent, int id, std::unique_ptr<zBitmap> bitmap)
    : zBitmapButton(parent, id, std::move(bitmap)) {
  removeHandler(this, &myBitmapButton::ziXmKeybindNP, zMsgKeyDown);
  removeHandler(this, &myBitmapButton::ziXmKeybindNP, zMsgKeyUp);
  setCtrlStyle(ctrlStyle() | ziVisBmpButtonInternal::showsOn | ziVisBmpButtonInternal::noShadeMask);
}

int myBitmapButton::mouseButtonDown(zMouseClickEvt*) {
  return 1;
}

int myBitmapButton::mouseButtonUp(zMouseClickEvt*) {
  return 1;
}
