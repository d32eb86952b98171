// Construction and end of the main dialog, and what it reads at the start.
#include "shell/main_dialog.h"

#include <cstring>

#include "applet/run_state.h"
#include "atm/devices.h"
#include "driver/session.h"
#include "foundation/bounded_stream.h"
#include "foundation/odlog.h"
#include "framework/controls/bitmap_button.h"
#include "framework/controls/edit.h"
#include "framework/controls/group_box.h"
#include "framework/controls/static_text.h"
#include "framework/controls/status_line.h"
#include "framework/core/app.h"
#include "framework/dialogs/tool_tips.h"
#include "framework/drawing/bitmap.h"
#include "framework/resources/resources.h"
#include "shell/adapter_status.h"
#include "shell/adapter_table.h"

namespace {

constexpr int readOnlySession = 0;
constexpr int mainIcon = 100;
constexpr unsigned long firstItemText = 0x100;  // a status line with a text as its item 0
constexpr std::uint32_t fewestVcs = 33;         // a driver that says less does not know
constexpr std::uint32_t assumedVcs = 1024;

const zStatusMessage DMainDlgMsgs[] = {
    {105, "Setup Selected Adapter"},
    {106, "Display Stats on Selected Adapter"},
    {107, "Switch Between the Primary and Backup Adapters"},
    {108, "Configure Global Settings"},
    {110, "Close Ondrelle"},
    {0, nullptr},
};

}  // namespace

DMainDlg::DMainDlg(zWindow* parent, const zResId& id) : zFormDialog(parent, id, 0) {
  std::memset(BoardIsThere, 0, sizeof BoardIsThere);
  DaiOpenSuccess = dai_open(0, readOnlySession, &ioctlDesc) != -1;
  odlog << "dai_open: ioctlDesc: " << ioctlDesc << "  OpenSuccess: " << int{DaiOpenSuccess}
        << std::endl;
  driverPdf_ = std::make_unique<DriverPdfEdit>(app->rootWindow(), false);
  if (DaiOpenSuccess) {
    aalQuery_ = std::make_unique<aalInfo>(ioctlDesc, 0, 0);
    vccQuery_ = std::make_unique<vccInfo>(ioctlDesc, 0, 0);
  }

  backgroundColor(zDialogGrey);
  setIcon(std::make_unique<zIcon>(zResId(mainIcon)));
  createStatusLine();
  toolTips_ = std::make_unique<zToolTipCtrl>(this);
  toolTips_->setTipMessageTable(DMainDlgMsgs);
  createTable();
  createLabels();
  createButtons();
  activate_->show(0);

  currentAdapter = 0;
  setup();
  SetDlgTitle();
  table_->Update();
  table_->setActiveCell({1, 1});
  Update();

  enableTimer();
  setMinimumSize(sizer()->dimension());
  centerWindow(0);
  show(1);
  table_->setFocus();
}

DMainDlg::~DMainDlg() {
  disableTimer();
  if (DaiOpenSuccess) {
    dai_close(0, ioctlDesc);
    odlog << "dai_close: ioctlDesc " << std::endl;
  }
  driverPdf_.reset();
  aalQuery_.reset();
  vccQuery_.reset();
  toolTips_.reset();
}

// Controls.

void DMainDlg::createStatusLine() {
  statusLine_ =
      new zStatusLineEZ(this, new zGravSizer(zGravBottom, 0, sizer()), firstItemText, 0, nullptr);
  statusLine_->show(1);
  statusItem_ = statusLine_->getItem(0);
}

void DMainDlg::createTable() {
  (new zStaticText(this, 100))->textColor(zBlack);
  model_ = std::make_unique<zTableSmallModel>(MainDlgAdapterInfoTBL::columns, maxAdapters);
  table_ = new MainDlgAdapterInfoTBL(this, 101, model_.get());
  table_->setNotifyActiveCellChange(this, &DMainDlg::selChangeAdapterInfoTBL);
}

void DMainDlg::createLabels() {
  new zStaticText(this, 102);
  (new zStaticText(this, 112))->textColor(zBlack);
  new zStaticText(this, 109);
  version_ = new zEditLine(this, 103, &versionText_);
  new zGroupBox(this, 104);
}

void DMainDlg::createButtons() {
  const auto button = [this](int id, int bitmap, int (DMainDlg::*clicked)(zNotifyEvt*)) {
    auto* made = new zBitmapButton(this, id, std::make_unique<zBitmap>(zResId(bitmap)));
    made->setNotifyClicked(this, clicked);
    return made;
  };
  activate_ = button(107, 502, &DMainDlg::clickedActivateBTN);
  zBitmapButton* setupButton = button(105, 500, &DMainDlg::clickedSetupBTN);
  stats_ = button(106, 501, &DMainDlg::clickedStatsBTN);
  zBitmapButton* global = button(108, 503, &DMainDlg::clickedGlobalBTN);
  zBitmapButton* close = button(110, 504, &DMainDlg::clickedCloseBTN);
  button(111, 505, &DMainDlg::clickedBrennwickLogoBTN)->text(" ");
  for (zBitmapButton* tipped : {activate_, setupButton, stats_, global, close}) {
    toolTips_->add(tipped);
  }
}

// What is read at the start.

void DMainDlg::setup() {
  odlog << " r> ReadPdf() from odconf" << std::endl;
  driverPdf_->ReadPdf();
  if (aalQuery_) findBoards(*aalQuery_);
}

void DMainDlg::findBoards(aalInfo& query) {
  if (const char* revision = query.GetPackageRev()) {
    versionText_.assign(revision, strnlen(revision, sizeof brennwick_driver_revision - 1));
    version_->setToDefault();
    std::memset(brennwick_driver_revision, 0, sizeof brennwick_driver_revision);
    versionText_.copy(brennwick_driver_revision, sizeof brennwick_driver_revision - 1);
  }
  const board_state* state = query.GetBoardState();
  if (!state) return;
  const std::uint16_t boards = state->numBoards;
  const std::uint16_t mask = state->boardMask;
  odlog << "NumBoards  - " << boards << std::endl;
  odlog << "Board Mask - 0x" << std::hex << mask << std::dec << std::endl;
  for (int i = 0; i < maxAdapters; ++i) {
    if (mask & 1 << i) {
      findBoard(i);
    } else {
      atmDevices.phy[i].boardText1 = "-";
    }
    const auto row = static_cast<unsigned long>(i) + 1;
    table_->SetCellText({MainDlgAdapterInfoTBL::columnMac, row},
                        atmDevices.phy[i].boardText1.c_str());
  }
  atmDevices.numAdapters = boards;
}

void DMainDlg::findBoard(int adapter) {
  AtmPhy& phy = atmDevices.phy[adapter];
  const board_mac* answer = aalQuery_->GetBoardMacAddress(static_cast<unsigned short>(adapter + 1));
  BoardIsThere[adapter] = answer != nullptr;
  if (!answer) {
    phy.boardText1 = "Not Installed";
    return;
  }
  stampMacAddresses(adapter, answer->address);
  readMaxVc(adapter);
}

// Each client's address is the board's with the client's number added to the last byte, which wraps
// without a carry; the IP service's comes behind the last client's.
void DMainDlg::stampMacAddresses(int adapter, const std::uint8_t* address) {
  macAddress mac;
  std::memcpy(mac.bytes, address, sizeof mac.bytes);
  atmDevices.phy[adapter].boardText1 = mac.GetFMacAddress();
  for (AtmLEC& lec : atmDevices.lec[adapter]) {
    lec.mac = mac;
    ++mac.bytes[sizeof mac.bytes - 1];
  }
  atmDevices.ip1577[adapter].mac = mac;
}

void DMainDlg::readMaxVc(int adapter) {
  if (!vccQuery_) return;
  std::uint32_t vcs = vccQuery_->GetBoardMaxVC(static_cast<unsigned char>(adapter), 0);
  odlog << "Board Max VC == " << vcs << std::endl;
  if (vcs < fewestVcs) {
    vcs = assumedVcs;
    odlog << "  Max VC set to 1024." << std::endl;
  }
  atmDevices.sig[adapter].VciHigh = static_cast<std::int32_t>(vcs);
}

void DMainDlg::SetDlgTitle() {
  const AtmPhy& phy = atmDevices.phy[currentAdapter];
  BoundedStream title(mainBuffer, mainBufferBytes);
  title << "Adapter " << currentAdapter << " - ";
  if (phy.cfgRLPrimary) {
    title << phy.boardText1;
  } else if (phy.linkState == linkActive) {
    title << "Backup: ";
    if (isAdapter(phy.activeLink)) title << atmDevices.phy[phy.activeLink].boardText1;
  } else {
    title << "Backup";
  }
  dlgTitle = title.terminate();
}

// The main timer: stopping it is deleting it.

void DMainDlg::enableTimer() {
  if (mainTimer_) {
    odlog << "Main timer is enabled." << std::endl;
    return;
  }
  odlog << "Starting main timer." << std::endl;
  mainTimer_ = std::make_unique<zTimer>(this, &DMainDlg::Update, MaintimerTime);
}

void DMainDlg::disableTimer() {
  odlog << (mainTimer_ ? "Stopping main timer." : "Main timer is disabled.") << std::endl;
  mainTimer_.reset();
}

void DMainDlg::Update() {
  if (DaiOpenSuccess) UpdateDisplay();
}
