// usage: monkey --window TITLE [--seed N] [--events N] [--tell]
// Plays with the program whose main window has this title, on $DISPLAY, and then lets it end. The
// same seed sends the same events as far as the program shows the same windows in time. Every
// thousand events the program must answer a probe within some seconds. Prints what it did; the exit
// status is 1 when the program stops answering or goes.
#include <X11/extensions/XTest.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include "tests/monkey/monkey.h"
#include "tests/monkey/probe.h"

namespace {

constexpr long eventsBetweenProbes = 1000;
constexpr double patience = 10;  // seconds

struct Options {
  std::string window;
  std::uint64_t seed = 1;
  long events = 10000;
  bool tells = false;
};

bool parse(int argc, char** argv, Options& options) {
  for (int i = 1; i < argc; ++i) {
    const std::string word = argv[i];
    if (word == "--tell") {
      options.tells = true;
    } else if (i + 1 == argc) {
      return false;
    } else if (word == "--window") {
      options.window = argv[++i];
    } else if (word == "--seed") {
      options.seed = std::strtoull(argv[++i], nullptr, 10);
    } else if (word == "--events") {
      options.events = std::strtol(argv[++i], nullptr, 10);
    } else {
      return false;
    }
  }
  return !options.window.empty();
}

// A window that has gone in the meantime is no fault of this program's.
int ignoreError(Display*, XErrorEvent*) {
  return 0;
}

// The outcome of a run, printed as it goes along.
struct Run {
  Stage stage;
  Monkey monkey;
  Probe probe;
  int answered = 0;
  double slowest = 0;

  Run(Display* display, const Options& options)
      : stage(display, options.window),
        monkey(stage, options.seed, options.tells),
        probe(display) {}

  bool isAnswered() {
    const double seconds = probe.answerTime(stage.main(), patience);
    if (seconds < 0) return false;
    ++answered;
    if (seconds > slowest) slowest = seconds;
    return true;
  }

  const char* play(long events) {
    while (monkey.eventsPlayed() < events) {
      if (!monkey.play()) return "the main window has gone";
      probe.refuseLate();
      const bool due = monkey.eventsPlayed() % eventsBetweenProbes == 0;
      if ((due || monkey.eventsPlayed() == events) && !isAnswered()) return "no answer to a probe";
    }
    return nullptr;
  }
};

}  // namespace

int main(int argc, char** argv) {
  Options options;
  if (!parse(argc, argv, options)) {
    std::fprintf(stderr, "usage: monkey --window TITLE [--seed N] [--events N] [--tell]\n");
    return 2;
  }
  Display* const display = XOpenDisplay(nullptr);
  if (!display) return std::fprintf(stderr, "monkey: no display\n"), 2;
  XSetErrorHandler(ignoreError);
  XTestGrabControl(display, True);  // also while the program has the server to itself
  const double start = secondsNow();
  Run run(display, options);
  const char* failure = run.play(options.events);
  std::printf("monkey: seed %llu, %ld events, %d probes answered, the slowest in %.2f s, %.1f s\n",
              static_cast<unsigned long long>(options.seed), run.monkey.eventsPlayed(),
              run.answered, run.slowest, secondsNow() - start);
  if (failure) std::printf("monkey: %s\n", failure);
  if (!failure) run.monkey.finish();
  return failure ? 1 : 0;
}
