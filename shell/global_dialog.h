// What holds for the whole run: the statistics pages' period, the advanced pages, the tables' font,
// the driver's limits and its debug traces. Nothing of it goes into the configuration file.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "applet/control_page.h"
#include "framework/dialogs/notebook.h"

class sigRequest;
class zCheckBox;
class zComboBoxStatic;

// The driver's traces as they were switched last, 0 off.
extern std::int32_t ApiDbgCB;
extern std::int32_t SignallingDbgCB;
extern std::int32_t IlmiDbgCB;

class DGlobalDlgAppPG : public ControlPage {
 public:
  DGlobalDlgAppPG(zNotebookDialog* notebook, zPageDef* def);

  // The period that is selected, in milliseconds.
  std::uint32_t refreshRate() const;

  int selChangeRefreshRateCBO(zNotifyEvt* event);
  int clickedAdvSettingsCB(zNotifyEvt* event);
  int clickedFontBTN(zNotifyEvt* event);

 private:
  std::string rate_;
  zComboBoxStatic* rateBox_ = nullptr;
};

// The driver's limits, for reading.
class DGlobalDlgConnectPG : public ControlPage {
 public:
  DGlobalDlgConnectPG(zNotebookDialog* notebook, zPageDef* def);

 private:
  unsigned long maxPtToPt_;
  unsigned long maxPtToMpt_;
  unsigned long maxMptEndpts_;
};

class DGlobalDlgDebugPG : public ControlPage {
 public:
  DGlobalDlgDebugPG(zNotebookDialog* notebook, zPageDef* def);

  // Stores the check boxes ahead of the others.
  void StoreDefaults();
  bool debugChanged() const { return debugChanged_; }

  int clickedApiCB(zNotifyEvt* event);
  int clickedSignallingCB(zNotifyEvt* event);
  int clickedIlmiCB(zNotifyEvt* event);

 private:
  zCheckBox* apiBox_;
  zCheckBox* signallingBox_;
  zCheckBox* ilmiBox_;
  bool debugChanged_ = false;
};

class DGlobalDlg : public zNotebookDialog {
 public:
  explicit DGlobalDlg(zWindow* parent);
  ~DGlobalDlg() override;

  // Whether it ended with Ok.
  bool result() const { return result_; }

  int onOk(zEvent* event) override;
  int onCancel(zEvent* event) override;
  int activate(zActivateEvt* event) override;

 private:
  void createPages();
  void switchTraces();

  DGlobalDlgAppPG* app_ = nullptr;
  DGlobalDlgConnectPG* connect_ = nullptr;
  DGlobalDlgDebugPG* debug_ = nullptr;
  std::unique_ptr<sigRequest> request_;  // null without a driver
  bool result_ = false;
};
