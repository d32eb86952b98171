#include "setup/lecs_page.h"

#include "atm/transfer_buffers.h"
#include "foundation/odlog.h"
#include "framework/controls/check_box.h"
#include "framework/dialogs/dialog_controls.h"
#include "setup/elan_type.h"

namespace {

const zStatusMessage DConfigDlgLECSPGMsgs[] = {
    {151, "Enable LECS on current Adapter"},
    {184, "Use 'Well Known Address' as LECS Address"},
    {0, nullptr},
};

}  // namespace

DConfigDlgLECSPG::DConfigDlgLECSPG(zNotebookDialog* notebook, zPageDef* def)
    : SetupPage(notebook, def, DConfigDlgLECSPGMsgs) {
  odlog << "creating LECS Config page" << std::endl;
  Setup();
  enabledBox_ = make<zCheckBox>(151, &enabled_);
  wellKnownBox_ = make<zCheckBox>(184, &wellKnown_);
  makeAddress(address_);
  etherBox_ = make<ChoiceBox>(186, 551, &etherMtu_);
  tokenRingBox_ = make<ChoiceBox>(188, 552, &tokenRingMtu_);
  typeGroup_ =
      std::make_unique<zRadioController>(this, ethernetButton, tokenRingButton, &elanType_);
  showFields();
  typeGroup_->setToDefault();
  ToggleControls();
  enabledBox_->setNotifyClicked(this, &DConfigDlgLECSPG::clickedEnableCB);
  wellKnownBox_->setNotifyClicked(this, &DConfigDlgLECSPG::clickedWellKnownAddressCB);
}

// Between the buffer and the fields.

void DConfigDlgLECSPG::Setup() {
  const LECSXferBuffer& buffer = lecsXferBuffer;
  enabled_ = buffer.Enabled;
  address_.prefix = buffer.AtmPrefix;
  address_.esiSelector = buffer.AtmEsiSel;
  etherMtu_ = buffer.EtherMfs;
  tokenRingMtu_ = buffer.TRMfs;
  elanType_ = buttonOfElanType(buffer.ElanType);
}

void DConfigDlgLECSPG::setDefaults() {
  odlog << "Setting LECS Defaults" << std::endl;
  Setup();
  showFields();
  typeGroup_->setToDefault();
}

void DConfigDlgLECSPG::storeDefaults() {
  LECSXferBuffer& buffer = lecsXferBuffer;
  address_.storeData();
  buffer.AtmPrefix = address_.prefix;
  buffer.AtmEsiSel = address_.esiSelector;
  buffer.ElanType = elanTypeOfButton(typeGroup_->current());
  etherBox_->storeData();
  tokenRingBox_->storeData();
  buffer.EtherMfs = buffered(etherMtu_);
  buffer.TRMfs = buffered(tokenRingMtu_);
  buffer.Enabled = buffered(enabledBox_->check());
}

// What can be used.

void DConfigDlgLECSPG::ToggleControls() {
  enableControls(this, {147, 148, 168, 169, 184, 188, 185, 186, 187, 176, 177},
                 enabledBox_->check());
  update();
}

int DConfigDlgLECSPG::clickedEnableCB(zNotifyEvt*) {
  ToggleControls();
  return 0;
}

int DConfigDlgLECSPG::clickedWellKnownAddressCB(zNotifyEvt*) {
  if (wellKnownBox_->check()) {
    address_.showWellKnown();
  } else {
    address_.setToDefault();
  }
  return 0;
}
