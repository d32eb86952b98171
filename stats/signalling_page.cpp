#include "stats/signalling_page.h"

#include "driver/state_names.h"
#include "foundation/odlog.h"
#include "stats/stat_texts.h"

namespace {

constexpr std::uint16_t ilmiVci = 16;
constexpr std::uint16_t signallingVci = 5;
constexpr std::uint16_t vciOfRow[SignallingPGSigStatsTBL::rows] = {ilmiVci, signallingVci};
constexpr unsigned short rowsAsked = 16;

constexpr int labelPadding = 8;     // pixels
constexpr int prefixLength = 30;    // characters that could be entered
constexpr int selectorLength = 13;  // the same

// A layer of the stack, from the bottom up.
struct LayerForm {
  int lamp;
  int bitmap;
  int stateField;
  std::uint8_t sig_link_state::*state;
  unsigned (*color)(unsigned char);
  const char* (*text)(unsigned char);
  const char* stateLog;
  const char* colorLog;
};
constexpr LayerForm layerForms[] = {
    {199, 515, 203, &sig_link_state::ilmi, IlmiStateToColor, IlmiStateToString,
     "ILMI State: ", "  ILMI:Prev-color from: "},
    {200, 516, 204, &sig_link_state::saal, SaalStateToColor, SaalStateToString,
     "Qsaal State: ", "  QSAAL:Prev-color from: "},
    {201, 517, 205, &sig_link_state::signalling, SigStateToColor, SigStateToString,
     "Sig State: ", "  SIG:Prev-color from: "},
};

struct Light {
  const char* log;
  Lamp lamp;
};

Light lightOf(unsigned color) {
  if (color == layerInTransition) return {" --> Yellow", Lamp::disabled};
  if (color == layerUp) return {" --> Green", Lamp::checked};
  return {" --> Red", Lamp::unchecked};
}

// ILMI has an address for the end system in these states.
bool isRegistered(std::uint8_t ilmi) {
  return ilmi == 2 || ilmi == 3;
}

}  // namespace

// The table.

SignallingPGSigStatsTBL::SignallingPGSigStatsTBL(zWindow* parent, int id, zTableModel* shown,
                                                 short link)
    : StatsTable(parent, id, shown, 555, 554), vcInfo_(makeQuery<vccInfo>(link)) {
  measureLabels("Signalling", labelPadding);
  measureColumns({circuitSample, countSample, countSample});
}

short SignallingPGSigStatsTBL::UpdateDisplay(short link, short, bool clear) {
  if (!vcInfo_ || !vcInfo_->GetTable(1, rowsAsked) || vcInfo_->header().NRow < rows) return 1;
  for (unsigned long row = 1; row <= rows; ++row) {
    const std::uint16_t vci = vciOfRow[row - 1];
    const vc_tbl* entry = vcInfo_->GetVciEntry(vci);
    if (!entry) continue;
    Frames& baseline = baselines_[row - 1];
    if (clear) baseline = {entry->counterIn, entry->counterOut};
    writeCircuit(1, row, link, vci);
    writeCount(2, row, entry->counterIn - baseline.in);
    writeCount(3, row, entry->counterOut - baseline.out);
  }
  model()->updateAllViews();
  return 1;
}

// The page.

DStatsDlgSignallingPG::DStatsDlgSignallingPG(zNotebookDialog* notebook, zPageDef* def, short link)
    : StatsPage(notebook, def, link), sigQuery_(makeQuery<sigInfo>(link)) {
  odlog << "creating Signalling Stats page" << std::endl;
  createControls();
  createTable();
  showFields();
  Update();
}

DStatsDlgSignallingPG::~DStatsDlgSignallingPG() = default;

void DStatsDlgSignallingPG::createControls() {
  for (std::size_t i = 0; i < layers; ++i) {
    layers_[i].lamp = makeLamp(layerForms[i].lamp, layerForms[i].bitmap);
    layers_[i].stateField = make<myEdit>(layerForms[i].stateField, &layers_[i].stateText);
  }
  prefixField_ = make<myEdit>(148, &prefix_);
  prefixField_->limitText(prefixLength);
  esiSelectorField_ = make<myEdit>(169, &esiSelector_);
  esiSelectorField_->limitText(selectorLength);
}

void DStatsDlgSignallingPG::createTable() {
  table_ = make<SignallingPGSigStatsTBL>(208, &tableModel_, link());
}

void DStatsDlgSignallingPG::refresh(bool clear) {
  if (!clear) UpdateDisplay(link(), 0);
  table_->UpdateDisplay(link(), 0, clear);
}

void DStatsDlgSignallingPG::UpdateDisplay(short link, short unit) {
  if (!sigQuery_) return;
  const sig_link_state* state = sigQuery_->GetLinkState(queryByte(link), queryByte(unit));
  if (!state) return;
  showLayers(*state);
  showAddress(*state);
}

void DStatsDlgSignallingPG::showLayers(const sig_link_state& state) {
  for (const LayerForm& form : layerForms) {
    const std::uint8_t value = state.*form.state;
    odlog << form.stateLog << int{value} << ' ' << form.text(value) << std::endl;
  }
  for (std::size_t i = 0; i < layers; ++i) {
    const std::uint8_t value = state.*layerForms[i].state;
    showColor(i, layerForms[i].color(value));
    layers_[i].stateField->showText(layerForms[i].text(value));
  }
}

void DStatsDlgSignallingPG::showColor(std::size_t layer, unsigned color) {
  Layer& shown = layers_[layer];
  if (color == shown.color) return;
  const Light light = lightOf(color);
  odlog << layerForms[layer].colorLog << shown.color << " to: " << color << light.log << std::endl;
  shown.color = color;
  shown.lamp->setLamp(light.lamp);
}

void DStatsDlgSignallingPG::showAddress(const sig_link_state& state) {
  const bool registered = isRegistered(state.ilmi);
  prefixField_->showText(registered ? prefixText(state.address) : "");
  esiSelectorField_->showText(registered ? esiSelectorText(state.address) : "");
}
