// The forms of the servers' page, which talk to it through `esiSelectorXferBuffer` and through the
// lists `esiXferBuffer`, `indexXferBuffer` and `permXferBuffer`.
#pragma once

#include <string>

#include "framework/layout/sizer.h"
#include "setup/editor_form.h"

class zMultiList;
class zStringEdit;

// Asks for the address of one client; shows what the buffer holds.
class DElandlg : public EditorForm {
 public:
  DElandlg(zWindow* parent, const zResId& id);
  void StoreDefaults() override;

 private:
  std::string address_;
  zStringEdit* addressField_;
};

// Offers the clients of the lists, and leaves in them those that were chosen.
class DMvClientDLG : public EditorForm {
 public:
  DMvClientDLG(zWindow* parent, const zResId& id);

  void Setup();
  void StoreDefaults() override;

 private:
  void makeSizeable();

  zMultiList* choices_;
  zExpandLayout layout_;
};
