// lisim: a simulated adapter driver, to learn on and to test with.
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iostream>

#include "simulator/decode.h"
#include "simulator/driver_process.h"
#include "simulator/options.h"

namespace {

enum ExitStatus { decoded = 0, cannotRead = 1, badInput = 2 };

int decode(const std::string& path) {
  std::ifstream file;
  if (path != "-") {
    file.open(path);
    if (!file) {
      std::fprintf(stderr, "lisim: %s: %s\n", path.c_str(), std::strerror(errno));
      return cannotRead;
    }
  }
  std::istream& trace = path == "-" ? std::cin : file;
  return lisim::decodeTrace(trace, std::cout, std::cerr) ? decoded : badInput;
}

}  // namespace

int main(int argc, char** argv) {
  lisim::Options options;
  if (const auto error = lisim::readOptions(argc, argv, options); !error.empty()) {
    std::fprintf(stderr, "lisim: %s\nTry 'lisim --help'.\n", error.c_str());
    return badInput;
  }
  if (options.help || options.version) {
    std::fputs(options.help ? lisim::helpText : lisim::versionText, stdout);
    return 0;
  }
  if (!options.decode.empty()) return decode(options.decode);
  return lisim::runDriver(options);
}
