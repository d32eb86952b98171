// Statistics' page of the LAN Emulation clients, one tab each.
#pragma once

#include <array>
#include <memory>

#include "applet/my_tab_ctrl.h"
#include "atm/limits.h"
#include "driver/queries.h"
#include "framework/table/table_model.h"
#include "stats/baselines.h"
#include "stats/stats_table.h"
#include "stats/timer_page.h"

// A client's circuits to its server and to the broadcast server.
class LECPGLES_BUSTBL : public StatsTable {
 public:
  static constexpr unsigned long columns = 5;
  static constexpr unsigned long rows = 4;

  LECPGLES_BUSTBL(zWindow* parent, int id, zTableModel* model, short link);
  // Clients count from 0. Returns 0 if nothing was read.
  short UpdateDisplay(short link, short lec, bool clear);

 private:
  struct Counts {
    std::uint32_t tx = 0;
    std::uint32_t rx = 0;
  };
  void writeRow(unsigned long row, short link, std::uint16_t vci, const std::uint8_t* address);
  void writeCounts(const lec_stats& stats, short lec, bool clear);

  std::unique_ptr<lecInfo> lecQuery_;
  std::unique_ptr<vccInfo> vcInfo_;
  std::array<std::array<Counts, rows>, maxLecs> baselines_{};
  short shownLec_ = 0;
};

// A client's data-direct connections to other clients.
class LECPGLECTBL : public StatsTable {
 public:
  static constexpr unsigned long columns = 6;

  LECPGLECTBL(zWindow* parent, int id, zTableModel* model, short link);
  // As the other table's.
  short UpdateDisplay(short link, short lec, bool clear);

 private:
  void writeRow(unsigned long row, short link, const lec_tbl_t& connection, bool clear);

  std::unique_ptr<lecInfo> lecQuery_;
  Baselines<std::uint16_t> tx_;  // by VCI, whichever client has it
  Baselines<std::uint16_t> rx_;
};

class DStatsDlgLECPG : public StatsPage {
 public:
  // How much of a client's service there is.
  enum Level : short { levelNone = 0, levelJoining = 1, levelOperational = 2 };

  DStatsDlgLECPG(zNotebookDialog* notebook, zPageDef* def, short link);
  ~DStatsDlgLECPG() override;

  // Shows the client's state and identity, and returns its level.
  short UpdateDisplay(short link, short lec);
  int selChangeLecTB(zNotifyEvt* event);

 private:
  void createControls();
  void createTables();
  void layOutTables();
  void takeState(const lec_state* state);
  void refresh(bool clear) override;

  short lec_ = 0;            // counts from 0
  std::int64_t state_ = -1;  // as it was read last; none yet
  Level level_ = levelNone;
  std::unique_ptr<lecInfo> lecQuery_;
  StatFields<lec_stats> fields_;
  myBitmapButton* lamp_ = nullptr;
  myTabCtrl* tabs_ = nullptr;
  zTableSmallModel lesBusModel_{LECPGLES_BUSTBL::columns, LECPGLES_BUSTBL::rows};
  zTableSmallModel clientModel_;
  LECPGLES_BUSTBL* lesBusTable_ = nullptr;
  LECPGLECTBL* clientTable_ = nullptr;
};
