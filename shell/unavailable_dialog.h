// A plain form for what this version does not offer yet: it says so, and has an OK button.
#pragma once

#include "framework/dialogs/form_dialog.h"

class DUnavailableDlg : public zFormDialog {
 public:
  // `title` is the string resource that names what is not there; it becomes the caption.
  DUnavailableDlg(zWindow* parent, int title);
};
