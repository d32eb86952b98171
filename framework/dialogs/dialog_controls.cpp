#include "framework/dialogs/dialog_controls.h"

#include "framework/core/window.h"

void hideControls(zWindow* dialog, std::initializer_list<int> ids) {
  for (const int id : ids) {
    if (zWindow* control = dialog->get(id)) control->show(0);
  }
}

void enableControls(zWindow* dialog, std::initializer_list<int> ids, bool on) {
  for (const int id : ids) {
    zWindow* control = dialog->get(id);
    if (!control || control->isEnabled() == on) continue;
    if (on) {
      control->enable();
    } else {
      control->disable();
    }
  }
}
