// Finding sections: the file, its lines and its brackets.
#include "store/section.h"

#include <cstdarg>
#include <cstring>
#include <new>

#include "store/section_internal.h"

int dV = 0;
const char SectDmsg[] =
    "====================================="
    "=====================================";
static_assert(sizeof SectDmsg == 74 + 1);

namespace {

constexpr int sectWriteFlag = 2;

bool isNameEnd(char c) {
  return isBlank(c) || isLineEnd(c) || c == '=' || c == '#' || c == '\0';
}

const char* lineEnd(const SectHandle* handle) {
  return handle->linebuf + handle->lineLength;
}

// The word at `from`, up to a character that ends a name.
std::string_view nameAt(const char* from, const char* end) {
  const char* stop = from;
  while (stop != end && !isNameEnd(*stop)) ++stop;
  return {from, static_cast<std::size_t>(stop - from)};
}

const char* skipBlanks(const char* from, const char* end) {
  while (from != end && isBlank(*from)) ++from;
  return from;
}

const char* findMark(const char* from, const char* end) {
  while (from != end && *from != '[' && *from != ']' && *from != '#') ++from;
  return from;
}

// Reads a line as fgets does and returns its length, which counts the NULs in it: the first line
// feed of the buffer is the line's own if the terminator follows it, and otherwise what was there
// before, right behind the terminator.
std::ptrdiff_t readLine(char (&line)[sectLineBytes], std::FILE* file) {
  std::memset(line, '\n', sizeof line);
  if (fgets_unlocked(line, sizeof line, file) == nullptr) {
    line[0] = '\0';
    return 0;
  }
  const char* const feed = static_cast<const char*>(std::memchr(line, '\n', sizeof line));
  if (feed == nullptr) return sectLineBytes - 1;
  const bool isOwn = feed != line + sectLineBytes - 1 && feed[1] == '\0';
  return (isOwn ? feed + 1 : feed - 1) - line;
}

bool holdsBracket(const SectHandle* handle) {
  const auto length = static_cast<std::size_t>(handle->lineLength);
  return std::memchr(handle->linebuf, '[', length) || std::memchr(handle->linebuf, ']', length);
}

// Copies a file name into its field; false if it is too long.
bool setName(char (&field)[sectNameBytes], const char* name) {
  const std::size_t length = std::strlen(name);
  if (length >= sizeof field) return false;
  std::memcpy(field, name, length + 1);
  return true;
}

bool openForReading(SectHandle* handle, const char* file) {
  if (setName(handle->rfn, file)) handle->rfd = std::fopen(handle->rfn, "re");
  if (handle->rfd == nullptr) {
    std::printf("OpenSection: Error Opening File %s\n", file);
    return false;
  }
  sectTrace("OpenSection: rfn=%s\n", handle->rfn);
  if (std::fseek(handle->rfd, 0, SEEK_SET) != 0) {
    sectTrace("openSection: fseek(,0,) != 0... error.\n");
    return false;
  }
  return true;
}

// Makes and positions the handle, as far as that goes; false leaves it for the caller to close.
bool openOn(SectHandle* handle, const char* file, const char* sectionPath) {
  if ((handle->rflg & sectWriteFlag) != 0) {
    std::printf("OpenSection: File %s is open for reading only\n", file);
    return false;
  }
  if (!openForReading(handle, file)) return false;
  sectTrace("OpenSection: search=%s\n", sectionPath);
  while (SectReadLine(handle) > 0) {
    if (!SectScanLine(handle, sectionPath)) continue;
    ReadSectData(handle);
    return true;
  }
  return false;
}

}  // namespace

void sectTrace(const char* format, ...) {
  if (dV == 0) return;
  std::va_list arguments;
  va_start(arguments, format);
  std::vprintf(format, arguments);
  va_end(arguments);
}

unsigned sectTraceId(const void* pointer) {
  return static_cast<unsigned>(reinterpret_cast<std::uintptr_t>(pointer));
}

SectHandle* OpenSection(const char* file, const char* sectionPath, int flags) {
  sectTrace("OpenSection(%s,%s,0x%x)\n", file, sectionPath, static_cast<unsigned>(flags));
  SectHandle* handle = new (std::nothrow) SectHandle{};
  if (handle == nullptr) {
    if (dV != 0) std::fprintf(stderr, "\nOpenSection: %s\n", SectDmsg);
    return nullptr;
  }
  sectTrace("\n%s\nOpenSection: handle=%x\n", SectDmsg, sectTraceId(handle));
  handle->cookie = sectCookie;
  handle->rflg = flags;
  if (openOn(handle, file, sectionPath)) return handle;
  sectTrace("OpenSectionBad: %s\n", sectionPath);
  CloseSection(handle);
  return nullptr;
}

SectHandle* OpenNextSection(SectHandle* handle) {
  if (handle == nullptr) return nullptr;
  sectTrace("\nOpenNextSection: hd=%x sect=%s\n", sectTraceId(handle), handle->section);
  char path[sectNameBytes];
  std::memcpy(path, handle->section, sizeof path);
  do {
    if (SectScanLine(handle, path)) return ReadSectData(handle) > 0 ? handle : nullptr;
  } while (SectReadLine(handle) > 0);
  return nullptr;
}

void CloseSection(SectHandle* handle) {
  if (handle == nullptr) {
    sectTrace("CloseSection: VOID handle\n");
    return;
  }
  if (handle->cookie != sectCookie) {
    sectTrace("CloseSection: BAD cookie (h=%x c=%x)\n", sectTraceId(handle), handle->cookie);
    return;
  }
  sectTrace("CloseSection: rfn=%s\n", handle->rfn);
  if (handle->rfd != nullptr) std::fclose(handle->rfd);
  sectTrace("CloseSection: handle=0x%x\n", sectTraceId(handle));
  handle->cookie = ~handle->cookie;
  delete handle;
}

SectHandle* ValidHandle(SectHandle* handle) {
  if (handle == nullptr) {
    sectTrace("ValidHandle: NULL handle\n");
    return nullptr;
  }
  if (handle->cookie == sectCookie) return handle;
  sectTrace("ValidHandle: BAD cookie (h=%x c=%x)\n", sectTraceId(handle), handle->cookie);
  return nullptr;
}

int SectReadLine(SectHandle* handle) {
  handle->lineLength = static_cast<std::int32_t>(readLine(handle->linebuf, handle->rfd));
  if (handle->lineLength == 0) return 0;
  ++handle->line;
  sectTrace("line %-3d %s", handle->line, handle->linebuf);
  return handle->lineLength;
}

int ReadSectData(SectHandle* handle) {
  handle->dataLength = 0;
  handle->data[0] = '\0';
  while (SectReadLine(handle) > 0) {
    if (handle->dataLength + handle->lineLength > sectDataBytes) {
      std::printf("ReadSectData: Buffer Exceeded\n");
      return 0;
    }
    std::memcpy(handle->data + handle->dataLength, handle->linebuf,
                static_cast<std::size_t>(handle->lineLength) + 1);
    handle->dataLength += handle->lineLength;
    if (holdsBracket(handle)) break;
  }
  sectTrace("ReadSectData: Section data\n%s\n", handle->data);
  return handle->dataLength;
}

void SectNameFwd(SectHandle* handle, const char* position) {
  const char* end = lineEnd(handle);
  const std::string_view name = nameAt(position + 1, end);
  std::string_view value;
  const char* behind = skipBlanks(name.data() + name.size(), end);
  if (behind != end && *behind == '=') {
    value = nameAt(skipBlanks(behind + 1, end), end);
  } else if (behind != end && !isLineEnd(*behind) && *behind != '#') {
    std::printf("SectNameFwd: syntax error @ line %d\n", handle->line);
    return;
  }
  const std::size_t length = std::strlen(handle->section);
  if (length + 1 + name.size() + value.size() >= sectNameBytes) {
    std::printf("SectNameFwd: Section Name Exceeds Buffer\n");
    return;
  }
  char* component = handle->section + length;
  *component++ = '/';
  component += name.copy(component, name.size());
  component += value.copy(component, value.size());
  *component = '\0';
  ++handle->nest;
  sectTrace("SectNameFwd: sect=%s  nest=%d\n", handle->section, handle->nest);
}

void SectNameRev(SectHandle* handle) {
  char* component = std::strrchr(handle->section, '/');
  if (component == nullptr) return;
  *component = '\0';
  --handle->nest;
  sectTrace("SectNameRev: sect=%s  nest=%d\n", handle->section, handle->nest);
}

bool SectScanLine(SectHandle* handle, std::string_view path) {
  if (!holdsBracket(handle)) return false;
  const char* end = lineEnd(handle);
  for (const char* mark = findMark(handle->linebuf, end); mark != end && *mark != '#';
       mark = findMark(mark + 1, end)) {
    if (*mark == '[') {
      SectNameFwd(handle, mark);
    } else {
      SectNameRev(handle);
    }
    if (path == handle->section) return true;
  }
  return false;
}

void SectDump(const SectHandle* handle) {
  std::printf("cookie  %x\nrfd     %x\nwfd     %x\n", handle->cookie, sectTraceId(handle->rfd),
              sectTraceId(handle->wfd));
  std::printf("rflg    %x\nwflg    %d\nnest    %d\nline    %d\n",
              static_cast<unsigned>(handle->rflg), handle->wflg, handle->nest, handle->line);
  std::printf("rfn     %s\nwfn     %s\nsection %s\nlinebuf %s\ndata    %s\n", handle->rfn,
              handle->wfn, handle->section, handle->linebuf, handle->data);
}
