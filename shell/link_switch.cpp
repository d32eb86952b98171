// The main dialog's watch over redundant pairs, and the switch of a link between them.
#include <tuple>

#include "applet/run_state.h"
#include "atm/devices.h"
#include "driver/phy_request.h"
#include "foundation/odlog.h"
#include "framework/controls/bitmap_button.h"
#include "framework/controls/status_line.h"
#include "shell/adapter_status.h"
#include "shell/adapter_table.h"
#include "shell/main_dialog.h"

namespace {

// The fields of a board whose change makes the table worth redoing.
auto watchedFields(const AtmPhy& phy) {
  return std::tuple(phy.Framing, phy.VPI, phy.cfgRLPrimary, phy.cfgRLBackup, phy.cfgRLAutoSwitch,
                    phy.RLPrimary, phy.RLBackup, phy.RLAutoSwitch, phy.linkState, phy.activeLink,
                    phy.InterruptNumber);
}

// Whether `number` names another of the boards in the table.
bool isOtherBoard(int number) {
  return number >= 0 && number < adapterRows(atmDevices) && number != currentAdapter;
}

// An active backup whose primary is inactive and can take its link back.
bool canGiveLinkBack(const AtmPhy& phy) {
  return !phy.cfgRLPrimary && isOtherBoard(phy.activeLink) &&
         atmDevices.phy[phy.activeLink].linkState == linkInactive && phy.linkState == linkActive;
}

// A primary with a backup, and not down.
bool canSwitchToBackup(const AtmPhy& phy) {
  return phy.linkState != linkDown && phy.cfgRLPrimary && isOtherBoard(phy.cfgRLBackup);
}

// Which board a switch of the selected adapter is to be sent to, or why there is none.
struct SwitchTarget {
  int board = -1;
  const char* refusal = nullptr;
  int value = 0;  // the number that was no good
};

SwitchTarget switchTarget(const AtmPhy& phy) {
  const int active = phy.activeLink;
  if (!phy.cfgRLPrimary) {
    const bool primary = isAdapter(active) && atmDevices.phy[active].cfgRLPrimary;
    if (primary) return {currentAdapter};
    return {-1, "Primary not found, or bad (", active};
  }
  if (phy.linkState != linkActive) {
    const bool backup = isAdapter(active) && !atmDevices.phy[active].cfgRLPrimary;
    if (backup) return {active};
    return {-1, "Backup not found, or bad (", active};
  }
  if (isAdapter(phy.cfgRLBackup)) return {currentAdapter};
  return {-1, "Backup not specified, or bad (", phy.cfgRLBackup};
}

}  // namespace

int DMainDlg::UpdateDisplay() {
  if (!aalQuery_) return 1;
  for (int board = 0; board < maxAdapters; ++board) {
    if (!BoardIsThere[board]) continue;
    if (rollbackInProgress[board]) {
      odlog << "  NOT getting status for board " << board << " while Rollback In-Progress."
            << std::endl;
      continue;
    }
    AtmPhy& phy = atmDevices.phy[board];
    const auto before = watchedFields(phy);
    const rls_status* status = aalQuery_->GetRLSStatus(static_cast<unsigned char>(board));
    if (!status) {
      odlog << "  GetRLSInfo: returned NULL!!!" << std::endl;
      return 0;
    }
    phy.setLink(status->linkState, status->activeLink);
    if (watchedFields(phy) == before) continue;
    odlog << "  GetRLSInfo: Data Changed." << std::endl;
    table_->Update();
    UpdateActivateBTN();
  }
  return 1;
}

void DMainDlg::UpdateActivateBTN() {
  const AtmPhy& phy = atmDevices.phy[currentAdapter];
  if (canGiveLinkBack(phy) || canSwitchToBackup(phy)) {
    const bool carries = !phy.cfgRLPrimary || phy.linkState == linkActive;
    const char* label = carries ? "De-Activate" : "Activate";
    activate_->text(label);
    activate_->check(carries);
    activate_->show(1);
    odlog << "ActivateBTN: show: " << label << std::endl;
  } else {
    activate_->show(0);
    odlog << "ActivateBTN: hide." << std::endl;
  }
  if (statusItem_) statusItem_->text(phy.boardText2.c_str());
}

int DMainDlg::clickedActivateBTN(zNotifyEvt*) {
  odlog << "In clickedActivateBTN, for Adapter: " << currentAdapter << std::endl;
  phyRequest request(ioctlDesc, static_cast<unsigned short>(currentAdapter), 0);
  odlog << "In clickedActivateBTN, Line: " << __LINE__ << std::endl;
  const SwitchTarget target = switchTarget(atmDevices.phy[currentAdapter]);
  if (target.refusal) {
    odlog << target.refusal << target.value << ")." << std::endl;
    return 0;
  }
  std::uint8_t& inProgress = rollbackInProgress[currentAdapter];
  inProgress = 1;
  request.do_RLS_Switch(static_cast<unsigned short>(target.board));
  inProgress = 0;
  return 0;
}
