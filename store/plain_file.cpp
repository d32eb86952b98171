#include "store/plain_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "foundation/write_all.h"

namespace {

constexpr mode_t newFileMode = 0664;

// Does not wait for a reader of a pipe.
int openPlainFile(const char* name) {
  const int file = open(name, O_WRONLY | O_CREAT | O_NONBLOCK | O_CLOEXEC, newFileMode);
  struct stat status;
  if (file < 0 || (fstat(file, &status) == 0 && S_ISREG(status.st_mode))) return file;
  close(file);
  return -1;
}

}  // namespace

bool isPlainFile(const char* name) {
  struct stat status;
  return stat(name, &status) == 0 && S_ISREG(status.st_mode);
}

void writePlainFile(const char* name, const std::vector<std::string>& pieces) {
  const int file = openPlainFile(name);
  if (file < 0) return;
  if (ftruncate(file, 0) == 0) {
    for (const std::string& piece : pieces) {
      if (!writeAll(file, piece)) break;
    }
  }
  close(file);
}

void removePlainFile(const char* name) {
  if (isPlainFile(name)) unlink(name);
}
