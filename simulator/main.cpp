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

enum ExitStatus { decoded = 0, failed = 1, badInput = 2 };

int complain(const std::string& name) {
  std::fprintf(stderr, "lisim: %s: %s\n", name.c_str(), std::strerror(errno));
  return failed;
}

int decode(const std::string& path) {
  std::ifstream file;
  if (path != "-") {
    file.open(path);
    if (!file) return complain(path);
  }
  std::istream& trace = path == "-" ? std::cin : file;
  const bool good = lisim::decodeTrace(trace, std::cout, std::cerr);
  if (trace.bad()) return complain(path);
  if (!std::cout.flush()) return complain("standard output");
  return good ? decoded : badInput;
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
