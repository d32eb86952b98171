#include "setup/editor_form.h"

#include <X11/keysym.h>

#include <memory>

#include "framework/controls/bitmap_button.h"
#include "framework/drawing/bitmap.h"
#include "framework/resources/resources.h"

void EditorForm::makeButtons(int okBitmap, int cancelBitmap) {
  const auto make = [this](int id, int bitmap, int (EditorForm::*clicked)(zNotifyEvt*)) {
    auto* button = new zBitmapButton(this, id, std::make_unique<zBitmap>(zResId(bitmap)));
    button->setNotifyClicked(this, clicked);
  };
  make(okButton, okBitmap, &EditorForm::clickedOkBTN);
  make(cancelButton, cancelBitmap, &EditorForm::clickedCancelBTN);
}

int EditorForm::clickedOkBTN(zNotifyEvt*) {
  StoreDefaults();
  completed() = 1;
  shutdown();
  return 1;
}

int EditorForm::clickedCancelBTN(zNotifyEvt*) {
  shutdown();
  return 1;
}

int EditorForm::command(zCommandEvt* event) {
  const bool isReturn = event->codeWord == zNtfClicked && event->parm1 == okId;
  return isReturn ? pressButton(okButton) : zFormDialog::command(event);
}

int EditorForm::keyLeft(zKeyEvt* key) {
  const bool plain = !key->shift() && !key->ctrl() && !key->alt();
  return plain && key->code() == XK_Escape && pressButton(cancelButton);
}
