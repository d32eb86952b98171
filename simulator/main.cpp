// lisim: a simulated adapter driver, to learn on and to test with.
#include <cstdio>

#include "simulator/driver_process.h"
#include "simulator/options.h"

int main(int argc, char** argv) {
  lisim::Options options;
  if (const auto error = lisim::readOptions(argc, argv, options); !error.empty()) {
    std::fprintf(stderr, "lisim: %s\nTry 'lisim --help'.\n", error.c_str());
    return 2;
  }
  if (options.help || options.version) {
    std::fputs(options.help ? lisim::helpText : lisim::versionText, stdout);
    return 0;
  }
  return lisim::runDriver(options);
}
