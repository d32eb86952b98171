#include "setup/les_page.h"

#include <algorithm>
#include <cstring>

#include "applet/run_state.h"
#include "atm/transfer_buffers.h"
#include "driver/lecs_request.h"
#include "driver/queries.h"
#include "foundation/odlog.h"
#include "framework/controls/bitmap_button.h"
#include "framework/controls/check_box.h"
#include "framework/controls/edit.h"
#include "framework/controls/list_box.h"
#include "framework/controls/tab_control.h"
#include "framework/dialogs/dialog_controls.h"
#include "framework/dialogs/message.h"
#include "setup/elan_dialogs.h"
#include "setup/elan_type.h"
#include "setup/setup_session.h"

namespace {

constexpr char errorTitle[] = "ELAN Client Error";

const zStatusMessage DConfigDlgLESPGMsgs[] = {
    {151, "Enable Current Client"},
    {178, "Force Strict Name Prequisites"},
    {179, "Force Strict MTU Size Prerequisites"},
    {172, "Add New Client"},
    {182, "Insert Clients from other LESs"},
    {174, "Delete Selected Client"},
    {0, nullptr},
};

std::string textOf(const esiSelector& esi) {
  return esi.GetF2EsiSelector();
}

lecs_req rowOf(const esiSelector& esi) {
  lecs_req row;
  std::memcpy(row.esiSelector, esi.bytes, sizeof row.esiSelector);
  return row;
}

esiSelector clientOf(const lecs_tbl& row) {
  esiSelector esi;
  std::memcpy(esi.bytes, row.esiSelector, sizeof esi.bytes);
  return esi;
}

}  // namespace

DConfigDlgLESPG::DConfigDlgLESPG(zNotebookDialog* notebook, zPageDef* def)
    : SetupPage(notebook, def, DConfigDlgLESPGMsgs) {
  odlog << "creating LES Config page" << std::endl;
  Setup(0);
  if (ConfDaiOpenSuccess) {
    const auto link = static_cast<unsigned short>(currentAdapter);
    lecsInfoTable_ = std::make_unique<lecsInfo>(SetupIoctlDesc, link, 0);
    lecsControl_ = std::make_unique<lecsRequest>(SetupIoctlDesc, link, 0);
  }
  createControls();
  createClients();
  showFields();
  typeGroup_->setToDefault();
  UpdateClientLB(0);
  ToggleControls();
  tabs_->select(1);
  tabs_->setNotifySelChange(this, &DConfigDlgLESPG::selChangeLesTB);
  enabledBox_->setNotifyClicked(this, &DConfigDlgLESPG::clickedEnableCB);
}

DConfigDlgLESPG::~DConfigDlgLESPG() = default;

void DConfigDlgLESPG::createControls() {
  tabs_ = makeTabs(183, maxLess, "%d");
  enabledBox_ = make<zCheckBox>(151, &enabled_);
  nameField_ = make<zEditLine>(159, &elanName_);
  mtuBox_ = make<ChoiceBox>(163, 550, &mtu_);
  typeGroup_ =
      std::make_unique<zRadioController>(this, ethernetButton, tokenRingButton, &elanType_);
  nameStrictBox_ = make<zCheckBox>(178, &nameStrict_);
  mtuStrictBox_ = make<zCheckBox>(179, &mtuStrict_);
}

void DConfigDlgLESPG::createClients() {
  clients_ = make<zListBoxUnsorted>(181);
  makeButton(172, 509)->setNotifyClicked(this, &DConfigDlgLESPG::clickedAddBTN);
  makeButton(182, 510)->setNotifyClicked(this, &DConfigDlgLESPG::clickedMoveBTN);
  makeButton(174, 511)->setNotifyClicked(this, &DConfigDlgLESPG::clickedDeleteBTN);
}

// Between the buffer and the fields.

void DConfigDlgLESPG::Setup(short les) {
  const LESXferBuffer& buffer = lesXferBuffer[les];
  enabled_ = buffer.Enabled;
  elanName_ = buffer.ElanName;
  mtu_ = buffer.Mfs;
  elanType_ = buttonOfElanType(buffer.ElanType);
  nameStrict_ = buffer.ElanNameStrict;
  mtuStrict_ = buffer.MfsStrict;
}

void DConfigDlgLESPG::setDefaults(short les) {
  odlog << "Setting LES Defaults " << les << std::endl;
  Setup(les);
  typeGroup_->setToDefault();
  showFields();
  UpdateClientLB(les);
}

void DConfigDlgLESPG::storeDefaults(short les) {
  LESXferBuffer& buffer = lesXferBuffer[les];
  nameField_->storeData();
  buffer.ElanName = elanName_;
  buffer.ElanNameStrict = buffered(nameStrictBox_->check());
  buffer.MfsStrict = buffered(mtuStrictBox_->check());
  mtuBox_->storeData();
  buffer.Mfs = buffered(mtu_);
  buffer.Enabled = buffered(enabledBox_->check());
  buffer.ElanType = elanTypeOfButton(typeGroup_->current());
}

int DConfigDlgLESPG::selChangeLesTB(zNotifyEvt*) {
  newLes_ = static_cast<short>(tabs_->selectedIndex() - 1);
  storeDefaults(currentLes_);
  setDefaults(newLes_);
  currentLes_ = newLes_;
  ToggleControls();
  return 0;
}

// What can be used.

void DConfigDlgLESPG::ToggleControls() {
  enableControls(this, {162, 179, 158, 159, 178, 163, 176, 177, 172, 182, 174, 181},
                 enabledBox_->check());
  update();
}

int DConfigDlgLESPG::clickedEnableCB(zNotifyEvt*) {
  ToggleControls();
  return 0;
}

// Clients.

std::span<const lecs_tbl> DConfigDlgLESPG::mappings() {
  const lecs_tbl* rows = lecsInfoTable_ ? lecsInfoTable_->GetEntireTable() : nullptr;
  if (!rows) return {};
  return {rows, lecsInfoTable_->header().NRow};
}

void DConfigDlgLESPG::UpdateClientLB(short les) {
  std::vector<std::string> lines;
  for (const esiSelector& client : lesXferBuffer[les].clients)
    lines.push_back(textOf(client) + "  PERM");
  if (enabledBox_->check()) {
    for (const lecs_tbl& row : mappings()) {
      if (row.les == les && row.kind == Mapping::learnt)
        lines.push_back(textOf(clientOf(row)) + "  TEMP");
    }
  }
  clients_->reset();
  clients_->addStrSlist(lines);
  clients_->setDirty(nullptr, 0);
  clients_->update();
  clients_->selection(clientSel_);
}

bool DConfigDlgLESPG::driverAdds(const esiSelector& esi, short les) {
  if (!lecsControl_) return false;
  aimAt(les);
  return lecsControl_->addClient(rowOf(esi)) == 0;
}

// What stands in no list is deleted by its address alone.
bool DConfigDlgLESPG::driverDeletes(const esiSelector& esi, short les) {
  if (!lecsControl_) return false;
  aimAt(std::max<short>(les, 0));
  return lecsControl_->delClient(rowOf(esi)) == 0;
}

void DConfigDlgLESPG::aimAt(short les) {
  lecsControl_->setTarget(static_cast<unsigned char>(currentAdapter),
                          static_cast<unsigned char>(les));
}

bool DConfigDlgLESPG::changesListAnyway(const std::string& failure) {
  const std::string question = failure + "\nDo you still want to modify Static Configuration?";
  return zMessage(this, question.c_str(), errorTitle, 33).result() == 1;
}

void DConfigDlgLESPG::addClient(const esiSelector& esi, short les) {
  const std::string text = textOf(esi);
  odlog << text << std::endl;
  if (driverAdds(esi, les) || changesListAnyway("Unable to Dynamically Add " + text)) {
    lesXferBuffer[les].clients.push_back(esi);
  }
  if (les == currentLes_) UpdateClientLB(les);
}

void DConfigDlgLESPG::delClient(const esiSelector& esi, short les) {
  const std::string text = textOf(esi);
  const std::string failure = "Unable to Dynamically Delete " + text;
  odlog << text << std::endl;
  if (driverDeletes(esi, les) || (les >= 0 && changesListAnyway(failure))) {
    removeClient(esi, les);
  } else if (les < 0) {
    zMessage(this, failure.c_str(), errorTitle, 48);
  }
  if (les == currentLes_) UpdateClientLB(les);
}

void DConfigDlgLESPG::removeClient(const esiSelector& esi, short les) {
  if (les >= 0) {
    std::vector<esiSelector>& clients = lesXferBuffer[les].clients;
    const auto here = std::find(clients.begin(), clients.end(), esi);
    if (here != clients.end()) clients.erase(here);
  }
  if (clientSel_ > 0) --clientSel_;
  clients_->selection(clientSel_);
}

// The buttons.

esiSelector DConfigDlgLESPG::selectedClient() {
  esiSelector esi = {};
  esi = clients_->text(clientSel_).c_str();
  return esi;
}

int DConfigDlgLESPG::clickedAddBTN(zNotifyEvt*) {
  clientSel_ = static_cast<short>(clients_->selection());
  if (clientSel_ >= 0) esiSelectorXferBuffer = selectedClient();
  DElandlg editor(this, zResId(567));
  editor.modal();
  if (editor.completed()) addClient(esiSelectorXferBuffer, currentLes_);
  return 0;
}

int DConfigDlgLESPG::clickedDeleteBTN(zNotifyEvt*) {
  clientSel_ = static_cast<short>(clients_->selection());
  if (clientSel_ < 0) return 0;
  const esiSelector esi = selectedClient();
  const std::vector<esiSelector>& own = lesXferBuffer[currentLes_].clients;
  const bool isOwn = std::find(own.begin(), own.end(), esi) != own.end();
  delClient(esi, isOwn ? currentLes_ : noServer);
  return 0;
}

// Moves what is chosen of the other servers' clients to this one.
int DConfigDlgLESPG::clickedMoveBTN(zNotifyEvt*) {
  collectOthers();
  DMvClientDLG picker(this, zResId(568));
  picker.modal();
  if (!picker.completed()) return 0;
  const std::vector<esiSelector> chosen = esiXferBuffer;
  for (std::size_t i = 0; i < chosen.size(); ++i) {
    delClient(chosen[i], permXferBuffer[i] ? static_cast<short>(indexXferBuffer[i]) : noServer);
    addClient(chosen[i], currentLes_);
  }
  return 0;
}

void DConfigDlgLESPG::collectOthers() {
  esiXferBuffer.clear();
  indexXferBuffer.clear();
  permXferBuffer.clear();
  const auto append = [](const esiSelector& esi, int les, bool isPermanent) {
    esiXferBuffer.push_back(esi);
    indexXferBuffer.push_back(les);
    permXferBuffer.push_back(isPermanent);
  };
  for (int les = 0; les < maxLess; ++les) {
    if (les == currentLes_) continue;
    odlog << "getting perm entries: LES" << les << std::endl;
    for (const esiSelector& client : lesXferBuffer[les].clients) append(client, les, true);
  }
  const std::span<const lecs_tbl> rows = mappings();
  if (!rows.empty()) odlog << "getting temp entries" << std::endl;
  for (const lecs_tbl& row : rows) {
    if (row.les != currentLes_ && row.kind == Mapping::learnt)
      append(clientOf(row), row.les, false);
  }
}
