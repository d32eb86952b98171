#include "stats/les_page.h"

#include <cstring>

#include "driver/state_names.h"
#include "foundation/odlog.h"
#include "stats/stat_texts.h"

namespace {

constexpr unsigned long firstRows = 4;  // before the first clients are shown
constexpr std::uint32_t stateOff = 0;
constexpr std::uint32_t stateRunning = 1;

constexpr StatField<les_stats> fieldForms[] = {
    {.id = 148, .text = [](const les_stats& s) { return prefixText(s.address); }},
    {.id = 169, .text = [](const les_stats& s) { return esiSelectorText(s.address); }},
    {.id = 247, .text = [](const les_stats& s) { return prefixText(s.busAddress); }},
    {.id = 248, .text = [](const les_stats& s) { return esiSelectorText(s.busAddress); }},
    {.id = 159, .text = [](const les_stats& s) { return nameText(s.elanName); }},
    {.id = 242, .text = [](const les_stats& s) { return MtuTypeToString(s.mtuType); }},
    {.id = 241, .text = [](const les_stats& s) { return ElanTypeToString(s.elanType); }},
};

macAddress macOf(const les_tbl& client) {
  macAddress mac;
  std::memcpy(mac.bytes, client.macAddress, sizeof mac.bytes);
  return mac;
}

// A change of this is a change of state.
std::int64_t keyOf(const les_state& state) {
  return std::int64_t{state.state} << 4 | state.serving;
}

}  // namespace

// The table.

LESPGClientTBL::LESPGClientTBL(zWindow* parent, int id, zTableModel* shown, short link)
    : StatsTable(parent, id, shown, 559), lesQuery_(makeQuery<lesInfo>(link)) {
  odlog << "creating LES Stats Table" << std::endl;
  measureLabels("99", 4);
  measureColumns({macSample, "Signalling A", circuitSample, countSample, countSample, circuitSample,
                  countSample, countSample, prefixSample, esiSelectorSample});
}

short LESPGClientTBL::UpdateDisplay(short link, short les, bool clear) {
  return showTable(lesQuery_.get(), link, les, [&](unsigned long row, const les_tbl& client) {
    writeRow(row, link, client, clear);
  });
}

void LESPGClientTBL::writeRow(unsigned long row, short link, const les_tbl& client, bool clear) {
  const macAddress mac = macOf(client);
  SetCellText({1, row}, mac.GetFMacAddress());
  SetCellText({2, row}, BusStateToString(static_cast<short>(client.state)));
  writeCircuit(3, row, link, client.controlDirectVci);
  writeCount(4, row, controlDirectTx_.since(mac, client.controlDirectTx, clear));
  writeCount(5, row, controlDirectRx_.since(mac, client.controlDirectRx, clear));
  writeCircuit(6, row, link, client.multicastSendVci);
  writeCount(7, row, multicastSendTx_.since(mac, client.multicastSendTx, clear));
  writeCount(8, row, multicastSendRx_.since(mac, client.multicastSendRx, clear));
  writeAddress(9, row, client.address);
}

// The page.

DStatsDlgLESPG::DStatsDlgLESPG(zNotebookDialog* notebook, zPageDef* def, short link)
    : StatsPage(notebook, def, link),
      lesQuery_(makeQuery<lesInfo>(link)),
      fields_(fieldForms),
      clientModel_(LESPGClientTBL::columns, firstRows) {
  odlog << "creating LES Stats Page" << std::endl;
  createControls();
  createTable();
  showFields();
  tabs_->select(1);
  tabs_->setNotifySelChange(this, &DStatsDlgLESPG::selChangeLesTB);
  Update();
}

DStatsDlgLESPG::~DStatsDlgLESPG() = default;

void DStatsDlgLESPG::createControls() {
  tabs_ = makeTabs<myTabCtrl>(183, maxLess, "%d");
  stretch(tabs_);
  lamp_ = makeLamp(239, 525);
  makeFields(fields_);
}

void DStatsDlgLESPG::createTable() {
  clientTable_ = make<LESPGClientTBL>(246, &clientModel_, link());
  stretch(clientTable_);
}

void DStatsDlgLESPG::refresh(bool clear) {
  if (!UpdateDisplay(link(), les_, clear) || !clientTable_->UpdateDisplay(link(), les_, clear))
    clientTable_->empty();
}

short DStatsDlgLESPG::UpdateDisplay(short link, short les, bool) {
  if (lesQuery_) takeState(lesQuery_->GetState(queryByte(link), queryByte(les)));
  const les_stats* stats = noService_ || !lesQuery_ ? nullptr : lesQuery_->GetStats();
  if (!stats) {
    fields_.blank();
    return 0;
  }
  fields_.show(*stats, false);
  return 1;
}

void DStatsDlgLESPG::takeState(const les_state* state) {
  if (!state) {
    lamp_->setLamp(Lamp::disabled);
    noService_ = true;
    return;
  }
  if (keyOf(*state) == stateKey_) return;
  stateKey_ = keyOf(*state);
  noService_ = state->state == stateOff;
  const bool serves = state->state == stateRunning && state->serving != 0;
  lamp_->setLamp(noService_ ? Lamp::disabled : serves ? Lamp::checked : Lamp::unchecked);
}

int DStatsDlgLESPG::selChangeLesTB(zNotifyEvt*) {
  const auto les = static_cast<short>(tabs_->selectedIndex() - 1);
  if (les >= 0) les_ = les;
  return 0;
}
