// Statistics' page of the LAN Emulation servers, one tab each.
#pragma once

#include <memory>

#include "applet/my_tab_ctrl.h"
#include "atm/address.h"
#include "driver/queries.h"
#include "framework/table/table_model.h"
#include "stats/baselines.h"
#include "stats/stats_table.h"
#include "stats/timer_page.h"

// The clients that joined a server.
class LESPGClientTBL : public StatsTable {
 public:
  static constexpr unsigned long columns = 10;

  LESPGClientTBL(zWindow* parent, int id, zTableModel* model, short link);
  // Servers count from 0. Returns 0 if nothing was read.
  short UpdateDisplay(short link, short les, bool clear);

 private:
  struct MacHash {
    std::size_t operator()(const macAddress& mac) const { return myMacHashFunction(mac); }
  };
  using MacBaselines = Baselines<macAddress, MacHash>;

  void writeRow(unsigned long row, short link, const les_tbl& client, bool clear);

  std::unique_ptr<lesInfo> lesQuery_;
  MacBaselines controlDirectTx_;  // by MAC address: a client keeps them when it joins again
  MacBaselines controlDirectRx_;
  MacBaselines multicastSendTx_;
  MacBaselines multicastSendRx_;
};

class DStatsDlgLESPG : public StatsPage {
 public:
  DStatsDlgLESPG(zNotebookDialog* notebook, zPageDef* def, short link);
  ~DStatsDlgLESPG() override;

  // Shows the server's state and identity. Returns 1 if it has any.
  short UpdateDisplay(short link, short les, bool clear);
  int selChangeLesTB(zNotifyEvt* event);

 private:
  void createControls();
  void createTable();
  void takeState(const les_state* state);
  void refresh(bool clear) override;

  short les_ = 0;               // counts from 0
  std::int64_t stateKey_ = -1;  // of the state that was read last; none yet
  bool noService_ = true;
  std::unique_ptr<lesInfo> lesQuery_;
  StatFields<les_stats> fields_;
  myBitmapButton* lamp_ = nullptr;
  myTabCtrl* tabs_ = nullptr;
  zTableSmallModel clientModel_;
  LESPGClientTBL* clientTable_ = nullptr;
};
