#include "shell/global_dialog.h"

#include <unistd.h>

#include <cstdlib>

#include "applet/my_table.h"
#include "applet/run_state.h"
#include "atm/devices.h"
#include "driver/sig_request.h"
#include "foundation/version.h"
#include "framework/controls/button.h"
#include "framework/controls/check_box.h"
#include "framework/controls/combo_box.h"
#include "framework/controls/static_text.h"
#include "framework/dialogs/font_form.h"
#include "framework/dialogs/message.h"
#include "framework/drawing/bitmap.h"
#include "framework/entry/number_edits.h"
#include "framework/resources/resources.h"

std::int32_t ApiDbgCB = 0;
std::int32_t SignallingDbgCB = 0;
std::int32_t IlmiDbgCB = 0;

namespace {

constexpr int appTemplate = 581;
constexpr int connectTemplate = 582;
constexpr int debugTemplate = 583;
constexpr int globalIcon = 103;
constexpr int refreshRates = 561;
constexpr unsigned long notebookStyle = 0x80CA0082;  // no Apply and no Help button
constexpr unsigned noticeStyle = 48;

const zStatusMessage DGlobalDlgAppPGMsgs[] = {
    {265, "Sets data refresh rate in milliseconds"},
    {266, "Enables LES/LECS tabs"},
    {0, nullptr},
};

// The driver's traces, and the check boxes that say which of them run.
struct Trace {
  std::uint8_t selector;
  const std::int32_t* state;
};
constexpr Trace traces[] = {{1, &ApiDbgCB}, {2, &SignallingDbgCB}, {4, &IlmiDbgCB}};

}  // namespace

// The application.

DGlobalDlgAppPG::DGlobalDlgAppPG(zNotebookDialog* notebook, zPageDef* def)
    : ControlPage(notebook, def, DGlobalDlgAppPGMsgs), rate_(std::to_string(timerTime)) {
  rateBox_ = make<zComboBoxStatic>(265, &rate_);
  rateBox_->addStrBlock(zResStrBlock(refreshRates));
  rateBox_->selection(0);
  auto* advanced = make<zCheckBox>(266, &advSettings);
  auto* fonts = make<zPushButton>(267);
  showFields();
  rateBox_->setNotifySelChange(this, &DGlobalDlgAppPG::selChangeRefreshRateCBO);
  advanced->setNotifyClicked(this, &DGlobalDlgAppPG::clickedAdvSettingsCB);
  fonts->setNotifyClicked(this, &DGlobalDlgAppPG::clickedFontBTN);
}

std::uint32_t DGlobalDlgAppPG::refreshRate() const {
  return static_cast<std::uint32_t>(std::atoi(rate_.c_str()));
}

int DGlobalDlgAppPG::selChangeRefreshRateCBO(zNotifyEvt*) {
  rate_ = rateBox_->getText();
  return 0;
}

int DGlobalDlgAppPG::clickedAdvSettingsCB(zNotifyEvt*) {
  return 0;
}

// For tables made from now on.
int DGlobalDlgAppPG::clickedFontBTN(zNotifyEvt*) {
  zFontSpec spec = tblFontSpec;
  zFontSelForm form(this, zBlack, &spec);
  if (form.completed()) tblFontSpec = form.fontSpec();
  return 0;
}

// The connections.

DGlobalDlgConnectPG::DGlobalDlgConnectPG(zNotebookDialog* notebook, zPageDef* def)
    : ControlPage(notebook, def, nullptr),
      maxPtToPt_(atmDevices.MaxPtToPt),
      maxPtToMpt_(atmDevices.MaxPtToMpt),
      maxMptEndpts_(atmDevices.MaxMptEndpts) {
  struct Limit {
    int field;
    unsigned long* value;
  };
  for (const Limit& limit :
       {Limit{268, &maxPtToPt_}, Limit{269, &maxPtToMpt_}, Limit{270, &maxMptEndpts_}})
    make<zUnsignedLongEdit>(limit.field, limit.value, "##########", 0UL);
  showFields();
}

// Debugging.

DGlobalDlgDebugPG::DGlobalDlgDebugPG(zNotebookDialog* notebook, zPageDef* def)
    : ControlPage(notebook, def, nullptr),
      apiBox_(make<zCheckBox>(271, &ApiDbgCB)),
      signallingBox_(make<zCheckBox>(272, &SignallingDbgCB)),
      ilmiBox_(make<zCheckBox>(273, &IlmiDbgCB)) {
  showFields();
  (new zStaticText(this, 274))->text(std::to_string(brennwick_od_build_id));
  apiBox_->setNotifyClicked(this, &DGlobalDlgDebugPG::clickedApiCB);
  signallingBox_->setNotifyClicked(this, &DGlobalDlgDebugPG::clickedSignallingCB);
  ilmiBox_->setNotifyClicked(this, &DGlobalDlgDebugPG::clickedIlmiCB);
}

void DGlobalDlgDebugPG::StoreDefaults() {
  for (zCheckBox* box : {apiBox_, signallingBox_, ilmiBox_}) box->storeData();
}

int DGlobalDlgDebugPG::clickedApiCB(zNotifyEvt*) {
  debugChanged_ = true;
  return 0;
}

int DGlobalDlgDebugPG::clickedSignallingCB(zNotifyEvt*) {
  debugChanged_ = true;
  return 0;
}

int DGlobalDlgDebugPG::clickedIlmiCB(zNotifyEvt*) {
  debugChanged_ = true;
  return 0;
}

// The notebook.

DGlobalDlg::DGlobalDlg(zWindow* parent)
    : zNotebookDialog(parent, new zPageDef(zResId(connectTemplate), connectTemplate), notebookStyle,
                      "Global Settings") {
  setFont(std::make_shared<zFont>("Helv", zPrPoint(0, -120), zFontSpec::weightNormal), 0);
  createPages();
  backgroundColor(zDialogGrey);
  setIcon(std::make_unique<zIcon>(zResId(globalIcon)));
  if (DaiOpenSuccess) request_ = std::make_unique<sigRequest>(ioctlDesc, 0, 0);
  centerWindow(1);
  show(1);
}

DGlobalDlg::~DGlobalDlg() = default;

void DGlobalDlg::createPages() {
  const auto define = [this](int id) { return add(new zPageDef(zResId(id), id)); };
  app_ = new DGlobalDlgAppPG(this, define(appTemplate));
  connect_ = new DGlobalDlgConnectPG(this, define(connectTemplate));
  debug_ = new DGlobalDlgDebugPG(this, define(debugTemplate));
}

// The pages are stored behind this, also when the traces could not be switched.
int DGlobalDlg::onOk(zEvent*) {
  timerTime = app_->refreshRate();
  if (debug_->debugChanged() && request_) {
    debug_->StoreDefaults();
    if (getuid() != 0) {
      zMessage(this, "Insufficient Privileges.\nUnable to Modify Signalling Parameters!",
               "Privilege Error", noticeStyle);
      return 0;
    }
    switchTraces();
  }
  result_ = true;
  return 0;
}

void DGlobalDlg::switchTraces() {
  for (const Trace& trace : traces)
    request_->setDebugTrace(trace.selector, static_cast<unsigned char>(*trace.state));
}

int DGlobalDlg::onCancel(zEvent*) {
  return 0;
}

int DGlobalDlg::activate(zActivateEvt*) {
  return 0;
}
