#include "setup/signal_page.h"

#include "atm/transfer_buffers.h"
#include "foundation/odlog.h"
#include "framework/controls/check_box.h"
#include "framework/dialogs/dialog_controls.h"
#include "framework/entry/number_edits.h"
#include "setup/field_formats.h"

namespace {

const zStatusMessage DConfigDlgSignalPGMsgs[] = {
    {135, "Enable Signalling for this adapter"},
    {146, "Enable Registration with Switch"},
    {149, "Only disable for compatablity with some Switches"},
    {0, nullptr},
};

}  // namespace

DConfigDlgSignalPG::DConfigDlgSignalPG(zNotebookDialog* notebook, zPageDef* def)
    : SetupPage(notebook, def, DConfigDlgSignalPGMsgs) {
  odlog << "creating Signalling Config page" << std::endl;
  Setup();
  enabledBox_ = make<zCheckBox>(135, &enabled_);
  uniBox_ = make<ChoiceBox>(137, 545, &uniRevision_);
  vpiField_ = make<zUnsignedIntEdit>(120, &BoardVPI, "###", 0UL);
  vciLowField_ = make<zUnsignedIntEdit>(141, &vciLow_, "####", 0UL);
  vciMaxField_ = make<zUnsignedIntEdit>(143, &vciMax_, "####", 0UL);
  autoConfigBox_ = make<zCheckBox>(145, &autoConfig_);
  registrationBox_ = make<zCheckBox>(146, &addressRegistration_);
  prefixField_ = make<zStringEdit>(148, &prefix_, networkPrefixPicture, wholeDigits);
  portChangeBox_ = make<zCheckBox>(149, &portChangeDetect_);
  nonstandardBox_ = make<zCheckBox>(150, &nonstandardPrefixes_);
  showFields();
  ToggleControls();
  enabledBox_->setNotifyClicked(this, &DConfigDlgSignalPG::clickedEnableSigCB);
  autoConfigBox_->setNotifyClicked(this, &DConfigDlgSignalPG::clickedEnableAutoConfigCB);
  registrationBox_->setNotifyClicked(this, &DConfigDlgSignalPG::clickedEnableAddrRegCB);
}

// Between the buffer and the fields.

void DConfigDlgSignalPG::Setup() {
  const SigXferBuffer& buffer = sigXferBuffer;
  enabled_ = buffer.Enabled;
  uniRevision_ = buffer.UniRev;
  vciLow_ = static_cast<unsigned>(buffer.VciLow);
  vciMax_ = static_cast<unsigned>(buffer.VciMax);
  autoConfig_ = buffer.IlmiEnableAutoConfig;
  addressRegistration_ = buffer.AddressRegistration;
  prefix_ = buffer.NetPrefix;
  portChangeDetect_ = buffer.PortChangeDetect;
  nonstandardPrefixes_ = buffer.RegDiffNetPrefix;
}

void DConfigDlgSignalPG::setDefaults() {
  odlog << "SignalPG: Setting Defaults" << std::endl;
  Setup();
  showFields();
}

void DConfigDlgSignalPG::storeDefaults() {
  SigXferBuffer& buffer = sigXferBuffer;
  buffer.Enabled = buffered(enabledBox_->check());
  uniBox_->storeData();
  buffer.UniRev = buffered(uniRevision_);
  vciLowField_->storeData();
  vciMaxField_->storeData();
  buffer.VciLow = static_cast<std::int32_t>(vciLow_);
  buffer.VciMax = static_cast<std::int32_t>(vciMax_);
  buffer.IlmiEnableAutoConfig = buffered(autoConfigBox_->check());
  buffer.AddressRegistration = buffered(registrationBox_->check());
  prefixField_->storeData();
  buffer.NetPrefix = prefix_;
  buffer.PortChangeDetect = buffered(portChangeBox_->check());
  buffer.RegDiffNetPrefix = buffered(nonstandardBox_->check());
}

void DConfigDlgSignalPG::showVpi() {
  vpiField_->text(std::to_string(BoardVPI));
  vpiField_->setDirty(nullptr, 0);
  vpiField_->update();
}

// What can be used.

void DConfigDlgSignalPG::ToggleControls() {
  const bool on = enabledBox_->check();
  const bool registers = registrationBox_->check();
  enableControls(this, {135}, true);
  enableControls(this, {144, 145, 146, 136, 138, 139, 120, 140, 141, 142, 143}, on);
  enableControls(this, {137}, on && !autoConfigBox_->check());
  enableControls(this, {147, 148}, on && !registers);
  enableControls(this, {149, 150}, on && registers);
  update();
}

int DConfigDlgSignalPG::clickedEnableSigCB(zNotifyEvt*) {
  ToggleControls();
  return 0;
}

int DConfigDlgSignalPG::clickedEnableAutoConfigCB(zNotifyEvt*) {
  ToggleControls();
  return 0;
}

int DConfigDlgSignalPG::clickedEnableAddrRegCB(zNotifyEvt*) {
  ToggleControls();
  return 0;
}
