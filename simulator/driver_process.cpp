#include "simulator/driver_process.h"

#include <sys/signalfd.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>

#include "simulator/control_server.h"
#include "simulator/scenario.h"
#include "simulator/trace.h"
#include "simulator/wire_server.h"

namespace lisim {

namespace {

enum ExitStatus { ended = 0, cannotRun = 1, badScenario = 2 };

int complain(const std::string& words, ExitStatus status) {
  std::fprintf(stderr, "lisim: %s\n", words.c_str());
  return status;
}

// The signals that end the simulator arrive through a descriptor, so that the loop ends in order.
Descriptor takeSignals() {
  sigset_t endings;
  sigemptyset(&endings);
  for (const int signal : {SIGTERM, SIGINT, SIGHUP}) sigaddset(&endings, signal);
  sigprocmask(SIG_BLOCK, &endings, nullptr);
  std::signal(SIGPIPE, SIG_IGN);
  return Descriptor(signalfd(-1, &endings, SFD_CLOEXEC | SFD_NONBLOCK));
}

}  // namespace

int runDriver(const Options& options) {
  const MonotonicClock clock;
  EventLoop loop(clock);
  const Descriptor signals = takeSignals();
  loop.watch(signals.get(), [&] { loop.stop(); });

  Simulator simulator;
  simulator.adapters.seed = options.seed;
  simulator.adapters.populate(options.boards);
  CommandRunner runner(loop, simulator);
  if (!options.scenario.empty())
    if (const auto error = playScenario(runner, options.scenario); !error.empty())
      return complain(error, badScenario);

  ControlServer control(loop, runner);
  if (!options.control.empty())
    if (const auto error = control.listenAt(options.control); !error.empty())
      return complain(error, cannotRun);
  Trace trace(clock);
  WireServer server(loop, simulator, trace);
  if (const auto error = server.listenAt(options.device); !error.empty())
    return complain(error, cannotRun);
  // Made empty only now: another simulator on this device may be writing it.
  if (!options.trace.empty() && !trace.writeTo(options.trace))
    return complain(options.trace + ": " + std::strerror(errno), cannotRun);

  std::printf("lisim: ready on %s\n", options.device.c_str());
  std::fflush(stdout);
  loop.run();
  return ended;
}

}  // namespace lisim
