#include "shell/unavailable_dialog.h"

#include "framework/controls/button.h"
#include "framework/controls/static_text.h"
#include "framework/resources/resources.h"

namespace {

constexpr int unavailableDialog = 584;

}  // namespace

DUnavailableDlg::DUnavailableDlg(zWindow* parent, int title)
    : zFormDialog(parent, zResId(unavailableDialog), 0) {
  const std::string name = zResId(title).loadStr();
  caption(name);
  (new zStaticText(this, 100))->text(name + ": not part of this version yet.");
  (new zPushButton(this, okId))->setFocus();
  centerWindow(1);
  show(1);
}
