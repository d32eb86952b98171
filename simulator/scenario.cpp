#include "simulator/scenario.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fstream>

namespace lisim {

std::string playScenario(CommandRunner& runner, const std::string& path) {
  errno = 0;
  std::ifstream file(path);
  if (!file) return path + ": " + std::strerror(errno);
  std::string line;
  for (unsigned number = 1; std::getline(file, line); ++number) {
    const std::string origin = path + ":" + std::to_string(number);
    const Reply reply = runner.run(line, origin);
    if (!reply.error.empty()) return origin + ": " + reply.error;
    std::fputs(reply.lines.c_str(), stdout);
  }
  return file.bad() ? path + ": cannot be read" : "";
}

}  // namespace lisim
