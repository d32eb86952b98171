#include "setup/elan_dialogs.h"

#include <utility>
#include <vector>

#include "atm/transfer_buffers.h"
#include "foundation/bounded_stream.h"
#include "framework/controls/multi_list.h"
#include "framework/entry/string_edit.h"
#include "framework/resources/resources.h"
#include "setup/field_formats.h"

namespace {

constexpr int choicesId = 291;
constexpr std::size_t lineBytes = 100;

}  // namespace

// One client.

DElandlg::DElandlg(zWindow* parent, const zResId& id)
    : EditorForm(parent, id),
      address_(esiSelectorXferBuffer.GetF2EsiSelector()),
      addressField_(new zStringEdit(this, 169, &address_, esiSelectorPicture, wholeText)) {
  makeButtons(533, 534);
  centerWindow(1);
  show(1);
}

void DElandlg::StoreDefaults() {
  addressField_->storeData();
  esiSelectorXferBuffer = address_.c_str();
}

// Any number of clients.

DMvClientDLG::DMvClientDLG(zWindow* parent, const zResId& id)
    : EditorForm(parent, id), choices_(new zMultiList(this, choicesId)) {
  makeButtons(535, 536);
  makeSizeable();
  Setup();
  centerWindow(1);
  show(1);
}

void DMvClientDLG::makeSizeable() {
  const struct {
    int id;
    unsigned holds;
  } stretches[] = {
      {okButton, zExpandSizer::holdLeft | zExpandSizer::holdBottom},
      {cancelButton, zExpandSizer::holdRight | zExpandSizer::holdBottom},
      {choicesId, zExpandSizer::stretchAcross | zExpandSizer::stretchDown},
  };
  sizer()->layout(&layout_);
  setMinimumSize(sizer()->dimension());
  for (const auto& stretch : stretches)
    get(stretch.id)->sizer()->replace(new zExpandSizer(stretch.holds, nullptr));
}

void DMvClientDLG::Setup() {
  std::vector<std::string> lines;
  for (std::size_t i = 0; i < esiXferBuffer.size(); ++i) {
    char line[lineBytes];
    BoundedStream text(line, sizeof line);
    text << esiXferBuffer[i].GetF2EsiSelector() << " - LES " << indexXferBuffer[i];
    lines.emplace_back(text.terminate());
  }
  choices_->addStrSlist(lines);
}

void DMvClientDLG::StoreDefaults() {
  const std::vector<esiSelector> addresses = std::exchange(esiXferBuffer, {});
  const std::vector<int> servers = std::exchange(indexXferBuffer, {});
  const std::vector<bool> permanent = std::exchange(permXferBuffer, {});
  std::vector<int> indexList;
  choices_->getSelection(&indexList);
  for (const int index : indexList) {
    const auto row = static_cast<std::size_t>(index);
    esiXferBuffer.push_back(addresses[row]);
    indexXferBuffer.push_back(servers[row]);
    permXferBuffer.push_back(permanent[row]);
  }
}
