// What the main dialog's buttons and its table do.
#include "applet/run_state.h"
#include "foundation/odlog.h"
#include "framework/controls/bitmap_button.h"
#include "framework/core/app.h"
#include "framework/dialogs/message.h"
#include "shell/adapter_table.h"
#include "shell/global_dialog.h"
#include "shell/main_dialog.h"
#include "stats/stats_dialog.h"

namespace {

constexpr unsigned noticeStyle = 48;

}  // namespace

void DMainDlg::noticeBox(const char* boxCaption, const char* text) {
  zMessage(this, text, boxCaption, noticeStyle);
}

int DMainDlg::clickedStatsBTN(zNotifyEvt*) {
  new DStatsDlg(this, static_cast<unsigned short>(currentAdapter));
  return 0;
}

int DMainDlg::clickedGlobalBTN(zNotifyEvt*) {
  disableTimer();
  DGlobalDlg(this).modal();
  enableTimer();
  return 0;
}

int DMainDlg::clickedCloseBTN(zNotifyEvt*) {
  disableTimer();
  if (redundancyChanged) {
    noticeBox("Redundancy Configuration Change",
              "ATM Redundancy parameters changed!\nYou will need to reboot your system.");
  }
  completed() = 1;
  shutdown();
  app->quit();
  return 0;
}

int DMainDlg::clickedBrennwickLogoBTN(zNotifyEvt*) {
  return 0;
}

int DMainDlg::doubleClickAdapterInfoTBL(zNotifyEvt* event) {
  return clickedSetupBTN(event);
}

int DMainDlg::selChangeAdapterInfoTBL() {
  const zTableLoc cell = table_->getActiveCell();
  currentAdapter = static_cast<std::int32_t>(cell.y) - 1;
  if (cell.x < MainDlgAdapterInfoTBL::columnHidden) {
    table_->setActiveCell({MainDlgAdapterInfoTBL::columnHidden, cell.y});
  }
  odlog << "currentAdapter <-- " << currentAdapter << std::endl;
  if (currentAdapter < 0) currentAdapter = 0;
  if (currentAdapter >= maxAdapters) {
    currentAdapter = maxAdapters - 1;
    odlog << "  [currentAdapter] <-- " << currentAdapter << std::endl;
  }
  table_->SelectRow(static_cast<unsigned long>(currentAdapter) + 1);
  if (BoardIsThere[currentAdapter]) {
    stats_->enable();
  } else {
    stats_->disable();
    stats_->update();
  }
  SetDlgTitle();
  UpdateActivateBTN();
  return 0;
}

int DMainDlg::activate(zActivateEvt* event) {
  odlog << (event->active() ? "Main Dialog activated." : "Main Dialog de-activated.") << std::endl;
  return 0;
}
