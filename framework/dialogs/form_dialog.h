// Dialogs of one page of controls, with an OK and a Cancel button under ids 1 and 2.
#pragma once

#include "framework/dialogs/dialog_frame.h"

class zChildWin;

class zFormDialog : public zDialogFrame {
 public:
  zFormDialog(zWindow* parent, const zResId& id, unsigned long style);

  // The first call puts endOk and endCancel on the controls 1 and 2.
  int show(int visible) override;
  // Checks and stores all enabled controls, all or nothing; notes the outcome in completed().
  int storeData() override;
  // Moves every bound variable into its control.
  void setControlsToDefault();

  // End the dialog with its data stored, if they are valid, or without. 1 when the dialog is gone.
  int endOk(zEvent* event);
  int endCancel(zEvent* event);

  // 1 after a successful storeData.
  int& completed() { return completed_; }

 private:
  int ended();
  void wireButtons();

  zChildWin* ok_ = nullptr;
  zChildWin* cancel_ = nullptr;
  int completed_ = 0;
};
