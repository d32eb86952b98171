// Setup's first page: framing, the VPI and the board's place in a redundant pair. It is the only
// one that a backup board has.
#pragma once

#include "setup/setup_page.h"

class DConfigDlg;
class zCheckBox;
class zUnsignedIntEdit;

class DConfigDlgPhysicalPG : public SetupPage {
 public:
  DConfigDlgPhysicalPG(DConfigDlg* notebook, zPageDef* def);

  void Setup();
  void setDefaults();
  void storeDefaults();

  int updateVpiED(zNotifyEvt* event);
  int selChangeBoardTypeCBO(zNotifyEvt* event);
  int selChangeBBoardCBO(zNotifyEvt* event);
  int selChangeInterruptCBO(zNotifyEvt* event);
  int clickedSonetCB(zNotifyEvt* event);
  int clickedSDHCB(zNotifyEvt* event);

  // Brings what the other pages show of this one up to date.
  void childFocusChange(zWindow* from, zWindow* to) override;

  // The interrupt that the hidden list has selected, -1 for the automatic choice; what it does not
  // offer selects that.
  void SetInterrupt(int number);
  int GetInterrupt();

 private:
  void setFraming(bool isSdh);
  void createControls();
  void createHidden();

  DConfigDlg* notebook_;
  int sonet_ = 0;
  int sdh_ = 0;
  int reassembly_ = 0;
  unsigned vpi_ = 0;
  int boardType_ = 0;    // 0 backup, 1 primary
  int backupIndex_ = 0;  // place in the list of the other adapters, 0 none
  int autoSwitch_ = 0;
  int interrupt_ = 0;
  zCheckBox* sonetBox_ = nullptr;
  zCheckBox* sdhBox_ = nullptr;
  zUnsignedIntEdit* vpiField_ = nullptr;
  ChoiceBox* boardTypeBox_ = nullptr;
  ChoiceBox* backupBox_ = nullptr;
  zCheckBox* autoSwitchBox_ = nullptr;
  ChoiceBox* interruptBox_ = nullptr;
};
