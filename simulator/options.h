// The command line.
#pragma once

#include <cstdint>
#include <string>

namespace lisim {

struct Options {
  std::string device;
  std::string scenario;  // these four "" when not given
  std::string control;
  std::string trace;
  std::string decode;  // a trace to print instead, "-" for the standard input
  int boards = 2;      // 0 to 8
  std::uint32_t seed = 0;
  bool help = false;
  bool version = false;
};

extern const char helpText[];
extern const char versionText[];

// Reads the command line, program name included, into `options`. Returns "" or what is wrong.
std::string readOptions(int count, const char* const* words, Options& options);

}  // namespace lisim
