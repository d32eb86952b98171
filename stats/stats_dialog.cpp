#include "stats/stats_dialog.h"

#include "applet/my_table.h"
#include "applet/run_state.h"
#include "atm/devices.h"
#include "foundation/bounded_stream.h"
#include "foundation/odlog.h"
#include "framework/drawing/bitmap.h"
#include "framework/resources/resources.h"
#include "stats/aal5_page.h"
#include "stats/ip1577_page.h"
#include "stats/lec_page.h"
#include "stats/lecs_page.h"
#include "stats/les_page.h"
#include "stats/signalling_page.h"

namespace {

constexpr int signallingTemplate = 575;
constexpr int statsIcon = 102;
constexpr unsigned long notebookStyle = 0x80CF0002;  // no Apply button, and can be given any size
constexpr std::size_t captionBytes = 64;

}  // namespace

DStatsDlg::DStatsDlg(zWindow* parent, unsigned short adapter)
    : zNotebookDialog(parent, new zPageDef(zResId(signallingTemplate), signallingTemplate),
                      notebookStyle, "Statistics") {
  findLinks(adapter);
  parent->setCursor(zCursor(zCursor::watch));
  setFont(std::make_shared<zFont>(tblFontSpec), 0);
  deleteOnClose(1);
  createPages();
  tabs()->setNotifySelChange(this, &DStatsDlg::selChangeTB);
  backgroundColor(zDialogGrey);
  setIcon(std::make_unique<zIcon>(zResId(statsIcon)));
  changeButtonLabels("Clear", "Close", "Apply", "Help");
  parent->setCursor(zCursor(zCursor::arrow));
  nameAfterAdapter();
  centerWindow(1);
  show(1);
}

// A board that is not active has no services, and an active backup has those of the adapter that it
// stands in for.
void DStatsDlg::findLinks(unsigned short adapter) {
  physicalLink_ = adapter;
  dataLink_ = static_cast<short>(adapter);
  const AtmPhy& board = atmDevices.phy[adapter];
  if (board.linkState != linkActive) {
    dataLink_ = -1;
  } else if (!board.RLPrimary) {
    dataLink_ = board.activeLink < maxAdapters ? board.activeLink : short{-1};
  }
  odlog << "DStatsDlg: PhysLink == " << physicalLink_ << ", Data Link == " << dataLink_
        << std::endl;
}

// In the order of the tabs. The first one is seen first.
void DStatsDlg::createPages() {
  const auto define = [this](int id) { return add(new zPageDef(zResId(id), id)); };
  const bool hasServices = dataLink_ >= 0;
  if (hasServices) {
    signalling_ = new DStatsDlgSignallingPG(this, define(signallingTemplate), dataLink_);
  }
  aal5_ = new DStatsDlgAAL5PG(this, define(576), physicalLink_);
  if (hasServices) {
    lec_ = new DStatsDlgLECPG(this, define(577), dataLink_);
    if (advSettings) {
      les_ = new DStatsDlgLESPG(this, define(578), dataLink_);
      lecs_ = new DStatsDlgLECSPG(this, define(579), dataLink_);
    }
    ip1577_ = new DStatsDlgIP1577PG(this, define(580), dataLink_);
  }
  currentPage_ = hasServices ? static_cast<TimerPage*>(signalling_) : aal5_;
  previousPage_ = currentPage_;
}

void DStatsDlg::nameAfterAdapter() {
  char text[captionBytes];
  BoundedStream name(text, sizeof text);
  name << "Statistics " << dlgTitle;
  caption(name.terminate());
}

int DStatsDlg::selChangeTB(zNotifyEvt*) {
  previousPage_->disableTimer();
  const zPageDef* def = selected();
  if (def && def->page()) {
    currentPage_ = static_cast<TimerPage*>(def->page());
    currentPage_->enableTimer();
  }
  previousPage_ = currentPage_;
  return 0;
}

int DStatsDlg::onOk(zEvent*) {
  currentPage_->ClearStats();
  return 1;
}

int DStatsDlg::onCancel(zEvent*) {
  return 0;
}

int DStatsDlg::activate(zActivateEvt*) {
  return 0;
}
