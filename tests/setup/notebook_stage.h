// The Setup notebook of adapter 2 (number 1), on transfer buffers that a test fills and a simulated
// driver, without a main dialog.
#pragma once

#include "tests/apply/setup_stage.h"

#include "framework/controls/check_box.h"
#include "framework/controls/combo_box.h"
#include "framework/controls/control.h"
#include "setup/config_dialog.h"
#include "setup/setup_session.h"

// A run of the program before its first notebook: records and buffers as they start out.
class NotebookStage {
 public:
  explicit NotebookStage(const std::string& scenario = "boards 3\n")
      : driver(scenario), folder_(std::filesystem::path(driver.device()).parent_path()) {
    ConfDaiOpenSuccess = 0;
    advSettings = 1;
    currentAdapter = 1;
    dlgTitle = "Adapter 1 - 02:4c:49:00:00:00";
    atmDevices.phy[1].RLPrimary = 1;
    atmDevices.phy[1].RLBackup = -1;
    takeRecords();
  }

  // Fills the buffers as the main dialog does.
  static void takeRecords() {
    phyXferBuffer = atmDevices.phy[currentAdapter];
    sigXferBuffer = atmDevices.sig[currentAdapter];
    for (int n = 0; n < maxLecs; ++n) xferBuffer[n] = atmDevices.lec[currentAdapter][n];
    for (int n = 0; n < maxLess; ++n) lesXferBuffer[n] = atmDevices.les[currentAdapter][n];
    lecsXferBuffer = atmDevices.lecs[currentAdapter];
    ip1577XferBuffer = atmDevices.ip1577[currentAdapter];
    bridgedPvcXferBuffer = {};
    pvcXferBuffer = {};
    esiSelectorXferBuffer = esiSelector();
  }

  // A notebook whose pages know the driver: the second one of a run.
  std::unique_ptr<DConfigDlg> connected() {
    { DConfigDlg first(app->rootWindow()); }
    return std::make_unique<DConfigDlg>(app->rootWindow());
  }

  LisimProcess driver;

 private:
  Folder folder_;
};

// A page by the number of its template, and its controls by theirs.
template <class Page>
Page& pageOf(DConfigDlg& notebook, int id) {
  return *static_cast<Page*>(notebook.findPage(id)->page());
}

inline zCheckBox& box(const zWindow& page, int id) {
  return *static_cast<zCheckBox*>(page.get(id));
}

inline zControl& control(const zWindow& page, int id) {
  return *static_cast<zControl*>(page.get(id));
}

inline zComboBoxStatic& choice(const zWindow& page, int id) {
  return *static_cast<zComboBoxStatic*>(page.get(id));
}

// A click of the mouse in a control of the page that is shown.
inline void clickOn(const zWindow& page, int id) {
  const zWindow& target = *page.get(id);
  x_driver::click(target, {8, target.sizer()->height() / 2});
}
