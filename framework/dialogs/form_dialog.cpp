#include "framework/dialogs/form_dialog.h"

#include "framework/core/child_window.h"

zFormDialog::zFormDialog(zWindow* parent, const zResId& id, unsigned long style)
    : zDialogFrame(parent, id, style, 0) {
  ziSetType(zTypeFormDialog);
}

void zFormDialog::wireButtons() {
  ok_ = static_cast<zChildWin*>(get(okId));
  cancel_ = static_cast<zChildWin*>(get(cancelId));
  if (ok_) ok_->setCommand(this, &zFormDialog::endOk);
  if (cancel_) cancel_->setCommand(this, &zFormDialog::endCancel);
}

int zFormDialog::show(int visible) {
  if (!ok_ && !cancel_) wireButtons();
  return zDialogFrame::show(visible);
}

int zFormDialog::storeData() {
  completed_ = zDialogFrame::storeData() ? 1 : 0;
  return completed_;
}

void zFormDialog::setControlsToDefault() {
  for (zWindow* kid : kidslist()) {
    if (kid->isA(zTypeChildWin)) static_cast<zChildWin*>(kid)->setToDefault();
  }
}

int zFormDialog::endOk(zEvent*) {
  return storeData() ? ended() : 0;
}

int zFormDialog::endCancel(zEvent*) {
  completed_ = 0;
  return ended();
}

// Told apart before the shutdown: a deleteOnClose dialog is gone behind it.
int zFormDialog::ended() {
  zWindowWatch watch(this);
  shutdown();
  return watch.gone() ? 1 : 0;
}
