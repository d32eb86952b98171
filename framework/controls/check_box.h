// Check boxes.
#pragma once

#include "framework/controls/button.h"

class zCheckBox : public zButton {
 public:
  // As a template names it by class; the widget is made at once.
  zCheckBox(zWindow* parent, zSizer* sizer, unsigned long style, const char* title, int id);
  // Takes the place of a template's button. `store`, which may be null, is the variable bound to
  // it: 1 for on, 0 for off.
  zCheckBox(zWindow* parent, int id, int* store = nullptr, unsigned long bindingStyle = 0);

  int check() const { return isToggledOn() ? 1 : 0; }
  // Tells nobody.
  void check(int on) { toggle(on != 0); }

  void setStoreAddr(int* store) { store_ = store; }
  void setToDefault() override;
  int storeData() override;

 private:
  int* store_ = nullptr;
};
