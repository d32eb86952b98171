// What the simulated driver knows: the state behind every answer, changed by requests, by commands
// and by time.
#pragma once

#include <cstdint>

#include "simulator/adapters.h"
#include "simulator/fault.h"

namespace lisim {

struct Simulator {
  Adapters adapters;
  Faults faults;
  std::uint32_t debugTrace = 0;  // selectors switched on: 1 API, 2 signalling, 4 ILMI
  bool quit = false;             // asked to end
};

}  // namespace lisim
