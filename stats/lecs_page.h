// Statistics' page of the LAN Emulation configuration server.
#pragma once

#include <memory>

#include "driver/queries.h"
#include "stats/timer_page.h"

class DStatsDlgLECSPG : public StatsPage {
 public:
  DStatsDlgLECSPG(zNotebookDialog* notebook, zPageDef* def, short link);
  ~DStatsDlgLECSPG() override;

  // Returns 1 when it showed statistics or has no query.
  short UpdateDisplay(short link, short unit, bool clear);

 private:
  // Whether the statistics are worth asking for.
  bool takeState(const lecs_state* state);
  void refresh(bool clear) override;

  std::int64_t state_ = -1;  // as it was read last; none yet
  std::unique_ptr<lecsInfo> lecsQuery_;
  StatFields<lecs_stats> fields_;
  myBitmapButton* stateLamp_ = nullptr;
  myBitmapButton* registrationLamp_ = nullptr;
};
