// The forms that edit one permanent circuit: that of the IP over ATM client in `pvcXferBuffer`,
// that of a LAN Emulation client in `bridgedPvcXferBuffer`. Rate and service are not offered.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "framework/controls/radio_button.h"
#include "setup/editor_form.h"

class zCheckBox;
class zIntEdit;
class zPushButton;
class zStringEdit;
class zUnsignedIntEdit;

// What both have in common: the controls, and the fields that they show.
class PvcEditor : public EditorForm {
 protected:
  static constexpr int llcButton = 281;
  static constexpr int nullButton = 282;

  using EditorForm::EditorForm;

  void makeControls(int addressId, const char* picture, unsigned long style);
  // The rate's field, the services in a string block, and the button for the unit, all out of sight
  // with the labels of the first two.
  void makeHidden(int rateLabelId, int rateId, int servicesBlock, int service);

  // Stores the controls, and all but the address in a buffer. The buffer's broadcast is left alone.
  template <class Pvc>
  void storeCircuit(Pvc& pvc) {
    storeControls();
    pvc.vci = static_cast<std::uint16_t>(vci_);
    pvc.Rate = static_cast<decltype(pvc.Rate)>(rate_);
    pvc.Encap = encap_ == llcButton ? 1 : 0;
  }

  std::string address_;
  int vci_ = 0;
  unsigned rate_ = 0;
  int encap_ = nullButton;  // the id of the radio button that is set
  int service_ = 0;
  zStringEdit* addressField_ = nullptr;
  zPushButton* unitsButton_ = nullptr;

 private:
  void storeControls();

  zIntEdit* vciField_ = nullptr;
  zUnsignedIntEdit* rateField_ = nullptr;
  std::unique_ptr<zRadioController> encapGroup_;
};

class DIpPvcDLG : public PvcEditor {
 public:
  DIpPvcDLG(zWindow* parent, const zResId& id);

  void SetDefaults();
  void StoreDefaults() override;
  int changeARPIPAddressED(zNotifyEvt* event);
  int clickedRateUnitsBTN(zNotifyEvt* event);
};

class DLecPvcDLG : public PvcEditor {
 public:
  DLecPvcDLG(zWindow* parent, const zResId& id);

  void Setup();
  void StoreDefaults() override;
  int clickedRateUnitsBTN(zNotifyEvt* event);

 private:
  int broadcast_ = 0;
  zCheckBox* broadcastBox_ = nullptr;
};
