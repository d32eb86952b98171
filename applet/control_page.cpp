#include "applet/control_page.h"

#include <cstdio>

ControlPage::ControlPage(zNotebookDialog* notebook, zPageDef* def, const zStatusMessage* tips)
    : zDialogPage(notebook, def, def->getStyle()), tips_(tips), toolTips_(this) {
  toolTips_.setTipMessageTable(tips);
}

void ControlPage::add(zChildWin* control) {
  controls_.push_back(control);
  if (tips_.lookup(control->ctrlId())) toolTips_.add(control);
}

void ControlPage::addTabs(zTabCtrl* tabs, int count, const char* nameFormat) {
  for (int number = 1; number <= count; ++number) {
    char name[32];
    std::snprintf(name, sizeof name, nameFormat, number);
    tabs->add(number, name);
  }
}

void ControlPage::showFields() {
  for (zChildWin* control : controls_) control->setToDefault();
}
