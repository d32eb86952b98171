// Setup's page of the LAN Emulation clients, one tab each.
#pragma once

#include <memory>

#include "atm/cell_rate.h"
#include "atm/pvc_records.h"
#include "framework/controls/radio_button.h"
#include "framework/table/table_model.h"
#include "setup/pvc_editors.h"
#include "setup/pvc_page.h"
#include "setup/pvc_table.h"

class lecRequest;
class zCheckBox;
class zEditLine;
class zUnsignedIntEdit;
class zUnsignedLongEdit;

// The circuits of one client.
class LECPGPvcTBL : public PvcTable {
 public:
  static constexpr unsigned long columns = 4;

  LECPGPvcTBL(zWindow* parent, int id, zTableModel* model);
  void Update(short client);
};

class DConfigDlgLECPG : public PvcPage<AtmBridgedPvc, DLecPvcDLG, 566> {
 public:
  DConfigDlgLECPG(zNotebookDialog* notebook, zPageDef* def);
  ~DConfigDlgLECPG() override;

  // Clients count from 0.
  void Setup(short client);
  void setDefaults(short client);
  void storeDefaults(short client);
  short currentTab() const { return currentClient_; }
  void ToggleControls();
  void updatePvcTable() override;

  int selChangeLecTB(zNotifyEvt* event);
  int clickedEnableCB(zNotifyEvt* event);
  int clickedPvcOnlyCB(zNotifyEvt* event);
  int changeDefaultPCRED(zNotifyEvt* event);
  int updateDefaultPCRED(zNotifyEvt* event);
  int selChangeDefPCR_UnitsCBO(zNotifyEvt* event);
  int selChangeElanMTUCBO(zNotifyEvt* event);
  int changeIPMTUSizeED(zNotifyEvt* event);
  int clickedLECSRBGroup(zNotifyEvt* event);
  int selChangePvcTBL();
  void childFocusChange(zWindow* from, zWindow* to) override;

 private:
  void createControls();
  void createRate();
  void createPvcTable();
  void connect();

  std::vector<AtmBridgedPvc>& pvcs() override;
  AtmBridgedPvc& edited() override;
  bool hasDriver() const override { return bdgRequest_ != nullptr; }
  bool addsToDriver(const AtmBridgedPvc& pvc) override;
  bool deletesFromDriver(const AtmBridgedPvc& pvc) override;

  short currentClient_ = 0;
  short newClient_ = 0;
  std::unique_ptr<lecRequest> bdgRequest_;  // null without a session

  int enabled_ = 0;
  int pvcOnly_ = 0;
  int enhancedVc_ = 0;
  std::string macText_;
  std::string elanName_;
  int elanType_ = 0;
  int mtu_ = 0;
  unsigned l3Mtu_ = 0;
  int through_ = 0;  // the id of the radio button that is set
  AddressFields address_;
  CellRateValue defaultPcr_;
  unsigned long rateNumber_ = 0;
  int rateUnit_ = 0;

  zTabCtrl* tabs_ = nullptr;
  zCheckBox* enabledBox_ = nullptr;
  zCheckBox* pvcOnlyBox_ = nullptr;
  zCheckBox* enhancedBox_ = nullptr;
  zUnsignedLongEdit* rateField_ = nullptr;
  ChoiceBox* unitBox_ = nullptr;
  zEditLine* nameField_ = nullptr;
  ChoiceBox* typeBox_ = nullptr;
  ChoiceBox* mtuBox_ = nullptr;
  zUnsignedIntEdit* l3MtuField_ = nullptr;
  std::unique_ptr<zRadioController> throughGroup_;
  zTableSmallModel pvcModel_;
  LECPGPvcTBL* pvcTable_ = nullptr;
};
