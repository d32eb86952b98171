#include "stats/lec_page.h"

#include "atm/address.h"
#include "driver/state_names.h"
#include "foundation/odlog.h"
#include "stats/stat_texts.h"

namespace {

constexpr unsigned long firstRows = 20;  // before the first connections are shown
constexpr std::uint32_t stateOff = 0;
constexpr std::uint32_t stateJoining = 1;
constexpr std::uint32_t stateOperational = 6;

const zStatusMessage DStatsDlgLECPGMsgs[] = {
    {243, "LES/BUS Connections"},
    {244, "LEC Connections"},
    {0, nullptr},
};

constexpr StatField<lec_stats> fieldForms[] = {
    {.id = 148, .text = [](const lec_stats& s) { return prefixText(s.address); }},
    {.id = 169, .text = [](const lec_stats& s) { return esiSelectorText(s.address); }},
    {.id = 159, .text = [](const lec_stats& s) { return nameText(s.elanName); }},
    {.id = 240, .text = [](const lec_stats& s) { return macText(s.macAddress); }},
    {.id = 242, .text = [](const lec_stats& s) { return MtuTypeToString(s.mtuType); }},
    {.id = 241, .text = [](const lec_stats& s) { return ElanTypeToString(s.elanType); }},
};

// A circuit of the LES and BUS table, in the order of its rows.
struct CircuitForm {
  std::uint16_t lec_stats::*vci;
  std::uint8_t (lec_stats::*address)[atmAddressBytes];
};
constexpr CircuitForm circuitForms[LECPGLES_BUSTBL::rows] = {
    {&lec_stats::controlDirectVci, &lec_stats::controlDirectAddress},
    {&lec_stats::controlDistributeVci, &lec_stats::controlDistributeAddress},
    {&lec_stats::multicastSendVci, &lec_stats::multicastSendAddress},
    {&lec_stats::multicastForwardVci, &lec_stats::multicastForwardAddress},
};

// Pixels: so little that the rows of the upper table are seen together with large fonts, too.
constexpr int rowPadding = 2;

// Pixels, for the font that tables have now.
int lesBusHeight() {
  const int size = tblFontSpec.pointSize();
  odlog << "Table Point Size == " << size << std::endl;
  const int points = (size ? size : 120) / 10;
  return 5 * (11 * points / 10) + 69;
}

}  // namespace

// The table of the circuits to the servers.

LECPGLES_BUSTBL::LECPGLES_BUSTBL(zWindow* parent, int id, zTableModel* shown, short link)
    : StatsTable(parent, id, shown, 557, 556),
      lecQuery_(makeQuery<lecInfo>(link)),
      vcInfo_(makeQuery<vccInfo>(link)) {
  measureLabels("Multicast Send", 4);
  setRowHeight(1, rows, static_cast<unsigned>(getFont()->height() + rowPadding));
  measureColumns({circuitSample, countSample, countSample, prefixSample, esiSelectorSample});
}

short LECPGLES_BUSTBL::UpdateDisplay(short link, short lec, bool clear) {
  if (!lecQuery_) return 0;
  const lec_stats* stats = lecQuery_->GetStats(queryByte(link), queryByte(lec));
  if (!stats) return 0;
  if (lec != shownLec_) empty();
  shownLec_ = lec;
  setRowCount(rows);
  for (unsigned long row = 1; row <= rows; ++row) {
    const CircuitForm& form = circuitForms[row - 1];
    writeRow(row, link, stats->*form.vci, stats->*form.address);
  }
  writeCounts(*stats, lec, clear);
  model()->updateAllViews();
  return 1;
}

// A circuit that is not there shows nothing of the one before it.
void LECPGLES_BUSTBL::writeRow(unsigned long row, short link, std::uint16_t vci,
                               const std::uint8_t* address) {
  if (vci == 0) {
    for (unsigned long column = 1; column <= columns; ++column) SetCellText({column, row}, "");
    return;
  }
  writeCircuit(1, row, link, vci);
  writeAddress(4, row, address);
}

void LECPGLES_BUSTBL::writeCounts(const lec_stats& stats, short lec, bool clear) {
  if (!vcInfo_ || !vcInfo_->GetEntireTable()) return;
  for (unsigned long row = 1; row <= rows; ++row) {
    const std::uint16_t vci = stats.*circuitForms[row - 1].vci;
    const vc_tbl* entry = vci ? vcInfo_->GetVciEntry(vci) : nullptr;
    if (!entry) continue;
    Counts& baseline = baselines_[static_cast<std::size_t>(lec)][row - 1];
    if (clear) baseline = {entry->counterOut, entry->counterIn};
    writeCount(2, row, entry->counterOut - baseline.tx);
    writeCount(3, row, entry->counterIn - baseline.rx);
  }
}

// The table of the connections.

LECPGLECTBL::LECPGLECTBL(zWindow* parent, int id, zTableModel* shown, short link)
    : StatsTable(parent, id, shown, 558), lecQuery_(makeQuery<lecInfo>(link)) {
  odlog << "creating LEC Stats Table" << std::endl;
  measureLabels("99", 4);
  measureColumns(
      {macSample, circuitSample, countSample, countSample, prefixSample, esiSelectorSample});
}

short LECPGLECTBL::UpdateDisplay(short link, short lec, bool clear) {
  return showTable(lecQuery_.get(), link, lec, [&](unsigned long row, const lec_tbl_t& connection) {
    writeRow(row, link, connection, clear);
  });
}

void LECPGLECTBL::writeRow(unsigned long row, short link, const lec_tbl_t& connection, bool clear) {
  SetCellText({1, row}, macText(connection.macAddress));
  writeCircuit(2, row, link, connection.vci);
  writeCount(3, row, tx_.since(connection.vci, connection.txPackets, clear));
  writeCount(4, row, rx_.since(connection.vci, connection.rxPackets, clear));
  writeFarEnd(5, row, connection.connectionKind, connection.address);
}

// The page.

DStatsDlgLECPG::DStatsDlgLECPG(zNotebookDialog* notebook, zPageDef* def, short link)
    : StatsPage(notebook, def, link, DStatsDlgLECPGMsgs),
      lecQuery_(makeQuery<lecInfo>(link)),
      fields_(fieldForms),
      clientModel_(LECPGLECTBL::columns, firstRows) {
  odlog << "creating LEC Stats page" << std::endl;
  createControls();
  createTables();
  showFields();
  tabs_->select(1);
  tabs_->setNotifySelChange(this, &DStatsDlgLECPG::selChangeLecTB);
  Update();
}

DStatsDlgLECPG::~DStatsDlgLECPG() = default;

void DStatsDlgLECPG::createControls() {
  tabs_ = makeTabs<myTabCtrl>(175, maxLecs, "%d");
  stretch(tabs_);
  lamp_ = makeLamp(239, 524);
  makeFields(fields_);
}

void DStatsDlgLECPG::createTables() {
  lesBusTable_ = make<LECPGLES_BUSTBL>(243, &lesBusModel_, link());
  clientTable_ = make<LECPGLECTBL>(244, &clientModel_, link());
  layOutTables();
}

void DStatsDlgLECPG::refresh(bool clear) {
  const short level = UpdateDisplay(link(), lec_);
  if (level == levelNone || !clientTable_->UpdateDisplay(link(), lec_, clear))
    clientTable_->empty();
  if (level != levelOperational || !lesBusTable_->UpdateDisplay(link(), lec_, clear))
    lesBusTable_->empty();
}

short DStatsDlgLECPG::UpdateDisplay(short link, short lec) {
  if (!lecQuery_) return level_;
  takeState(lecQuery_->GetState(queryByte(link), queryByte(lec)));
  const lec_stats* stats = level_ == levelNone ? nullptr : lecQuery_->GetStats();
  if (stats) {
    fields_.show(*stats, false);
  } else {
    fields_.blank();
  }
  return level_;
}

void DStatsDlgLECPG::takeState(const lec_state* state) {
  if (!state) {
    lamp_->setLamp(Lamp::disabled);
    level_ = levelNone;
    return;
  }
  if (state->state == state_) return;
  state_ = state->state;
  if (state->state == stateOff) {
    lamp_->setLamp(Lamp::disabled);
    level_ = levelNone;
  } else if (state->state == stateOperational) {
    lamp_->setLamp(Lamp::checked);
    level_ = levelOperational;
  } else {
    const bool isReady = state->state == stateJoining && state->ready != 0;
    lamp_->setLamp(isReady ? Lamp::checked : Lamp::unchecked);
    level_ = levelJoining;
  }
}

// Both share an area of the page: the upper one takes what its rows need in the tables' font, the
// lower one the rest.
void DStatsDlgLECPG::layOutTables() {
  const zRect upper = lesBusTable_->sizer()->rect();
  const zRect lower = clientTable_->sizer()->rect();
  auto* area = new zExpandSizer(stretching, sizer());
  area->pos(upper.pos());
  area->dimension({upper.width(), lower.bottom - upper.top});
  area->limits(area->dimension(), {zExpandSizer::noLimit, zExpandSizer::noLimit});
  const auto move = [area](zWindow* table, zGrav gravity, int height) {
    auto* place = new zGravSizer(gravity, height, nullptr);
    table->sizer()->replace(place);
    area->append(place);
  };
  move(lesBusTable_, zGravTop, lesBusHeight());
  new zGravSizer(zGravTop, lower.top - upper.bottom, area);
  move(clientTable_, zGravAll, 0);
}

int DStatsDlgLECPG::selChangeLecTB(zNotifyEvt*) {
  const auto lec = static_cast<short>(tabs_->selectedIndex() - 1);
  if (lec < 0 || lec == lec_) return 0;
  lec_ = lec;
  clientTable_->setDirty(nullptr, 1);
  lesBusTable_->setDirty(nullptr, 1);
  return 0;
}
