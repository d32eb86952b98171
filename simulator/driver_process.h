// The simulated driver as a process: from its options to its end.
#pragma once

#include "simulator/options.h"

namespace lisim {

// Plays the driver until a signal or a command ends it. Returns the exit status: 0, 1 when a
// socket or file can't be had, 2 when the scenario is wrong; then standard error says why.
int runDriver(const Options& options);

}  // namespace lisim
