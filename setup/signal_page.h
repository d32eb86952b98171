// Setup's page of UNI signalling. A run of signalling that is under way is not changed by it.
#pragma once

#include "setup/setup_page.h"

class zCheckBox;
class zUnsignedIntEdit;

class DConfigDlgSignalPG : public SetupPage {
 public:
  DConfigDlgSignalPG(zNotebookDialog* notebook, zPageDef* def);

  void Setup();
  void setDefaults();
  void storeDefaults();
  void ToggleControls();
  // Shows the VPI that the physical page has been given.
  void showVpi();

  int clickedEnableSigCB(zNotifyEvt* event);
  int clickedEnableAutoConfigCB(zNotifyEvt* event);
  int clickedEnableAddrRegCB(zNotifyEvt* event);

 private:
  int enabled_ = 0;
  int uniRevision_ = 0;
  unsigned vciLow_ = 0;
  unsigned vciMax_ = 0;
  int autoConfig_ = 0;
  int addressRegistration_ = 0;
  std::string prefix_;
  int portChangeDetect_ = 0;
  int nonstandardPrefixes_ = 0;
  zCheckBox* enabledBox_;
  ChoiceBox* uniBox_;
  zUnsignedIntEdit* vpiField_;
  zUnsignedIntEdit* vciLowField_;
  zUnsignedIntEdit* vciMaxField_;
  zCheckBox* autoConfigBox_;
  zCheckBox* registrationBox_;
  zStringEdit* prefixField_;
  zCheckBox* portChangeBox_;
  zCheckBox* nonstandardBox_;
};
