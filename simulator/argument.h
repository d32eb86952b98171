// The kinds of argument a command can have.
#pragma once

#include <string>
#include <string_view>

#include "simulator/command.h"

namespace lisim {

// Reads `word` as an argument of the kind named `kind` ("board", "mac", ...). Returns "" or what
// was expected.
std::string readArgument(std::string_view kind, std::string_view word, Value& value);

}  // namespace lisim
