// The one-line commands of scenario files and of the control socket, documented in lisim(8): taken
// apart by a table of patterns, so that a line is found wrong before any of it is done.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "simulator/simulator.h"

namespace lisim {

// One argument as it was read; `given` is false for an optional one that was left out.
struct Value {
  long long number = 0;
  std::string text;
  bool given = false;
};

// What a command did: lines to show, and an error in words or "".
struct Reply {
  std::string lines;
  std::string error;
};

using Values = std::vector<Value>;

// A command's pattern: words that stand for themselves, arguments in braces, and in brackets a
// word with its argument that may be left out. `run` gets a value for each argument in the
// pattern's order.
struct CommandForm {
  const char* pattern;
  Reply (*run)(Simulator&, const Values&, Milliseconds now);
};

// The tables: everything but the services, and these.
std::span<const CommandForm> commandForms();
std::span<const CommandForm> serviceCommandForms();

struct Command {
  const CommandForm* form;
  Values values;
  Milliseconds delay = 0;   // from a leading "at"
  Milliseconds period = 0;  // from "every": 0 once
};

// Takes a line apart. Nothing without an error is a line with no command on it.
std::optional<Command> parseCommand(std::string_view line, std::string& error);

// Does it, and lets the pairs follow.
Reply runCommand(Simulator& simulator, const Command& command, Milliseconds now);

// The names of things that commands name, in the order of their enumerations.
extern const char* const alarmNames[alarmKinds];
extern const char* const counterWords[counterNames];
const char* mediumName(std::uint32_t medium);
std::string macText(const std::array<std::uint8_t, 6>& mac);

}  // namespace lisim
