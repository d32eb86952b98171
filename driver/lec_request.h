// Control of a LAN Emulation client.
#pragma once

#include "driver/control_request.h"

class lecRequest : public ControlRequest {
 public:
  lecRequest(int descriptor, unsigned short link, unsigned short unit)
      : ControlRequest(descriptor, primLecControl, link, unit,
                       formOf(Control::LecEnable).frameBytes, lecDisable) {}

  // Each sends one request and returns what daiRequest returned.

  // Starts the client, anew if it runs.
  int enable(const lecReqStruct& record) { return start(Control::LecEnable, record); }
  int disable() { return stop(Control::LecDisable); }
  int addPvc(const bdgPvcReqStruct& record) { return send(Control::LecAddPvc, record); }
  int deletePvc(const bdgPvcReqStruct& record) { return send(Control::LecDeletePvc, record); }
  int setEnhancedVC(unsigned int enhanced) { return sendWord(Control::LecSetEnhanced, enhanced); }
};
