// Control of a board's signalling. The frame is built at its largest size; its payload stands
// behind the signalling head, whose eight bytes are zero.
#pragma once

#include "driver/control_request.h"

class sigRequest : public ControlRequest {
 public:
  sigRequest(int descriptor, unsigned short link, unsigned short unit);

  // Each sends one request and returns what daiRequest returned.

  // Hands the record over, marked as an update of this object's adapter.
  int UpdateCfg(const sigPortCfg_s& cfg);
  // Starts or stops signalling: `state` is a SigPortState.
  int PortEnableDisable(unsigned char state);
  // Switches one of the driver's traces: 1 API, 2 signalling, 4 ILMI.
  int setDebugTrace(unsigned char selector, unsigned char state);
};
