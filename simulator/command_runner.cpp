#include "simulator/command_runner.h"

#include <algorithm>
#include <cstdio>

namespace lisim {

Reply CommandRunner::run(std::string_view line, const std::string& origin) {
  std::string error;
  const auto command = parseCommand(line, error);
  if (!command) return {"", error};
  if (command->delay == 0 && command->period == 0) return runNow(*command);
  runAt(loop_.now() + command->delay, *command, origin);
  return {};
}

void CommandRunner::runAt(Milliseconds due, const Command& command, const std::string& origin) {
  loop_.at(due, [this, due, command, origin] {
    if (command.period != 0) runAt(std::max(due + command.period, loop_.now()), command, origin);
    const Reply reply = runNow(command);
    std::fputs(reply.lines.c_str(), stdout);
    std::fflush(stdout);
    if (!reply.error.empty())
      std::fprintf(stderr, "lisim: %s: %s\n", origin.c_str(), reply.error.c_str());
  });
}

Reply CommandRunner::runNow(const Command& command) {
  Reply reply = runCommand(simulator_, command, loop_.now());
  if (simulator_.quit) loop_.stop();
  return reply;
}

}  // namespace lisim
