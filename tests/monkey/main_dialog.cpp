// The applet with a main dialog that stays open while the monkey plays with it.
#include "shell/main_dialog.h"
#include "framework/core/app.h"
#include "framework/core/errors.h"
#include "framework/resources/resources.h"
#include "tests/monkey/kept_open.h"

namespace {

constexpr int dialogFontWeight = 700;
constexpr int mainDialog = 564;

class KeptMainDlg : public DMainDlg {
 public:
  KeptMainDlg() : DMainDlg(nullptr, zResId(mainDialog)) {}

  int kill(zEvent*) override {
    if (!isKeptOpen(app->display(), XtWindow(shell()))) return 0;
    enableTimer();  // Close has stopped it
    return 1;
  }
};

}  // namespace

void zApp::zAppEntry() {
  debugFlags = zDebugTrace;  // a failed assertion is told in the trace, not in a box
  initIntPack();
  setDefaultDlgFontWeight(dialogFontWeight);
  KeptMainDlg main;
  go();
}
