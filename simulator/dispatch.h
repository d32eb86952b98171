// The driver's inside: takes one frame, checks it, and has it served.
#pragma once

#include <cstdint>
#include <vector>

#include "simulator/simulator.h"

namespace lisim {

// What the driver keeps per open session.
struct Caller {
  bool mayWrite = false;   // opened for writing
  std::uint32_t page = 0;  // table reads since the last row count
};

enum class Delivery { answer, silence, hangup };

// How the exchange ends. The frame is answered as it then stands, also beside an error number.
struct Outcome {
  Delivery delivery = Delivery::answer;
  int error = 0;  // the ioctl's error number
  Milliseconds delay = 0;
};

// Serves `frame` in place. Any bytes may come: what is wrong with them ends as a code in Resp or,
// where there is no whole head to put it in, as an error number.
Outcome serveFrame(Simulator& simulator, Caller& caller, std::vector<std::uint8_t>& frame,
                   Milliseconds now);

}  // namespace lisim
