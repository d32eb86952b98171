// The Setup notebook: edits what the transfer buffers hold of the selected adapter.
//
// Its life: the main dialog fills the buffers, constructs it and runs it modally; at Ok it has its
// pages store themselves into the buffers, and the main dialog applies them. Only the lists of
// circuits and of clients change while it is open, and with them the driver. The pages are made
// before the notebook opens its session, so they know the driver by what the notebook before this
// one found: the first one of a run has none.
#pragma once

#include <cstdint>

#include "framework/dialogs/notebook.h"

class DConfigDlgI1577PG;
class DConfigDlgLECPG;
class DConfigDlgLECSPG;
class DConfigDlgLESPG;
class DConfigDlgPhysicalPG;
class DConfigDlgSignalPG;

class DConfigDlg : public zNotebookDialog {
 public:
  explicit DConfigDlg(zWindow* parent);
  ~DConfigDlg() override;

  // 1 after Ok, 0 after Cancel.
  std::int32_t result() const { return result_; }

  // Null where the board has no such page.
  DConfigDlgSignalPG* signalPage() const { return signal_; }
  DConfigDlgLECPG* lecPage() const { return lec_; }
  DConfigDlgI1577PG* ip1577Page() const { return ip1577_; }

  int activate(zActivateEvt* event) override;
  // The physical page is told when the focus leaves it for another one.
  void childFocusChange(zWindow* from, zWindow* to) override;
  int onCancel(zEvent* event) override;
  int onApply(zEvent* event) override;
  // Stores the pages whatever they hold.
  int onOk(zEvent* event) override;

 private:
  void createPages();
  void openDriver();
  void nameAfterAdapter();

  DConfigDlgPhysicalPG* physical_ = nullptr;
  DConfigDlgSignalPG* signal_ = nullptr;
  DConfigDlgLECPG* lec_ = nullptr;
  DConfigDlgLESPG* les_ = nullptr;
  DConfigDlgLECSPG* lecs_ = nullptr;
  DConfigDlgI1577PG* ip1577_ = nullptr;
  std::int32_t result_ = 0;
};
