// Dialogs of the tests' own with every control of the framework in them, for the monkey to play
// with and for the gallery to show.
//
// A control is a record in one of the templates of every_control.cpp and a line in the constructor
// of the dialog or page that adopts it.
#pragma once

#include <memory>
#include <string>

#include "framework/core/timer.h"
#include "framework/dialogs/form_dialog.h"
#include "framework/dialogs/notebook.h"
#include "framework/dialogs/tool_tips.h"
#include "framework/table/table.h"

class zStatusLineEZ;

// The main window: opens all the others, and has a table in which a timer changes a cell now and
// then.
class EveryControlDlg : public zFormDialog {
 public:
  // The notebook comes up with the page of this id, counted from 0.
  explicit EveryControlDlg(int firstPage = 0);

 private:
  void createTable();
  void createButtons();
  int openForm(zNotifyEvt* event);
  int openNotebook(zNotifyEvt* event);
  int openFonts(zNotifyEvt* event);
  int openMessage(zNotifyEvt* event);
  int close(zNotifyEvt* event);
  void changeCell();

  zTableSmallModel model_;
  zTable* table_ = nullptr;
  zStatusLineEZ* statusLine_ = nullptr;
  std::unique_ptr<zToolTipCtrl> tips_;
  std::unique_ptr<zTimer> timer_;
  unsigned long changes_ = 0;
  int firstPage_;
};

// A form that opens more of its kind, each blocking the one below.
class EveryForm : public zFormDialog {
 public:
  // `depth` forms are below it.
  EveryForm(zWindow* parent, int depth);

 private:
  int openNested(zNotifyEvt* event);
  int openMessage(zNotifyEvt* event);

  int depth_;
  std::string name_ = "adapter";
  std::string speed_ = "OC-3";
  int enabled_ = 1;
};

// A notebook whose pages have the controls, kind by kind.
class EveryNotebook : public zNotebookDialog {
 public:
  explicit EveryNotebook(zWindow* parent);

  zDialogPage* createPage(zPageDef* def) override;
};
