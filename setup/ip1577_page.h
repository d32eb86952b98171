// Setup's page of the classical IP over ATM client (RFC 1577).
#pragma once

#include <memory>

#include "atm/pvc_records.h"
#include "framework/table/table_model.h"
#include "setup/pvc_editors.h"
#include "setup/pvc_page.h"
#include "setup/pvc_table.h"

class ip1577Request;
class zCheckBox;

// The circuits of the client.
class I1577PGPvcTBL : public PvcTable {
 public:
  static constexpr unsigned long columns = 3;

  I1577PGPvcTBL(zWindow* parent, int id, zTableModel* model);
  void Update();
};

class DConfigDlgI1577PG : public PvcPage<AtmRoutedPvc, DIpPvcDLG, 565> {
 public:
  DConfigDlgI1577PG(zNotebookDialog* notebook, zPageDef* def);
  ~DConfigDlgI1577PG() override;

  void Setup();
  void setDefaults();
  void storeDefaults();
  void ToggleControls();
  void updatePvcTable() override;

  int clickedEnableCB(zNotifyEvt* event);
  int clickedPvcOnlyCB(zNotifyEvt* event);
  int clickedEnableServerCB(zNotifyEvt* event);
  int selChangeIP1577TB(zNotifyEvt* event);
  int selChangePvcTBL();

 private:
  void createControls();
  void createPvcTable();

  std::vector<AtmRoutedPvc>& pvcs() override;
  AtmRoutedPvc& edited() override;
  bool hasDriver() const override { return rtdRequest_ != nullptr; }
  bool addsToDriver(const AtmRoutedPvc& pvc) override;
  bool deletesFromDriver(const AtmRoutedPvc& pvc) override;

  std::unique_ptr<ip1577Request> rtdRequest_;  // null without a session

  int enabled_ = 0;
  int pvcOnly_ = 0;
  std::string ipAddress_;
  std::string subnetMask_;
  int isServer_ = 0;  // this client is its own ARP server
  std::string serverAddress_;
  AddressFields address_;

  zTabCtrl* tabs_ = nullptr;
  zCheckBox* enabledBox_ = nullptr;
  zCheckBox* pvcOnlyBox_ = nullptr;
  zStringEdit* ipField_ = nullptr;
  zStringEdit* maskField_ = nullptr;
  zCheckBox* serverBox_ = nullptr;
  zStringEdit* serverField_ = nullptr;
  zTableSmallModel pvcModel_;
  I1577PGPvcTBL* pvcTable_ = nullptr;
};
