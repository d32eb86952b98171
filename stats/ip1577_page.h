// Statistics' page of classical IP over ATM (RFC 1577).
#pragma once

#include <memory>

#include "applet/my_tab_ctrl.h"
#include "driver/queries.h"
#include "framework/table/table_model.h"
#include "stats/baselines.h"
#include "stats/stats_table.h"
#include "stats/timer_page.h"

// The connections of the IP client.
class IP1577PGConnectionTBL : public StatsTable {
 public:
  static constexpr unsigned long columns = 7;

  IP1577PGConnectionTBL(zWindow* parent, int id, zTableModel* model, short link);
  // Returns 0 if nothing was read.
  short UpdateDisplay(short link, short unit, bool clear);

 private:
  void writeRow(unsigned long row, short link, const ip_tbl& connection, bool clear);

  std::unique_ptr<ip1577Info> ipQuery_;
  Baselines<std::uint16_t> tx_;  // by VCI
  Baselines<std::uint16_t> rx_;
};

class DStatsDlgIP1577PG : public StatsPage {
 public:
  DStatsDlgIP1577PG(zNotebookDialog* notebook, zPageDef* def, short link);
  ~DStatsDlgIP1577PG() override;

  // Returns 1 when it showed statistics or has no query.
  short UpdateDisplay(short link, short unit, bool clear);

 private:
  void createControls();
  void createTable();
  void takeState(const ip_state* state);
  void refresh(bool clear) override;

  std::int64_t state_ = -1;  // as it was read last; none yet
  bool noService_ = true;
  std::unique_ptr<ip1577Info> ipQuery_;
  StatFields<ip_stats> counters_;
  myBitmapButton* lamp_ = nullptr;
  myTabCtrl* tabs_ = nullptr;
  zTableSmallModel connectionModel_;
  IP1577PGConnectionTBL* connectionTable_ = nullptr;
};
