#include "framework/dialogs/dialog_controls.h"

#include "framework/core/window.h"

void hideControls(zWindow* dialog, std::initializer_list<int> ids) {
  for (const int id : ids) {
    if (zWindow* control = dialog->get(id)) control->show(0);
  }
}
