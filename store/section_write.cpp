// Rewriting: the temporary file, created sections, and the replacement of the file.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <string>

#include "platform/names.h"
#include "store/section.h"
#include "store/section_internal.h"

namespace {

// All writers of a process share the name of the temporary file.
bool writerOpen = false;

// Opens the name as a new file, or returns -1. What a crashed process of the same id left is
// replaced; anything but a regular file in its place is not.
int createTemporary(const char* name) {
  constexpr int flags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
  constexpr mode_t mode = S_IRUSR | S_IWUSR;
  const int made = open(name, flags, mode);
  if (made >= 0 || errno != EEXIST) return made;
  struct stat left;
  if (lstat(name, &left) != 0 || !S_ISREG(left.st_mode) || unlink(name) != 0) return -1;
  return open(name, flags, mode);
}

bool startOver(SectHandle* handle) {
  if (std::fseek(handle->rfd, 0, SEEK_SET) != 0 || std::fseek(handle->wfd, 0, SEEK_SET) != 0) {
    SectDamage(handle);
    return false;
  }
  SectForgetAhead(handle);
  handle->line = 0;
  handle->nest = 0;
  handle->section[0] = '\0';
  handle->midLine = false;
  return true;
}

// Copies the lines in front of the one with the parent's head. Returns the head's bracket.
const char* copyToHead(SectHandle* handle, std::string_view parent) {
  while (SectSkipLines(handle) && SectReadLine(handle) > 0) {
    if (const char* mark = SectScanLine(handle, parent)) return mark;
    if (!SectPutLine(handle)) break;
  }
  return nullptr;
}

// Counts and follows the brackets of linebuf from `from` on. Returns the one that takes the depth
// to 0, or null.
const char* findEnd(SectHandle* handle, const char* from, int& depth) {
  while (const char* mark = SectNextMark(handle, from)) {
    if (*mark == '[') {
      ++depth;
      SectNameFwd(handle, mark);
    } else {
      if (--depth == 0) return mark;
      SectNameRev(handle);
    }
    from = mark + 1;
  }
  return nullptr;
}

// Whether the last head in front of a bracket reads on into it, as in "[A]" or "[A ]", so that it
// would be another one without it.
bool endsInHead(const SectHandle* handle, const char* bracket) {
  const auto length = static_cast<std::size_t>(bracket - handle->linebuf);
  const std::size_t start = std::string_view(handle->linebuf, length).rfind('[');
  if (start == std::string_view::npos) return false;
  const SectHead head = SectHeadAt(handle, handle->linebuf + start);
  return !head.valid || head.end > bracket;
}

// Copies what shares the line with the bracket in front of it, and ends the line there; linebuf
// keeps the rest. A bracket that starts its line stays with its blanks.
bool splitLine(SectHandle* handle, const char* bracket) {
  const auto length = static_cast<std::size_t>(bracket - handle->linebuf);
  const std::string_view front(handle->linebuf, length);
  if (front.find_first_not_of(" \t") != front.npos) {
    if (!SectPut(handle, front)) return false;
    handle->lineLength -= static_cast<std::int32_t>(length);
    std::memmove(handle->linebuf, bracket, static_cast<std::size_t>(handle->lineLength) + 1);
  }
  return !handle->midLine || SectPut(handle, "\n");
}

// Copies the file up to the end of the parent, which is left in linebuf. Where heads that are none
// make the brackets count otherwise than the sections, the new one could not be found again.
bool copyToEnd(SectHandle* handle, std::string_view parent) {
  const char* head = copyToHead(handle, parent);
  if (head == nullptr) return false;
  int depth = 1;
  const char* end = findEnd(handle, head + 1, depth);
  while (end == nullptr) {
    if (!SectPutLine(handle) || !SectSkipLines(handle) || SectReadLine(handle) == 0) return false;
    end = findEnd(handle, handle->linebuf, depth);
  }
  return parent == handle->section && !endsInHead(handle, end) && splitLine(handle, end);
}

std::string bracketLine(int nest, char bracket, std::string_view name) {
  std::string line(static_cast<std::size_t>(SectTabs(nest)), '\t');
  line += bracket;
  line += name;
  line += '\n';
  return line;
}

bool isComponent(std::string_view name) {
  return name.find_first_of("[]#= \t\r\n") == name.npos;
}

// Writes `data` and what stands behind it.
bool putRest(SectHandle* handle) {
  if (!SectPut(handle, {handle->data, static_cast<std::size_t>(handle->dataLength)})) return false;
  if ((handle->rflg & sectCreated) != 0 && !SectPut(handle, bracketLine(handle->nest, ']', ""))) {
    return false;
  }
  return (!handle->linePending || SectPutLine(handle)) && SectPutRest(handle);
}

// Whether the owner was given or is one that this user may not give or that has no number here.
bool owned(int result) {
  return result == 0 || errno == EPERM || errno == EINVAL;
}

// Gives the temporary file the owner, group and mode of the file. Of an owner that can't be given
// the group alone is kept, if that goes.
bool keepAttributes(SectHandle* handle) {
  struct stat old;
  const int target = fileno(handle->wfd);
  if (fstat(fileno(handle->rfd), &old) != 0) return false;
  const int both = fchown(target, old.st_uid, old.st_gid);
  return owned(both) && (both == 0 || owned(fchown(target, uid_t(-1), old.st_gid))) &&
         fchmod(target, old.st_mode & 07777) == 0;
}

// Writes the temporary file to its end and forces it to disk.
bool finishTemporary(SectHandle* handle) {
  return putRest(handle) && std::fflush(handle->wfd) == 0 && keepAttributes(handle) &&
         fsync(fileno(handle->wfd)) == 0;
}

// Forces the rename to disk. The new file is whole whether or not that goes.
void syncDirectory(const std::string& file) {
  const std::size_t slash = file.rfind('/');
  const std::string folder = slash == file.npos ? "." : file.substr(0, slash + 1);
  const int descriptor = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (descriptor < 0) return;
  fsync(descriptor);
  close(descriptor);
}

// Writes, closes and renames; false, with a message, where that failed.
bool replaceFile(SectHandle* handle) {
  const bool written = finishTemporary(handle);
  const bool closed = std::fclose(handle->wfd) == 0;
  if (!written || !closed) {
    std::printf("CloseSection: Error Writing File %s\n\n", handle->wfn);
    return false;
  }
  if (std::rename(handle->wfn, handle->rfn) != 0) {
    std::printf("CloseSection: Rename Error\n\n");
    return false;
  }
  syncDirectory(handle->rfn);
  return true;
}

}  // namespace

void SectDamage(SectHandle* handle) {
  handle->damaged = true;
  handle->wflg = 0;
}

bool SectOpenTemporary(SectHandle* handle) {
  const int length = std::snprintf(handle->wfn, sizeof handle->wfn, "%sOD%x", atmDirectory,
                                   static_cast<unsigned>(getpid()));
  const bool fits = length > 0 && static_cast<std::size_t>(length) < sizeof handle->wfn;
  const int descriptor = fits && !writerOpen ? createTemporary(handle->wfn) : -1;
  if (descriptor >= 0) handle->wfd = fdopen(descriptor, "w");
  if (handle->wfd == nullptr) {
    std::printf("OpenSection: Error Opening File %s\n", handle->wfn);
    if (descriptor < 0) return false;
    close(descriptor);
    std::remove(handle->wfn);
    return false;
  }
  writerOpen = true;
  sectTrace("OpenSection: wfn=%s\n", handle->wfn);
  return true;
}

bool SectPut(SectHandle* handle, std::string_view text) {
  if (handle->wfd == nullptr || text.empty()) return true;
  if (handle->damaged) return false;
  if (std::fwrite(text.data(), 1, text.size(), handle->wfd) != text.size()) {
    SectDamage(handle);
    return false;
  }
  handle->midLine = text.back() != '\n';
  return true;
}

bool SectPutLine(SectHandle* handle) {
  return SectPut(handle, {handle->linebuf, static_cast<std::size_t>(handle->lineLength)});
}

SectHandle* CreateSection(SectHandle* handle, const char* path) {
  sectTrace("CreateSection: %s\n", path);
  const std::string_view whole(path);
  const std::size_t slash = whole.rfind('/');
  if (slash == whole.npos || !isComponent(whole.substr(slash + 1))) return nullptr;
  if (whole.size() >= sectNameBytes) {
    std::printf("CreateSection: Section Name Exceeds Buffer\n");
    return nullptr;
  }
  if (!startOver(handle) || !copyToEnd(handle, whole.substr(0, slash)) ||
      !SectPut(handle, bracketLine(handle->nest, '[', whole.substr(slash + 1)))) {
    if (handle->damaged && std::ferror(handle->rfd) == 0) {
      std::printf("CreateSection: Error Writing File %s\n\n", handle->wfn);
    }
    return nullptr;
  }
  std::memcpy(handle->section, path, whole.size() + 1);
  handle->rflg |= sectCreated;
  handle->linePending = true;
  sectTrace("CreateSectionOk: %s nest=%d rflg=%x\n", handle->section, handle->nest,
            static_cast<unsigned>(handle->rflg));
  return handle;
}

bool SectCommit(SectHandle* handle) {
  sectTrace("CloseSection: wfn=%s flg=%d\n", handle->wfn, handle->wflg);
  const bool asked = handle->wflg != 0;
  if (!asked) std::fclose(handle->wfd);
  const bool replaced = asked && replaceFile(handle);
  if (!replaced) std::remove(handle->wfn);
  handle->wfd = nullptr;
  writerOpen = false;
  return replaced || !asked;
}
