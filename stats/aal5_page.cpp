#include "stats/aal5_page.h"

#include "atm/devices.h"
#include "driver/value_words.h"
#include "foundation/odlog.h"
#include "framework/controls/group_box.h"
#include "framework/controls/static_text.h"
#include "framework/dialogs/dialog_controls.h"
#include "framework/entry/number_edits.h"

namespace {

constexpr std::uint32_t medium25 = 1;

constexpr StatField<aal_stats> counterForms[] = {
    {.id = 214, .count = [](const aal_stats& s) { return s.rxPackets; }},
    {.id = 215, .count = [](const aal_stats& s) { return s.rxCells; }},
    {.id = 216, .count = [](const aal_stats& s) { return s.txPackets; }},
    {.id = 217, .count = [](const aal_stats& s) { return s.txCells; }},
    {.id = 231, .count = [](const aal_stats& s) { return s.rxDropped; }},
    {.id = 233, .count = [](const aal_stats& s) { return s.txDropped; }},
    {.id = 232, .count = [](const aal_stats& s) { return sumOf(s.rxFrameErrors); }},
    {.id = 237, .count = [](const aal_stats& s) { return sumOf(s.rxCellErrors); }},
    {.id = 235, .count = [](const aal_stats& s) { return s.invalidVpis; }},
    {.id = 236, .count = [](const aal_stats& s) { return s.invalidVcis; }},
};

// What a lamp follows, and whether a value of it is good. A loss of frame takes FERF and LOP with
// it.
struct AlarmForm {
  int lamp;
  int bitmap;
  std::uint32_t (*value)(const suni_stats&);
  bool (*isGood)(std::uint32_t);
};

constexpr bool isClear(std::uint32_t value) {
  return value == 0;
}
constexpr bool isSet(std::uint32_t value) {
  return value == 1;
}

constexpr AlarmForm alarmForms[] = {
    {225, 518, [](const suni_stats& s) { return s.los; }, isClear},
    {227, 520, [](const suni_stats& s) { return s.oof; }, isClear},
    {226, 519, [](const suni_stats& s) { return s.lof; }, isClear},
    {228, 521, [](const suni_stats& s) -> std::uint32_t { return !s.ferf && !s.lof; }, isSet},
    {229, 522, [](const suni_stats& s) { return s.ais; }, isClear},
    {230, 523, [](const suni_stats& s) -> std::uint32_t { return !s.lop && !s.lof; }, isSet},
};
constexpr std::size_t losAlarm = 0;  // the lamp of a 25 Mb/s interface, too

const char* titleOf(std::uint32_t medium) {
  constexpr const char* titles[] = {"25 Mb/s", "OC3c MM", "OC3c SM", "155 UTP"};
  return medium >= 1 && medium <= std::size(titles) ? titles[medium - 1] : "Unknown";
}

}  // namespace

DStatsDlgAAL5PG::DStatsDlgAAL5PG(zNotebookDialog* notebook, zPageDef* def, unsigned short link)
    : StatsPage(notebook, def, static_cast<short>(link)),
      aalQuery_(makeQuery<aalInfo>(static_cast<short>(link))),
      counters_(counterForms) {
  odlog << "creating AAL5 Stats page" << std::endl;
  createControls();
  Update();
}

DStatsDlgAAL5PG::~DStatsDlgAAL5PG() = default;

void DStatsDlgAAL5PG::createControls() {
  typeField_ = make<myEdit>(210, &type_);
  stateField_ = make<myEdit>(213, &state_);
  makeFields(counters_);
  lineBox_ = make<zGroupBox>(218);
  for (const int label : {219, 220, 221, 222, 223, 224}) make<zStaticText>(label);
  for (std::size_t i = 0; i < alarms; ++i)
    alarms_[i].lamp = makeLamp(alarmForms[i].lamp, alarmForms[i].bitmap);
  showFields();
  adapterField_ = make<zUnsignedIntEdit>(212, &shownAdapter_, "##", 0UL);
}

void DStatsDlgAAL5PG::refresh(bool clear) {
  UpdateDisplay(link(), 0, clear);
}

short DStatsDlgAAL5PG::UpdateDisplay(short link, short, bool clear) {
  if (aalQuery_) {
    if (suniEnabled_) {
      if (const suni_stats* line = aalQuery_->GetSuniStats()) showLine(*line);
    }
    showBoard(link);
    showCounters(clear);
  }
  showFraming(link);
  return 1;
}

// The line interface.

void DStatsDlgAAL5PG::showLine(const suni_stats& line) {
  if (!mediaKnown_) showMedium(line.medium);
  if (line.medium == medium25) {
    showLinkUp(line.linkUp);
    return;
  }
  if (line.answers == 0) {
    disableLamps();
    suniEnabled_ = false;
    return;
  }
  showAlarms(line);
}

void DStatsDlgAAL5PG::showMedium(std::uint32_t medium) {
  mediaKnown_ = true;
  lineBox_->text(titleOf(medium));
  if (medium != medium25) return;
  hideControls(this, {226, 227, 228, 229, 230, 220, 221, 222, 223, 224});
  static_cast<zStaticText*>(get(219))->text("Link Up");
}

void DStatsDlgAAL5PG::showAlarms(const suni_stats& line) {
  for (std::size_t i = 0; i < alarms; ++i) {
    const std::uint32_t value = alarmForms[i].value(line);
    if (value == alarms_[i].value) continue;
    alarms_[i].value = value;
    alarms_[i].lamp->setLamp(alarmForms[i].isGood(value) ? Lamp::checked : Lamp::unchecked);
  }
}

void DStatsDlgAAL5PG::showLinkUp(std::uint32_t up) {
  Alarm& los = alarms_[losAlarm];
  if (up == los.value) return;
  disableLamps();
  los.value = up;
  los.lamp->setLamp(up ? Lamp::checked : Lamp::unchecked);
}

void DStatsDlgAAL5PG::disableLamps() {
  for (const Alarm& alarm : alarms_) alarm.lamp->setLamp(Lamp::disabled);
}

// The board.

void DStatsDlgAAL5PG::showBoard(short link) {
  const AtmPhy& board = atmDevices.phy[link];
  typeField_->showText(board.RLPrimary ? "Primary" : "Backup");
  if (board.linkState < std::size(words::linkStateTexts))
    stateField_->showText(words::linkStateTexts[board.linkState]);
  const auto number = static_cast<unsigned>(link) + 1;
  if (number == shownAdapter_) return;
  shownAdapter_ = number;
  adapterField_->setToDefault();
}

void DStatsDlgAAL5PG::showCounters(bool clear) {
  if (const aal_stats* stats = aalQuery_->GetAalStats()) counters_.show(*stats, clear);
}

// Until the line interface tells its medium, the box is titled by what is configured.
void DStatsDlgAAL5PG::showFraming(short link) {
  if (!mediaKnown_) lineBox_->text(atmDevices.phy[link].Framing ? "SDH" : "Sonet");
}
