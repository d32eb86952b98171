// Control of a LAN Emulation server.
#pragma once

#include "driver/control_request.h"

class lesRequest : public ControlRequest {
 public:
  lesRequest(int descriptor, unsigned short link, unsigned short unit)
      : ControlRequest(descriptor, primLesControl, link, unit,
                       formOf(Control::LesEnable).frameBytes, lesDisable) {}

  // Each sends one request and returns what daiRequest returned. A server that runs has to be
  // stopped before it is started.
  int enable(const lesReqStruct& record) { return start(Control::LesEnable, record); }
  int disable() { return stop(Control::LesDisable); }
};
