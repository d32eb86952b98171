// Statistics' page of the board itself: its part in a redundant pair, the alarms of its line and
// its AAL5 and ATM layer counters.
#pragma once

#include <array>
#include <memory>

#include "driver/queries.h"
#include "stats/timer_page.h"

class zStaticText;
class zGroupBox;
class zUnsignedIntEdit;

class DStatsDlgAAL5PG : public StatsPage {
 public:
  DStatsDlgAAL5PG(zNotebookDialog* notebook, zPageDef* def, unsigned short link);
  ~DStatsDlgAAL5PG() override;

  // Returns 1.
  short UpdateDisplay(short link, short unit, bool clear);

 private:
  static constexpr std::size_t alarms = 6;
  struct Alarm {
    myBitmapButton* lamp = nullptr;
    std::int64_t value = -1;  // as it was handled last; none yet
  };

  void createControls();
  void refresh(bool clear) override;
  void showLine(const suni_stats& line);
  void showMedium(std::uint32_t medium);
  void showAlarms(const suni_stats& line);
  void showLinkUp(std::uint32_t up);
  void disableLamps();
  void showBoard(short link);
  void showCounters(bool clear);
  void showFraming(short link);

  std::unique_ptr<aalInfo> aalQuery_;
  bool suniEnabled_ = true;  // the line interface answers, as far as is known
  bool mediaKnown_ = false;
  std::array<Alarm, alarms> alarms_;
  zGroupBox* lineBox_ = nullptr;
  unsigned shownAdapter_ = 99;  // none
  zUnsignedIntEdit* adapterField_ = nullptr;
  std::string type_;
  std::string state_;
  myEdit* typeField_ = nullptr;
  myEdit* stateField_ = nullptr;
  StatFields<aal_stats> counters_;
};
