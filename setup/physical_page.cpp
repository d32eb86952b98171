#include "setup/physical_page.h"

#include "applet/run_state.h"
#include "atm/transfer_buffers.h"
#include "foundation/odlog.h"
#include "framework/controls/check_box.h"
#include "framework/dialogs/dialog_controls.h"
#include "framework/dialogs/message.h"
#include "framework/entry/number_edits.h"
#include "setup/config_dialog.h"
#include "setup/ip1577_page.h"
#include "setup/lec_page.h"
#include "setup/signal_page.h"

namespace {

const zStatusMessage DConfigDlgPhysicalPGMsgs[] = {
    {126, "Select for automatic \"Switch Back\" to Primary after a fail-over."},
    {0, nullptr},
};

constexpr int backup = 0;  // places in the list of board types
constexpr int primary = 1;
constexpr unsigned highestVpi = 255;

// What a backup board has no use for.
constexpr std::initializer_list<int> primaryOnly = {116, 117, 118, 119, 120, 124, 125, 126};

// The list of backups leaves out the adapter itself, so that those behind it move up by one.
int placeOfBackup(int adapter) {
  if (adapter < 0) return 0;
  return currentAdapter > 0 && currentAdapter < adapter ? adapter - 1 : adapter;
}

int backupOfPlace(int place) {
  if (place == 0) return -1;
  return currentAdapter != 0 && place >= currentAdapter ? place + 1 : place;
}

}  // namespace

DConfigDlgPhysicalPG::DConfigDlgPhysicalPG(DConfigDlg* notebook, zPageDef* def)
    : SetupPage(notebook, def, DConfigDlgPhysicalPGMsgs), notebook_(notebook) {
  odlog << "creating Physical page" << std::endl;
  Setup();
  createControls();
  createHidden();
  if (boardType_ < primary) enableControls(this, primaryOnly, false);
}

void DConfigDlgPhysicalPG::createControls() {
  sonetBox_ = make<zCheckBox>(114, &sonet_);
  sdhBox_ = make<zCheckBox>(115, &sdh_);
  make<ChoiceBox>(117, 541, &reassembly_)->del(1);
  vpiField_ = make<zUnsignedIntEdit>(120, &vpi_, "###", zFormatter::required);
  boardTypeBox_ = make<ChoiceBox>(123, 542, &boardType_);
  backupBox_ = make<ChoiceBox>(125, 543, &backupIndex_);
  if (currentAdapter > 0) backupBox_->del(currentAdapter);
  autoSwitchBox_ = make<zCheckBox>(126, &autoSwitch_);
  showFields();
  sonetBox_->setNotifyClicked(this, &DConfigDlgPhysicalPG::clickedSonetCB);
  sdhBox_->setNotifyClicked(this, &DConfigDlgPhysicalPG::clickedSDHCB);
  vpiField_->setNotifyChange(this, &DConfigDlgPhysicalPG::updateVpiED);
  boardTypeBox_->setNotifySelChange(this, &DConfigDlgPhysicalPG::selChangeBoardTypeCBO);
  backupBox_->setNotifySelChange(this, &DConfigDlgPhysicalPG::selChangeBBoardCBO);
}

// For boards with a label and an interrupt to choose, which no driver has had yet.
void DConfigDlgPhysicalPG::createHidden() {
  interruptBox_ = make<ChoiceBox>(132, 544, &interrupt_);
  interruptBox_->setNotifySelChange(this, &DConfigDlgPhysicalPG::selChangeInterruptCBO);
  hideControls(this, {128, 127, 130, 131, 129, 133, 132});
}

// Between the buffer and the fields.

void DConfigDlgPhysicalPG::Setup() {
  const PhyXferBuffer& buffer = phyXferBuffer;
  sdh_ = buffer.Framing ? 1 : 0;
  sonet_ = buffer.Framing ? 0 : 1;
  BoardVPI = vpi_ = static_cast<unsigned>(buffer.VPI);
  boardType_ = buffer.RLPrimary;
  backupIndex_ = boardType_ > 0 ? placeOfBackup(buffer.RLBackup) : 0;
  autoSwitch_ = boardType_ > 0 ? buffer.RLAutoSwitch : 0;
}

void DConfigDlgPhysicalPG::setDefaults() {
  odlog << "PhysicalPG: Setting Defaults" << std::endl;
  Setup();
  showFields();
}

void DConfigDlgPhysicalPG::storeDefaults() {
  sonetBox_->storeData();
  sdhBox_->storeData();
  vpiField_->storeData();
  phyXferBuffer.Framing = sdh_;
  phyXferBuffer.VPI = static_cast<std::int32_t>(vpi_);
  backupBox_->storeData();
  boardTypeBox_->storeData();
  autoSwitchBox_->storeData();
  interruptBox_->storeData();
  phyXferBuffer.RLBackup = backupOfPlace(backupIndex_);
  phyXferBuffer.RLPrimary = boardType_;
  phyXferBuffer.RLAutoSwitch = autoSwitch_;
}

// Handlers.

int DConfigDlgPhysicalPG::updateVpiED(zNotifyEvt*) {
  vpiField_->storeData();
  if (vpi_ > highestVpi) {
    odlog << "updateVpiED: _VpiED (>255) == " << vpi_ << std::endl;
    vpiField_->text(std::to_string(BoardVPI));
  } else {
    BoardVPI = vpi_;
  }
  return 0;
}

void DConfigDlgPhysicalPG::setFraming(bool isSdh) {
  sonetBox_->check(!isSdh);
  sdhBox_->check(isSdh);
}

int DConfigDlgPhysicalPG::clickedSonetCB(zNotifyEvt*) {
  setFraming(false);
  return 0;
}

int DConfigDlgPhysicalPG::clickedSDHCB(zNotifyEvt*) {
  setFraming(true);
  return 0;
}

int DConfigDlgPhysicalPG::selChangeBoardTypeCBO(zNotifyEvt*) {
  const int selected = boardTypeBox_->selection();
  odlog << "selChangeBoardTypeCBO: selection == " << selected << std::endl;
  if (selected == primary) {
    enableControls(this, primaryOnly, true);
  } else if (selected != backup) {
    odlog << "???? " << std::endl;
  } else if (currentAdapter != 0) {
    enableControls(this, primaryOnly, false);
  } else {
    zMessage(this, "Not Allowed!\nAdapter 1 may NOT be a Backup.", "Restriction", 0x30);
    boardTypeBox_->selection(primary);
  }
  return 0;
}

int DConfigDlgPhysicalPG::selChangeBBoardCBO(zNotifyEvt*) {
  odlog << "BBoardCBO selection == " << backupBox_->selection() << std::endl;
  return 0;
}

int DConfigDlgPhysicalPG::selChangeInterruptCBO(zNotifyEvt*) {
  return 0;
}

void DConfigDlgPhysicalPG::childFocusChange(zWindow*, zWindow*) {
  odlog << "In DConfigDlgPhysicalPG::childFocusChange" << std::endl;
  if (DConfigDlgSignalPG* signalling = notebook_->signalPage()) signalling->showVpi();
  if (DConfigDlgLECPG* clients = notebook_->lecPage()) clients->updatePvcTable();
  if (DConfigDlgI1577PG* ip = notebook_->ip1577Page()) ip->updatePvcTable();
}

// The interrupt.

void DConfigDlgPhysicalPG::SetInterrupt(int number) {
  int item = 0;
  if (number >= 3 && number <= 5) item = number - 2;
  if (number >= 9 && number <= 15) item = number - 5;
  interruptBox_->selection(item);
}

int DConfigDlgPhysicalPG::GetInterrupt() {
  const int selected = interruptBox_->selection();
  int number = -1;
  if (selected >= 1) number = selected <= 3 ? selected + 2 : selected + 5;
  odlog << "Intr. Num: " << number << " <-- selection: " << selected << std::endl;
  return number;
}
