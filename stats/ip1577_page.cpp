#include "stats/ip1577_page.h"

#include "driver/state_names.h"
#include "foundation/odlog.h"
#include "stats/stat_texts.h"

namespace {

constexpr unsigned long firstRows = 10;  // before the first connections are shown
constexpr std::uint32_t stateOff = 0;
constexpr std::uint32_t stateOperational = 5;

constexpr char ipSample[] = "000.000.000.000";
constexpr char widestState[] = "Waiting for InARP response";

constexpr StatField<ip_stats> counterForms[] = {
    {.id = 214,
     .count = [](const ip_stats& s) { return sumOf(s.received) + s.receivedOther; },
     .isSigned = true},
    {.id = 216, .count = [](const ip_stats& s) { return sumOf(s.transmitted); }, .isSigned = true},
    {.id = 231, .count = [](const ip_stats& s) { return sumOf(s.rxDropped); }, .isSigned = true},
    {.id = 233, .count = [](const ip_stats& s) { return sumOf(s.txDropped); }, .isSigned = true},
};

}  // namespace

// The table.

IP1577PGConnectionTBL::IP1577PGConnectionTBL(zWindow* parent, int id, zTableModel* shown,
                                             short link)
    : StatsTable(parent, id, shown, 560), ipQuery_(makeQuery<ip1577Info>(link)) {
  measureLabels("99", 4);
  measureColumns({ipSample, circuitSample, widestState, countSample, countSample, prefixSample,
                  esiSelectorSample});
}

short IP1577PGConnectionTBL::UpdateDisplay(short link, short unit, bool clear) {
  return showTable(ipQuery_.get(), link, unit, [&](unsigned long row, const ip_tbl& connection) {
    writeRow(row, link, connection, clear);
  });
}

void IP1577PGConnectionTBL::writeRow(unsigned long row, short link, const ip_tbl& connection,
                                     bool clear) {
  SetCellText({1, row}, ipText(connection.ipAddress));
  writeCircuit(2, row, link, connection.vci);
  SetCellText({3, row}, LmacStateToString(static_cast<short>(connection.state)));
  writeCount(4, row, tx_.since(connection.vci, connection.txPackets, clear));
  writeCount(5, row, rx_.since(connection.vci, connection.rxPackets, clear));
  writeFarEnd(6, row, connection.connectionKind, connection.address);
}

// The page.

DStatsDlgIP1577PG::DStatsDlgIP1577PG(zNotebookDialog* notebook, zPageDef* def, short link)
    : StatsPage(notebook, def, link),
      ipQuery_(makeQuery<ip1577Info>(link)),
      counters_(counterForms),
      connectionModel_(IP1577PGConnectionTBL::columns, firstRows) {
  odlog << "creating 1577 Stats page" << std::endl;
  createControls();
  createTable();
  showFields();
  tabs_->select(1);
  Update();
}

DStatsDlgIP1577PG::~DStatsDlgIP1577PG() = default;

void DStatsDlgIP1577PG::createControls() {
  tabs_ = makeTabs<myTabCtrl>(260, 1, "Client %d");
  stretch(tabs_);
  lamp_ = makeLamp(239, 528);
  makeFields(counters_);
}

void DStatsDlgIP1577PG::createTable() {
  connectionTable_ = make<IP1577PGConnectionTBL>(259, &connectionModel_, link());
  stretch(connectionTable_);
}

void DStatsDlgIP1577PG::refresh(bool clear) {
  if (!UpdateDisplay(link(), 0, clear) || !connectionTable_->UpdateDisplay(link(), 0, clear))
    connectionTable_->empty();
}

short DStatsDlgIP1577PG::UpdateDisplay(short link, short unit, bool clear) {
  if (!ipQuery_) return 1;
  takeState(ipQuery_->GetState(queryByte(link), queryByte(unit)));
  const ip_stats* stats = noService_ ? nullptr : ipQuery_->GetStats();
  if (!stats) {
    counters_.blank();
    return 0;
  }
  counters_.show(*stats, clear);
  return 1;
}

void DStatsDlgIP1577PG::takeState(const ip_state* state) {
  if (!state) {
    lamp_->setLamp(Lamp::disabled);
    noService_ = true;
    return;
  }
  if (state->state == state_) return;
  state_ = state->state;
  noService_ = state->state == stateOff;
  const bool isUp = state->state == stateOperational;
  lamp_->setLamp(noService_ ? Lamp::disabled : isUp ? Lamp::checked : Lamp::unchecked);
}
