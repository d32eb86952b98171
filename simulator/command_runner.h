// Runs command lines for whoever has them: at once, or when their time comes.
#pragma once

#include <string>
#include <string_view>

#include "simulator/command.h"
#include "simulator/event_loop.h"

namespace lisim {

class CommandRunner {
 public:
  // Both must outlive the runner, and the runner the loop's runs.
  CommandRunner(EventLoop& loop, Simulator& simulator) : loop_(loop), simulator_(simulator) {}

  // Runs `line`. A line with a time is checked now and run then, one with a period again and again
  // from its time on; should it fail, standard error has a line that starts with `origin`. An empty
  // line does nothing.
  Reply run(std::string_view line, const std::string& origin);

 private:
  Reply runNow(const Command& command);
  void runAt(Milliseconds due, const Command& command, const std::string& origin);

  EventLoop& loop_;
  Simulator& simulator_;
};

}  // namespace lisim
