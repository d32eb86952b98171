// The Statistics notebook: watches an adapter and its services live.
//
// Its life: the main dialog constructs one and forgets it, and several may be open; closing it
// frees it. Which links it shows is settled at its construction. Of its pages the one that is seen
// asks the driver, beside the main dialog's own timer.
#pragma once

#include "framework/dialogs/notebook.h"

class DStatsDlgSignallingPG;
class DStatsDlgAAL5PG;
class DStatsDlgLECPG;
class DStatsDlgLESPG;
class DStatsDlgLECSPG;
class DStatsDlgIP1577PG;
class TimerPage;

class DStatsDlg : public zNotebookDialog {
 public:
  // `adapter` counts from 0.
  DStatsDlg(zWindow* parent, unsigned short adapter);

  // Null where the link has no such page.
  DStatsDlgSignallingPG* signallingPage() const { return signalling_; }
  DStatsDlgAAL5PG* aal5Page() const { return aal5_; }
  DStatsDlgLECPG* lecPage() const { return lec_; }
  DStatsDlgLESPG* lesPage() const { return les_; }
  DStatsDlgLECSPG* lecsPage() const { return lecs_; }
  DStatsDlgIP1577PG* ip1577Page() const { return ip1577_; }

  int selChangeTB(zNotifyEvt* event);
  // The button "Clear": the page that is seen starts counting anew.
  int onOk(zEvent* event) override;
  // The button "Close".
  int onCancel(zEvent* event) override;
  int activate(zActivateEvt* event) override;

 private:
  void findLinks(unsigned short adapter);
  void createPages();
  void nameAfterAdapter();

  unsigned short physicalLink_ = 0;
  short dataLink_ = -1;  // the adapter whose services the board carries; -1 none
  DStatsDlgSignallingPG* signalling_ = nullptr;
  DStatsDlgAAL5PG* aal5_ = nullptr;
  DStatsDlgLECPG* lec_ = nullptr;
  DStatsDlgLESPG* les_ = nullptr;
  DStatsDlgLECSPG* lecs_ = nullptr;
  DStatsDlgIP1577PG* ip1577_ = nullptr;
  TimerPage* currentPage_ = nullptr;
  TimerPage* previousPage_ = nullptr;
};
