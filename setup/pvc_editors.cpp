#include "setup/pvc_editors.h"

#include "atm/transfer_buffers.h"
#include "framework/controls/button.h"
#include "framework/controls/check_box.h"
#include "framework/controls/combo_box.h"
#include "framework/dialogs/dialog_controls.h"
#include "framework/entry/number_edits.h"
#include "framework/entry/string_edit.h"
#include "framework/resources/resources.h"
#include "setup/field_formats.h"

namespace {

constexpr int unitsInMegabits = 0;
constexpr int unitsInCells = 1;

}  // namespace

// What both have in common.

void PvcEditor::makeControls(int addressId, const char* picture, unsigned long style) {
  addressField_ = new zStringEdit(this, addressId, &address_, picture, style);
  vciField_ = new zIntEdit(this, 275, &vci_, "####", 0UL);
  encapGroup_ = std::make_unique<zRadioController>(this, llcButton, nullButton, &encap_);
  encapGroup_->setToDefault();
}

void PvcEditor::makeHidden(int rateLabelId, int rateId, int servicesBlock, int service) {
  auto* services = new zComboBoxStatic(this, 277, &service_);
  services->addStrBlock(zResStrBlock(servicesBlock));
  services->selection(service);
  rateField_ = new zUnsignedIntEdit(this, rateId, &rate_, "####.###",
                                    static_cast<unsigned long>(zFormatter::rawValue));
  unitsButton_ = new zPushButton(this, 280);
  hideControls(this, {276, 277, rateLabelId, rateId, 280});
}

// The rate's field shows less of a number than the record can hold.
void PvcEditor::storeControls() {
  addressField_->storeData();
  vciField_->storeData();
  if (rateField_->hasChanged()) rateField_->storeData();
  encapGroup_->storeData();
}

// IP over ATM.

DIpPvcDLG::DIpPvcDLG(zWindow* parent, const zResId& id) : PvcEditor(parent, id) {
  SetDefaults();
  makeControls(198, ipAddressPicture, shownWhole);
  addressField_->setNotifyChange(this, &DIpPvcDLG::changeARPIPAddressED);
  makeHidden(278, 279, 562, 0);
  unitsButton_->setNotifyClicked(this, &DIpPvcDLG::clickedRateUnitsBTN);
  makeButtons(529, 530);
  centerWindow(1);
  show(1);
}

void DIpPvcDLG::SetDefaults() {
  address_ = pvcXferBuffer.ip.GetFIPAddress();
  vci_ = pvcXferBuffer.vci;
  rate_ = 0;
  encap_ = pvcXferBuffer.Encap == 1 ? llcButton : nullButton;
}

void DIpPvcDLG::StoreDefaults() {
  storeCircuit(pvcXferBuffer);
  pvcXferBuffer.ip = address_.c_str();
}

int DIpPvcDLG::changeARPIPAddressED(zNotifyEvt*) {
  return 0;
}

int DIpPvcDLG::clickedRateUnitsBTN(zNotifyEvt*) {
  UnitsType = UnitsType != unitsInCells ? unitsInCells : unitsInMegabits;
  unitsButton_->text(UnitsType == unitsInCells ? "Cell/s" : "Mb/s");
  return 0;
}

// LAN Emulation.

DLecPvcDLG::DLecPvcDLG(zWindow* parent, const zResId& id) : PvcEditor(parent, id) {
  Setup();
  makeControls(240, macAddressPicture, wholeText);
  broadcastBox_ = new zCheckBox(this, 288, &broadcast_);
  broadcastBox_->setToDefault();
  makeHidden(286, 287, 563, 2);
  unitsButton_->setNotifyClicked(this, &DLecPvcDLG::clickedRateUnitsBTN);
  hideControls(this, {285});
  makeButtons(531, 532);
  centerWindow(1);
  show(1);
  setFocus();
}

void DLecPvcDLG::Setup() {
  address_ = bridgedPvcXferBuffer.mac.GetFMacAddress();
  vci_ = bridgedPvcXferBuffer.vci;
  rate_ = bridgedPvcXferBuffer.Rate;
  encap_ = bridgedPvcXferBuffer.Encap ? llcButton : nullButton;
  broadcast_ = bridgedPvcXferBuffer.Bcast;
}

void DLecPvcDLG::StoreDefaults() {
  storeCircuit(bridgedPvcXferBuffer);
  bridgedPvcXferBuffer.mac = address_.c_str();
  broadcastBox_->storeData();
  bridgedPvcXferBuffer.Bcast = broadcast_;
}

int DLecPvcDLG::clickedRateUnitsBTN(zNotifyEvt*) {
  return 0;
}
