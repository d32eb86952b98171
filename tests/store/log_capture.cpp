#include <sys/mman.h>
#include <unistd.h>

#include "foundation/odlog.h"
#include "store_fixture.h"

std::string logged(const std::function<void()>& action) {
  static const int descriptor = [] {
    const int made = memfd_create("log", MFD_CLOEXEC);
    odlog.attach(made);
    return made;
  }();
  const off_t from = lseek(descriptor, 0, SEEK_END);
  action();
  std::string text(static_cast<std::size_t>(lseek(descriptor, 0, SEEK_END) - from), '\0');
  const ssize_t got = pread(descriptor, text.data(), text.size(), from);
  EXPECT_EQ(got, static_cast<ssize_t>(text.size()));
  return text;
}
