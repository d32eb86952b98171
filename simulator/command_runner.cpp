#include "simulator/command_runner.h"

#include <cstdio>

namespace lisim {

Reply CommandRunner::run(std::string_view line, const std::string& origin) {
  std::string error;
  const auto command = parseCommand(line, error);
  if (!command) return {"", error};
  if (command->delay == 0) return runNow(*command);
  loop_.at(loop_.now() + command->delay, [this, command, origin] {
    const Reply reply = runNow(*command);
    std::fputs(reply.lines.c_str(), stdout);
    std::fflush(stdout);
    if (!reply.error.empty())
      std::fprintf(stderr, "lisim: %s: %s\n", origin.c_str(), reply.error.c_str());
  });
  return {};
}

Reply CommandRunner::runNow(const Command& command) {
  Reply reply = runCommand(simulator_, command, loop_.now());
  if (simulator_.quit) loop_.stop();
  return reply;
}

}  // namespace lisim
