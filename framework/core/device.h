// What hears events and moves data like a control but is not a window.
#pragma once

#include "framework/core/event_handler.h"

class zDevice : public zEvH {
 public:
  // Data transfer, as of a control: the bound variable into the device; whether what the device
  // holds is acceptable; and what it holds into the variable, 1 when that was done.
  virtual void setToDefault() {}
  virtual int checkData() { return 1; }
  virtual int storeData() { return 1; }
};
