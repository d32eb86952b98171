// What the pages of the applet's notebooks have in common: typed controls over those of a template,
// with their tool tips.
#pragma once

#include <utility>
#include <vector>

#include "framework/controls/tab_control.h"
#include "framework/dialogs/dialog_page.h"
#include "framework/dialogs/tool_tips.h"

class ControlPage : public zDialogPage {
 protected:
  // `tips` are the texts of the tool tips; null for none.
  ControlPage(zNotebookDialog* notebook, zPageDef* def, const zStatusMessage* tips);

  // A typed control over the template's control `id`, with its tool tip if there is one.
  // `binding` is the rest of its constructor's arguments.
  template <class Control, class... Binding>
  Control* make(int id, Binding&&... binding) {
    auto* control = new Control(this, id, std::forward<Binding>(binding)...);
    add(control);
    return control;
  }
  // A strip of the tabs 1 to `count`, named by a printf format of their number.
  template <class Tabs = zTabCtrl>
  Tabs* makeTabs(int id, int count, const char* nameFormat) {
    auto* tabs = make<Tabs>(id);
    addTabs(tabs, count, nameFormat);
    return tabs;
  }

  // Has all the controls made so far show the variables that they are bound to.
  void showFields();

 private:
  void add(zChildWin* control);
  static void addTabs(zTabCtrl* tabs, int count, const char* nameFormat);

  const zStatusMessageTable tips_;
  zToolTipCtrl toolTips_;
  std::vector<zChildWin*> controls_;
};
