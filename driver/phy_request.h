// Control of a board's physical layer and of its place in a redundant pair.
#pragma once

#include "driver/control_request.h"

class phyRequest : public ControlRequest {
 public:
  phyRequest(int descriptor, unsigned short link, unsigned short unit)
      : ControlRequest(descriptor, primPhyControl, link, unit,
                       formOf(Control::PhySetFraming).frameBytes, 0) {}

  // Each sends one request and returns what daiRequest returned.
  int set_Framing(long framing) { return sendWord(Control::PhySetFraming, framing); }
  int setVpi(unsigned int vpi) { return sendWord(Control::PhySetVpi, vpi); }
  int setRLS(const rls_req* request);
  // Switches the link of the pair that `board` belongs to; the board stays in the frame's head.
  int do_RLS_Switch(unsigned short board);
};
