// Control of a board's physical layer and of its place in a redundant pair.
#pragma once

#include <cstdint>

#include "driver/control_records.h"
#include "driver/request.h"

class phyRequest : public reqParam, public Enabler {
 public:
  phyRequest(int descriptor, unsigned short link, unsigned short unit);

  // Each sends one request and returns what daiRequest returned.
  int set_Framing(long framing);
  int setVpi(unsigned int vpi);
  int setRLS(rls_req* request);
  // Switches the link of the pair that `board` belongs to; the board stays in the frame's head.
  int do_RLS_Switch(unsigned short board);

 private:
  int setWord(unsigned short type, std::uint32_t value);
};
