#include "shell/main_dialog.h"

#include "framework/controls/edit.h"
#include "framework/controls/static_text.h"

DMainDlg::DMainDlg(zWindow* parent, const zResId& id) : zFormDialog(parent, id, 0) {
  new zStaticText(this, 100);
  new zEditLine(this, 103);
  centerWindow(0);
  show(1);
}
