#pragma once
#include "framework/dialogs/form_dialog.h"
class DMainDlg : public zFormDialog {
 public:
  DMainDlg(zWindow* parent, const zResId& id);
};
