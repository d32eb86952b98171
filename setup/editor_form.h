// The modal forms in which Setup's pages have an entry edited. Each exchanges its data with the
// page through a buffer of its own; completed() tells the page whether to read it.
#pragma once

#include "framework/dialogs/form_dialog.h"

class EditorForm : public zFormDialog {
 public:
  int clickedOkBTN(zNotifyEvt* event);
  int clickedCancelBTN(zNotifyEvt* event);

  // Return in a field is a click on OK, Escape anywhere one on Cancel.
  int command(zCommandEvt* event) override;
  int keyLeft(zKeyEvt* key) override;

 protected:
  static constexpr int okButton = 283;
  static constexpr int cancelButton = 284;

  EditorForm(zWindow* parent, const zResId& id) : zFormDialog(parent, id, 0) {}

  // Puts the handlers and the pictures of two bitmap resources on the buttons.
  void makeButtons(int okBitmap, int cancelBitmap);

  virtual void StoreDefaults() = 0;
};
