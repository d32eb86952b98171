#include "setup/config_dialog.h"

#include "applet/run_state.h"
#include "atm/devices.h"
#include "atm/transfer_buffers.h"
#include "driver/session.h"
#include "foundation/bounded_stream.h"
#include "foundation/odlog.h"
#include "framework/drawing/bitmap.h"
#include "framework/resources/resources.h"
#include "setup/ip1577_page.h"
#include "setup/lec_page.h"
#include "setup/lecs_page.h"
#include "setup/les_page.h"
#include "setup/physical_page.h"
#include "setup/setup_session.h"
#include "setup/signal_page.h"

std::int32_t SetupIoctlDesc = 0;
std::uint8_t ConfDaiOpenSuccess = 0;

namespace {

constexpr int physicalTemplate = 569;
constexpr int setupIcon = 101;
constexpr unsigned long notebookStyle = 0x80CE0002;  // no Apply button
constexpr int readWriteSession = 2;
constexpr std::size_t captionBytes = 64;

}  // namespace

DConfigDlg::DConfigDlg(zWindow* parent)
    : zNotebookDialog(parent, new zPageDef(zResId(physicalTemplate), physicalTemplate),
                      notebookStyle, "Setup") {
  parent->setCursor(zCursor(zCursor::watch));
  createPages();
  backgroundColor(zDialogGrey);
  setIcon(std::make_unique<zIcon>(zResId(setupIcon)));
  openDriver();
  setFont(std::make_shared<zFont>("Helv", zPrPoint(0, -120), zFontSpec::weightNormal), 0);
  nameAfterAdapter();
  backgroundColor(zDialogGrey);
  setIcon(std::make_unique<zIcon>(zResId(setupIcon)));
  parent->setCursor(zCursor(zCursor::arrow));
  centerWindow(1);
  show(1);
}

DConfigDlg::~DConfigDlg() {
  if (!ConfDaiOpenSuccess) return;
  dai_close(0, SetupIoctlDesc);
  odlog << "dai_close: SetupIoctlDesc " << SetupIoctlDesc << std::endl;
}

// In the order of the tabs.
void DConfigDlg::createPages() {
  const auto define = [this](int id) { return add(new zPageDef(zResId(id), id)); };
  physical_ = new DConfigDlgPhysicalPG(this, define(physicalTemplate));
  if (!phyXferBuffer.RLPrimary) return;
  odlog << "About to create Signalling config page ..." << std::endl;
  signal_ = new DConfigDlgSignalPG(this, define(570));
  lec_ = new DConfigDlgLECPG(this, define(571));
  if (advSettings) {
    les_ = new DConfigDlgLESPG(this, define(572));
    lecs_ = new DConfigDlgLECSPG(this, define(573));
  }
  ip1577_ = new DConfigDlgI1577PG(this, define(574));
}

void DConfigDlg::openDriver() {
  ConfDaiOpenSuccess = dai_open(0, readWriteSession, &SetupIoctlDesc) != -1;
  odlog << "dai_open Desc: " << SetupIoctlDesc << "  Success: " << int{ConfDaiOpenSuccess}
        << std::endl;
}

void DConfigDlg::nameAfterAdapter() {
  char text[captionBytes];
  BoundedStream name(text, sizeof text);
  name << "Setup " << dlgTitle;
  caption(name.terminate());
}

int DConfigDlg::activate(zActivateEvt*) {
  return 0;
}

void DConfigDlg::childFocusChange(zWindow* from, zWindow* to) {
  zNotebookDialog::childFocusChange(from, to);
  if (physical_->isAncestorOf(from) && !physical_->isAncestorOf(to))
    physical_->childFocusChange(from, to);
}

// The buttons.

int DConfigDlg::onCancel(zEvent*) {
  result_ = 0;
  return 0;
}

int DConfigDlg::onApply(zEvent*) {
  odlog << "DConfigDlg::onApply called." << std::endl;
  return 0;
}

// What the record says decides, not the buffer: a board that has just been made a backup still has
// its other pages, and one that is not a backup any more had none to begin with.
int DConfigDlg::onOk(zEvent*) {
  result_ = 1;
  physical_->storeDefaults();
  if (atmDevices.phy[currentAdapter].RLPrimary) {
    if (signal_) signal_->storeDefaults();
    if (lec_) lec_->storeDefaults(lec_->currentTab());
    if (ip1577_) ip1577_->storeDefaults();
    if (les_) les_->storeDefaults(les_->currentTab());
    if (lecs_) lecs_->storeDefaults();
  }
  shutdown();
  return 1;
}
