// Setup's page of the LAN Emulation servers, one tab each, with the clients that the configuration
// server sends to each of them.
#pragma once

#include <memory>
#include <span>

#include "atm/address.h"
#include "framework/controls/radio_button.h"
#include "setup/setup_page.h"

class lecsInfo;
class lecsRequest;
class zCheckBox;
class zEditLine;
class zListBoxUnsorted;
struct lecs_tbl;

class DConfigDlgLESPG : public SetupPage {
 public:
  DConfigDlgLESPG(zNotebookDialog* notebook, zPageDef* def);
  ~DConfigDlgLESPG() override;

  // Servers count from 0.
  void Setup(short les);
  void setDefaults(short les);
  void storeDefaults(short les);
  short currentTab() const { return currentLes_; }
  void ToggleControls();
  // Lists the clients of a server: those of the configuration, and those that only the running
  // configuration server knows.
  void UpdateClientLB(short les);

  // Change a mapping in the driver and in the server's list; where the driver does not take it the
  // user is asked about the list. A server below 0 stands for a mapping that is in no list.
  void addClient(const esiSelector& esi, short les);
  void delClient(const esiSelector& esi, short les);

  int clickedEnableCB(zNotifyEvt* event);
  int clickedAddBTN(zNotifyEvt* event);
  int clickedMoveBTN(zNotifyEvt* event);
  int clickedDeleteBTN(zNotifyEvt* event);
  int selChangeLesTB(zNotifyEvt* event);

 private:
  static constexpr short noServer = -1;

  void createControls();
  void createClients();
  bool driverAdds(const esiSelector& esi, short les);
  bool driverDeletes(const esiSelector& esi, short les);
  void aimAt(short les);
  bool changesListAnyway(const std::string& failure);
  esiSelector selectedClient();
  void removeClient(const esiSelector& esi, short les);
  void collectOthers();
  // All that the running configuration server knows; good until the next request.
  std::span<const lecs_tbl> mappings();

  short currentLes_ = 0;
  short newLes_ = 0;
  short clientSel_ = 0;
  std::unique_ptr<lecsInfo> lecsInfoTable_;  // both null without a session
  std::unique_ptr<lecsRequest> lecsControl_;

  int enabled_ = 0;
  std::string elanName_;
  int mtu_ = 0;
  int elanType_ = 0;  // the id of the radio button that is set
  int nameStrict_ = 0;
  int mtuStrict_ = 0;

  zTabCtrl* tabs_ = nullptr;
  zCheckBox* enabledBox_ = nullptr;
  zEditLine* nameField_ = nullptr;
  ChoiceBox* mtuBox_ = nullptr;
  std::unique_ptr<zRadioController> typeGroup_;
  zCheckBox* nameStrictBox_ = nullptr;
  zCheckBox* mtuStrictBox_ = nullptr;
  zListBoxUnsorted* clients_ = nullptr;
};
