#include "setup/ip1577_page.h"

#include "applet/run_state.h"
#include "atm/transfer_buffers.h"
#include "driver/ip1577_request.h"
#include "foundation/odlog.h"
#include "framework/controls/bitmap_button.h"
#include "framework/controls/check_box.h"
#include "framework/controls/tab_control.h"
#include "framework/dialogs/dialog_controls.h"
#include "setup/field_formats.h"
#include "setup/setup_session.h"

namespace {

constexpr unsigned long firstRows = 10;  // before the list is shown
constexpr int samplePadding = 8;         // pixels

// The ARP server's ATM address, and its IP address with its label.
constexpr std::initializer_list<int> serverControls = {147, 148, 168, 169, 197, 198};

const zStatusMessage DConfigDlgI1577PGMsgs[] = {
    {151, "Enables 1577"},        {192, "Address of 1577 Client"},
    {196, "Enables ARP Server"},  {198, "Address of ARP Server"},
    {172, "Add New PVC"},         {173, "Modify Selected PVC"},
    {174, "Delete Selected PVC"}, {0, nullptr},
};

}  // namespace

// The table.

I1577PGPvcTBL::I1577PGPvcTBL(zWindow* parent, int id, zTableModel* tableModel)
    : PvcTable(parent, id, tableModel, 553) {
  const zFont& font = *getFont();
  setLabelSize({font.textWidth("99"), font.height()});
  setColWidth(1, columnFor(1, "000.000.000.000", samplePadding));
  setColWidth(3, columnFor(3, "Encapsulation", samplePadding));
}

void I1577PGPvcTBL::Update() {
  show(ip1577XferBuffer.pvcs, [this](unsigned long row, const AtmRoutedPvc& pvc) {
    writeCommon(row, pvc.ip.GetFIPAddress(), pvc);
  });
}

// The page.

DConfigDlgI1577PG::DConfigDlgI1577PG(zNotebookDialog* notebook, zPageDef* def)
    : PvcPage(notebook, def, DConfigDlgI1577PGMsgs), pvcModel_(I1577PGPvcTBL::columns, firstRows) {
  odlog << "creating 1577 Config page" << std::endl;
  Setup();
  if (ConfDaiOpenSuccess) {
    rtdRequest_ = std::make_unique<ip1577Request>(SetupIoctlDesc,
                                                  static_cast<unsigned short>(currentAdapter), 0);
  }
  tabs_ = makeTabs(189, 1, "Client %d");
  createControls();
  createPvcTable();
  showFields();
  ToggleControls();
  tabs_->setNotifySelChange(this, &DConfigDlgI1577PG::selChangeIP1577TB);
  enabledBox_->setNotifyClicked(this, &DConfigDlgI1577PG::clickedEnableCB);
  pvcOnlyBox_->setNotifyClicked(this, &DConfigDlgI1577PG::clickedPvcOnlyCB);
  serverBox_->setNotifyClicked(this, &DConfigDlgI1577PG::clickedEnableServerCB);
  tabs_->select(1);
  enableControls(this, {173}, false);
  odlog << "Finished config 1577 page setup" << std::endl;
}

DConfigDlgI1577PG::~DConfigDlgI1577PG() = default;

void DConfigDlgI1577PG::createControls() {
  enabledBox_ = make<zCheckBox>(151, &enabled_);
  pvcOnlyBox_ = make<zCheckBox>(152, &pvcOnly_);
  ipField_ = make<zStringEdit>(192, &ipAddress_, ipAddressPicture, wholeText);
  maskField_ = make<zStringEdit>(194, &subnetMask_, ipAddressPicture, wholeText);
  serverBox_ = make<zCheckBox>(196, &isServer_);
  serverField_ = make<zStringEdit>(198, &serverAddress_, ipAddressPicture, wholeText);
  makeAddress(address_);
}

void DConfigDlgI1577PG::createPvcTable() {
  pvcTable_ = make<I1577PGPvcTBL>(171, &pvcModel_);
  pvcTable_->setActiveCell({0, 0});
  pvcTable_->Update();
  pvcTable_->setNotifySelChange(this, &DConfigDlgI1577PG::selChangePvcTBL);
  pvcTable_->setNotifyActiveCellChange(this, &DConfigDlgI1577PG::selChangePvcTBL);
  makeButton(172, 512)->setNotifyClicked(this, &DConfigDlgI1577PG::clickedAddBTN);
  makeButton(173, 513)->setNotifyClicked(this, &DConfigDlgI1577PG::clickedModifyBTN);
  makeButton(174, 514)->setNotifyClicked(this, &DConfigDlgI1577PG::clickedDeleteBTN);
}

// Between the buffer and the fields.

void DConfigDlgI1577PG::Setup() {
  const IP1577XferBuffer& buffer = ip1577XferBuffer;
  enabled_ = buffer.Enabled;
  pvcOnly_ = buffer.Config;
  ipAddress_ = buffer.IPAddress;
  subnetMask_ = buffer.ServerIPMask;
  isServer_ = buffer.EnableServer;
  serverAddress_ = buffer.ServerIPAddress;
  address_.prefix = buffer.AtmPrefix;
  address_.esiSelector = buffer.AtmEsiSel;
}

void DConfigDlgI1577PG::setDefaults() {
  odlog << "Setting IP1577 Defaults" << std::endl;
  Setup();
  showFields();
  pvcTable_->Update();
}

// Being the server is told by the equality of the two addresses alone.
void DConfigDlgI1577PG::storeDefaults() {
  IP1577XferBuffer& buffer = ip1577XferBuffer;
  buffer.Enabled = buffered(enabledBox_->check());
  buffer.Config = buffered(pvcOnlyBox_->check());
  address_.storeData();
  serverField_->storeData();
  maskField_->storeData();
  ipField_->storeData();
  buffer.AtmPrefix = address_.prefix;
  buffer.AtmEsiSel = address_.esiSelector;
  buffer.ServerIPAddress = serverAddress_;
  buffer.ServerIPMask = subnetMask_;
  buffer.IPAddress = ipAddress_;
}

// What can be used.

void DConfigDlgI1577PG::ToggleControls() {
  const bool on = enabledBox_->check();
  const bool hasServer = on && !pvcOnlyBox_->check();
  enableControls(this, {152, 193, 194, 172, 174, 170, 171, 191, 192}, on);
  enableControls(this, {196}, hasServer);
  enableControls(this, serverControls, hasServer && !serverBox_->check());
  if (!on) enableControls(this, {173}, false);
}

int DConfigDlgI1577PG::clickedEnableCB(zNotifyEvt*) {
  ToggleControls();
  return 0;
}

int DConfigDlgI1577PG::clickedPvcOnlyCB(zNotifyEvt*) {
  ToggleControls();
  return 0;
}

int DConfigDlgI1577PG::clickedEnableServerCB(zNotifyEvt*) {
  const bool isServer = serverBox_->check();
  if (isServer) {
    serverField_->storeData();
    serverField_->text(ip1577XferBuffer.IPAddress);
  } else {
    serverField_->setToDefault();
  }
  enableControls(this, serverControls, !isServer);
  return 0;
}

int DConfigDlgI1577PG::selChangeIP1577TB(zNotifyEvt*) {
  return 0;
}

// Circuits.

int DConfigDlgI1577PG::selChangePvcTBL() {
  choosePvcRow(pvcTable_->getActiveCell().y);
  return 0;
}

void DConfigDlgI1577PG::updatePvcTable() {
  pvcTable_->Update();
  pvcTable_->setDirty(nullptr, 0);
  pvcTable_->update();
}

std::vector<AtmRoutedPvc>& DConfigDlgI1577PG::pvcs() {
  return ip1577XferBuffer.pvcs;
}

AtmRoutedPvc& DConfigDlgI1577PG::edited() {
  return pvcXferBuffer;
}

bool DConfigDlgI1577PG::addsToDriver(const AtmRoutedPvc& pvc) {
  return rtdRequest_ && rtdRequest_->addPvc(payloadOf<rtdPvcReqStruct>(pvc)) == 0;
}

bool DConfigDlgI1577PG::deletesFromDriver(const AtmRoutedPvc& pvc) {
  return rtdRequest_ && rtdRequest_->deletePvc(payloadOf<rtdPvcReqStruct>(pvc)) == 0;
}
