#include "store/plain_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <string_view>

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

bool writeAll(int file, std::string_view text) {
  while (!text.empty()) {
    const ssize_t written = write(file, text.data(), text.size());
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) return false;
    text.remove_prefix(static_cast<std::size_t>(written));
  }
  return true;
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
