#include "stats/lecs_page.h"

#include "driver/state_names.h"
#include "foundation/odlog.h"
#include "stats/stat_texts.h"

namespace {

constexpr std::uint32_t stateOff = 0;
constexpr std::uint32_t stateOperational = 4;

const zStatusMessage DStatsDlgLECSPGMsgs[] = {
    {252, "LECS Registration"},
    {0, nullptr},
};

constexpr StatField<lecs_stats> fieldForms[] = {
    {.id = 148, .text = [](const lecs_stats& s) { return prefixText(s.address); }},
    {.id = 169, .text = [](const lecs_stats& s) { return esiSelectorText(s.address); }},
    {.id = 250, .text = [](const lecs_stats& s) { return MtuTypeToString(s.etherMtuType); }},
    {.id = 251, .text = [](const lecs_stats& s) { return MtuTypeToString(s.tokenRingMtuType); }},
    {.id = 241, .text = [](const lecs_stats& s) { return ElanTypeToString(s.elanType); }},
    {.id = 253, .count = [](const lecs_stats& s) { return s.validRequests; }},
    {.id = 254, .count = [](const lecs_stats& s) { return s.invalidRequests; }},
    {.id = 255, .count = [](const lecs_stats& s) { return s.rejectedRequests; }},
    {.id = 256, .count = [](const lecs_stats& s) { return s.connectionsMade; }},
    {.id = 257, .count = [](const lecs_stats& s) { return s.connectionsOpen; }},
};

}  // namespace

DStatsDlgLECSPG::DStatsDlgLECSPG(zNotebookDialog* notebook, zPageDef* def, short link)
    : StatsPage(notebook, def, link, DStatsDlgLECSPGMsgs),
      lecsQuery_(makeQuery<lecsInfo>(link)),
      fields_(fieldForms) {
  odlog << "creating LECS Stats Page" << std::endl;
  stateLamp_ = makeLamp(239, 526);
  registrationLamp_ = makeLamp(252, 527);
  makeFields(fields_);
  showFields();
  Update();
}

DStatsDlgLECSPG::~DStatsDlgLECSPG() = default;

void DStatsDlgLECSPG::refresh(bool clear) {
  UpdateDisplay(link(), 0, clear);
}

short DStatsDlgLECSPG::UpdateDisplay(short link, short unit, bool clear) {
  if (!lecsQuery_) return 1;
  const bool asks = takeState(lecsQuery_->GetState(queryByte(link), queryByte(unit)));
  const lecs_stats* stats = asks ? lecsQuery_->GetStats() : nullptr;
  if (!stats) {
    registrationLamp_->setLamp(Lamp::disabled);
    fields_.blank();
    return 0;
  }
  registrationLamp_->setLamp(stats->registered ? Lamp::checked : Lamp::unchecked);
  fields_.show(*stats, clear);
  return 1;
}

// A server that stays off is asked all the same: only the moment it goes off blanks the page.
bool DStatsDlgLECSPG::takeState(const lecs_state* state) {
  if (!state) {
    stateLamp_->setLamp(Lamp::disabled);
    return false;
  }
  if (state->state == state_) return true;
  state_ = state->state;
  if (state->state == stateOff) {
    stateLamp_->setLamp(Lamp::disabled);
    return false;
  }
  stateLamp_->setLamp(state->state == stateOperational ? Lamp::checked : Lamp::unchecked);
  return true;
}
