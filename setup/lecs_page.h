// Setup's page of the LAN Emulation configuration server.
#pragma once

#include <memory>

#include "framework/controls/radio_button.h"
#include "setup/setup_page.h"

class zCheckBox;

class DConfigDlgLECSPG : public SetupPage {
 public:
  DConfigDlgLECSPG(zNotebookDialog* notebook, zPageDef* def);

  void Setup();
  void setDefaults();
  void storeDefaults();
  void ToggleControls();

  int clickedEnableCB(zNotifyEvt* event);
  int clickedWellKnownAddressCB(zNotifyEvt* event);

 private:
  int enabled_ = 0;
  int wellKnown_ = 0;  // of the page alone: the address is what counts
  AddressFields address_;
  int etherMtu_ = 0;
  int tokenRingMtu_ = 0;
  int elanType_ = 0;  // the id of the radio button that is set

  zCheckBox* enabledBox_;
  zCheckBox* wellKnownBox_;
  ChoiceBox* etherBox_;
  ChoiceBox* tokenRingBox_;
  std::unique_ptr<zRadioController> typeGroup_;
};
