#include "setup/lec_page.h"

#include "applet/run_state.h"
#include "atm/transfer_buffers.h"
#include "driver/lec_request.h"
#include "foundation/odlog.h"
#include "framework/controls/bitmap_button.h"
#include "framework/controls/check_box.h"
#include "framework/controls/edit.h"
#include "framework/controls/tab_control.h"
#include "framework/dialogs/dialog_controls.h"
#include "framework/entry/number_edits.h"
#include "setup/setup_session.h"

namespace {

constexpr unsigned long firstRows = 10;  // before the first list is shown
constexpr int samplePadding = 4;         // pixels
constexpr int lecsButton = 166;
constexpr int lesButton = 167;

const zStatusMessage DConfigDlgLECPGMsgs[] = {
    {151, "Enable Current Client"},
    {157, "Click to select alternate units."},
    {165, "Layer 3 MTU Size"},
    {166, "Use LECS for Registration"},
    {167, "Bypass LECS & Specify LES"},
    {148, "Address of LECS or LES if bypassed"},
    {172, "Add New PVC"},
    {173, "Modify Selected PVC"},
    {174, "Delete Selected PVC"},
    {0, nullptr},
};

}  // namespace

// The table.

LECPGPvcTBL::LECPGPvcTBL(zWindow* parent, int id, zTableModel* tableModel)
    : PvcTable(parent, id, tableModel, 549) {
  const zFont& font = *getFont();
  setLabelSize({font.textWidth("99 ") + samplePadding, font.height() + samplePadding});
  const char* const samples[columns] = {"AA:AA:AA:AA:AA:AA ", "VPI/VCI ", "Encapsulation ",
                                        "Broadcast "};
  for (unsigned long column = 1; column <= columns; ++column) {
    setColWidth(column, columnFor(column, samples[column - 1], samplePadding));
  }
}

void LECPGPvcTBL::Update(short client) {
  show(xferBuffer[client].pvcs, [this](unsigned long row, const AtmBridgedPvc& pvc) {
    writeCommon(row, pvc.mac.GetFMacAddress(), pvc);
    SetCellText({4, row}, pvc.Bcast == 1 ? "TRUE" : "FALSE");
  });
}

// The page.

DConfigDlgLECPG::DConfigDlgLECPG(zNotebookDialog* notebook, zPageDef* def)
    : PvcPage(notebook, def, DConfigDlgLECPGMsgs), pvcModel_(LECPGPvcTBL::columns, firstRows) {
  odlog << "creating LEC Config Page" << std::endl;
  Setup(0);
  if (ConfDaiOpenSuccess) {
    bdgRequest_ = std::make_unique<lecRequest>(SetupIoctlDesc,
                                               static_cast<unsigned short>(currentAdapter), 0);
  }
  createControls();
  createRate();
  createPvcTable();
  showFields();
  throughGroup_->setToDefault();
  connect();
  tabs_->select(1);
  enableControls(this, {173}, false);
  hideControls(this, {155, 156, 157});
}

DConfigDlgLECPG::~DConfigDlgLECPG() = default;

void DConfigDlgLECPG::createControls() {
  tabs_ = makeTabs(175, maxLecs, "%d");
  enabledBox_ = make<zCheckBox>(151, &enabled_);
  pvcOnlyBox_ = make<zCheckBox>(152, &pvcOnly_);
  make<zEditLine>(129, &macText_);
  enhancedBox_ = make<zCheckBox>(154, &enhancedVc_);
  nameField_ = make<zEditLine>(159, &elanName_);
  typeBox_ = make<ChoiceBox>(161, 547, &elanType_);
  mtuBox_ = make<ChoiceBox>(163, 548, &mtu_);
  l3MtuField_ = make<zUnsignedIntEdit>(165, &l3Mtu_, "####", 0UL);
  make<zRadioButton>(lecsButton);
  make<zRadioButton>(lesButton);
  throughGroup_ = std::make_unique<zRadioController>(this, lecsButton, lesButton, &through_);
  makeAddress(address_);
}

// The rate for circuits of unspecified bit rate is kept and not offered.
void DConfigDlgLECPG::createRate() {
  rateField_ = make<zUnsignedLongEdit>(156, &rateNumber_, "##########",
                                       static_cast<unsigned long>(zFormatter::rawValue));
  unitBox_ = make<ChoiceBox>(157, 546, &rateUnit_);
  rateField_->setNotifyChange(this, &DConfigDlgLECPG::changeDefaultPCRED);
  rateField_->setNotifyUpdate(this, &DConfigDlgLECPG::updateDefaultPCRED);
  unitBox_->setNotifySelChange(this, &DConfigDlgLECPG::selChangeDefPCR_UnitsCBO);
}

void DConfigDlgLECPG::createPvcTable() {
  pvcTable_ = make<LECPGPvcTBL>(171, &pvcModel_);
  pvcTable_->setActiveCell({0, 0});
  pvcTable_->Update(0);
  pvcTable_->setNotifySelChange(this, &DConfigDlgLECPG::selChangePvcTBL);
  pvcTable_->setNotifyActiveCellChange(this, &DConfigDlgLECPG::selChangePvcTBL);
  makeButton(172, 506)->setNotifyClicked(this, &DConfigDlgLECPG::clickedAddBTN);
  makeButton(173, 507)->setNotifyClicked(this, &DConfigDlgLECPG::clickedModifyBTN);
  makeButton(174, 508)->setNotifyClicked(this, &DConfigDlgLECPG::clickedDeleteBTN);
}

void DConfigDlgLECPG::connect() {
  tabs_->setNotifySelChange(this, &DConfigDlgLECPG::selChangeLecTB);
  enabledBox_->setNotifyClicked(this, &DConfigDlgLECPG::clickedEnableCB);
  pvcOnlyBox_->setNotifyClicked(this, &DConfigDlgLECPG::clickedPvcOnlyCB);
  mtuBox_->setNotifySelChange(this, &DConfigDlgLECPG::selChangeElanMTUCBO);
  l3MtuField_->setNotifyChange(this, &DConfigDlgLECPG::changeIPMTUSizeED);
  throughGroup_->setNotifyClicked(this, &DConfigDlgLECPG::clickedLECSRBGroup);
}

// Between the buffer and the fields.

void DConfigDlgLECPG::Setup(short client) {
  const LECXferBuffer& buffer = xferBuffer[client];
  enabled_ = buffer.Enabled;
  pvcOnly_ = buffer.Config;
  enhancedVc_ = buffer.EnhancedVC;
  defaultPcr_ = buffer.defaultPcr;
  rateNumber_ = defaultPcr_.value;
  rateUnit_ = static_cast<int>(defaultPcr_.units);
  macText_ = buffer.MacText;
  elanName_ = buffer.ElanName;
  address_.prefix = buffer.AtmPrefix;
  address_.esiSelector = buffer.AtmEsiSel;
  l3Mtu_ = static_cast<unsigned>(buffer.L3Mtu);
  mtu_ = buffer.Mfs;
  elanType_ = buffer.ElanType;
  through_ = buffer.Lecs ? lecsButton : lesButton;
  odlog << "Setting _DefaultPCRED for client " << client << " to " << rateNumber_ << std::endl;
  odlog << "Setting _DefPCR_UnitsCBO for client " << client << " to Units:" << rateUnit_
        << std::endl;
}

void DConfigDlgLECPG::setDefaults(short client) {
  odlog << "Setting LEC Defaults " << client << std::endl;
  Setup(client);
  showFields();
  throughGroup_->setToDefault();
  pvcTable_->Update(client);
}

void DConfigDlgLECPG::storeDefaults(short client) {
  LECXferBuffer& buffer = xferBuffer[client];
  address_.storeData();
  buffer.AtmPrefix = address_.prefix;
  buffer.AtmEsiSel = address_.esiSelector;
  rateField_->storeData();
  unitBox_->storeData();
  buffer.defaultPcr.value = static_cast<std::uint32_t>(rateNumber_);
  buffer.defaultPcr.units = static_cast<RateUnit>(rateUnit_);
  buffer.defaultPcr.conv2cps(buffer.defaultPcr.value, buffer.defaultPcr.units);
  nameField_->storeData();
  buffer.ElanName = elanName_;
  l3MtuField_->storeData();
  buffer.L3Mtu = buffered(static_cast<int>(l3Mtu_));
  buffer.Lecs = throughGroup_->current() == lecsButton;
  typeBox_->storeData();
  buffer.ElanType = buffered(elanType_);
  mtuBox_->storeData();
  buffer.Mfs = buffered(mtu_);
  buffer.Enabled = buffered(enabledBox_->check());
  buffer.Config = buffered(pvcOnlyBox_->check());
  buffer.EnhancedVC = buffered(enhancedBox_->check());
}

// What can be used.

void DConfigDlgLECPG::ToggleControls() {
  const bool on = enabledBox_->check();
  enableControls(this, {152, 170, 172, 174, 164, 165, 155, 156, 157}, on);
  enableControls(this, {167, 166, 159, 158, 161, 160, 163, 162, 147, 148, 168, 169, 154},
                 on && !pvcOnlyBox_->check());
  if (!on) enableControls(this, {173}, false);
  for (const int button : {lesButton, lecsButton}) get(button)->setDirty(nullptr, 1);
  update();
}

int DConfigDlgLECPG::selChangeLecTB(zNotifyEvt*) {
  newClient_ = static_cast<short>(tabs_->selectedIndex() - 1);
  storeDefaults(currentClient_);
  setDefaults(newClient_);
  currentClient_ = newClient_;
  ToggleControls();
  return 0;
}

int DConfigDlgLECPG::clickedEnableCB(zNotifyEvt*) {
  ToggleControls();
  return 0;
}

int DConfigDlgLECPG::clickedPvcOnlyCB(zNotifyEvt*) {
  l3MtuField_->storeData();
  if (!pvcOnlyBox_->check()) {
    l3MtuField_->text("0");
  } else if (l3Mtu_ == 0) {
    l3MtuField_->text("1500");
  }
  ToggleControls();
  return 0;
}

int DConfigDlgLECPG::changeDefaultPCRED(zNotifyEvt*) {
  odlog << "changeDefaultPCRED called" << std::endl;
  rateField_->storeData();
  defaultPcr_.value = static_cast<std::uint32_t>(rateNumber_);
  defaultPcr_.conv2cps(defaultPcr_.value, defaultPcr_.units);
  return 0;
}

int DConfigDlgLECPG::updateDefaultPCRED(zNotifyEvt*) {
  odlog << "updateDefaultPCRED called..." << std::endl;
  return 0;
}

int DConfigDlgLECPG::selChangeDefPCR_UnitsCBO(zNotifyEvt*) {
  unitBox_->storeData();
  defaultPcr_.units = static_cast<RateUnit>(rateUnit_);
  rateNumber_ = defaultPcr_.cps2unit(defaultPcr_.cps, defaultPcr_.units);
  rateField_->setToDefault();
  rateField_->update();
  return 0;
}

// The lists and numbers of the frame sizes do not depend on each other.
int DConfigDlgLECPG::selChangeElanMTUCBO(zNotifyEvt*) {
  return 0;
}

int DConfigDlgLECPG::changeIPMTUSizeED(zNotifyEvt*) {
  return 0;
}

int DConfigDlgLECPG::clickedLECSRBGroup(zNotifyEvt* event) {
  if (event->cmd() == lecsButton) address_.showWellKnown();
  if (event->cmd() == lesButton) address_.setToDefault();
  return 0;
}

void DConfigDlgLECPG::childFocusChange(zWindow*, zWindow* to) {
  setDirty(nullptr, 0);
  to->update();
}

// Circuits.

int DConfigDlgLECPG::selChangePvcTBL() {
  choosePvcRow(pvcTable_->getActiveCell().y);
  return 0;
}

void DConfigDlgLECPG::updatePvcTable() {
  pvcTable_->Update(currentClient_);
  pvcTable_->setDirty(nullptr, 0);
  pvcTable_->update();
}

std::vector<AtmBridgedPvc>& DConfigDlgLECPG::pvcs() {
  return xferBuffer[currentClient_].pvcs;
}

AtmBridgedPvc& DConfigDlgLECPG::edited() {
  return bridgedPvcXferBuffer;
}

bool DConfigDlgLECPG::addsToDriver(const AtmBridgedPvc& pvc) {
  if (!bdgRequest_) return false;
  bdgRequest_->setTarget(static_cast<unsigned char>(currentAdapter),
                         static_cast<unsigned char>(currentClient_));
  return bdgRequest_->addPvc(payloadOf<bdgPvcReqStruct>(pvc)) == 0;
}

bool DConfigDlgLECPG::deletesFromDriver(const AtmBridgedPvc& pvc) {
  if (!bdgRequest_) return false;
  bdgRequest_->setTarget(static_cast<unsigned char>(currentAdapter),
                         static_cast<unsigned char>(currentClient_));
  return bdgRequest_->deletePvc(payloadOf<bdgPvcReqStruct>(pvc)) == 0;
}
