// Scenario files: one command a line.
#pragma once

#include <string>

#include "simulator/command_runner.h"

namespace lisim {

// Runs every line of the file at `path`, those with a time when it comes. Stops at the first line
// that is wrong. Returns "" or, with file and line, what went wrong.
std::string playScenario(CommandRunner& runner, const std::string& path);

}  // namespace lisim
