// Finding sections: the file, its lines and its brackets.
#include "store/section.h"

#include <cstdarg>
#include <cstring>
#include <new>

#include "store/plain_file.h"
#include "store/section_internal.h"

int dV = 0;
const char SectDmsg[] =
    "====================================="
    "=====================================";
static_assert(sizeof SectDmsg == 74 + 1);

namespace {

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

bool holdsBracket(const SectHandle* handle) {
  const auto length = static_cast<std::size_t>(handle->lineLength);
  return std::memchr(handle->linebuf, '[', length) || std::memchr(handle->linebuf, ']', length);
}

// Enters or leaves the section at a bracket of linebuf.
void followMark(SectHandle* handle, const char* mark) {
  if (*mark == '[') {
    SectNameFwd(handle, mark);
  } else {
    SectNameRev(handle);
  }
}

// Copies a file name into its field; false if it is too long.
bool setName(char (&field)[sectNameBytes], const char* name) {
  const std::size_t length = std::strlen(name);
  if (length >= sizeof field) return false;
  std::memcpy(field, name, length + 1);
  return true;
}

// What is no plain file might block or never end.
bool openForReading(SectHandle* handle, const char* file) {
  const bool plain = setName(handle->rfn, file) && isPlainFile(handle->rfn);
  if (plain) handle->rfd = std::fopen(handle->rfn, "re");
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

// Loads the text behind the bracket `mark` of linebuf. Another bracket behind that one means that
// the text is of another section already; reading doesn't mind, but nothing may be written to it.
int loadBehind(SectHandle* handle, const char* mark) {
  const bool shared = SectNextMark(handle, mark + 1) != nullptr;
  const int length = ReadSectData(handle);
  if (shared) handle->refusal = "Section Shares The Line Of Its Head";
  return length;
}

// Reads on to a line that may hold a bracket and passes on everything up to its end. Returns its
// length, 0 at the end of the file and -1 where writing failed.
int nextLine(SectHandle* handle) {
  if (!SectSkipLines(handle)) return -1;
  const int length = SectReadLine(handle);
  return SectPutLine(handle) ? length : -1;
}

// Positions the handle on the section, as far as that goes.
bool findSection(SectHandle* handle, const char* path) {
  sectTrace("OpenSection: search=%s\n", path);
  int length;
  while ((length = nextLine(handle)) > 0) {
    if (const char* mark = SectScanLine(handle, path)) {
      loadBehind(handle, mark);
      return true;
    }
  }
  if (length < 0) std::printf("OpenSection: Error Writing File %s\n\n", handle->wfn);
  // What can't be read may hold the section.
  if (handle->wfd == nullptr || std::ferror(handle->rfd) != 0) return false;
  sectTrace("calling CreateSection...for '%s'\n", path);
  return CreateSection(handle, path) != nullptr;
}

// Opens the files and positions the handle; false leaves it for the caller to close.
bool openOn(SectHandle* handle, const char* file, const char* sectionPath) {
  if (!openForReading(handle, file)) return false;
  if ((handle->rflg & sectWrite) != 0) {
    handle->rflg &= ~sectCreated;
    if (!SectOpenTemporary(handle)) return false;
  }
  return findSection(handle, sectionPath);
}

// Follows linebuf and the lines behind it to the next bracket of the path, or, as far as reading
// goes, to where writing failed. Returns the length of the text there, 0 at the end of the file.
int loadNext(SectHandle* handle, std::string_view path) {
  for (;;) {
    if (const char* mark = SectScanLine(handle, path)) return loadBehind(handle, mark);
    const int length = nextLine(handle);
    if (length == 0) return 0;
    if (length < 0) {
      std::printf("OpenNext: Error Writing File %s\n\n", handle->wfn);
      return ReadSectData(handle);
    }
  }
}

// Passes on `data`, and the line behind it if that is in neither file yet.
bool passData(SectHandle* handle) {
  if (handle->wfd == nullptr) return true;
  const bool passed =
      SectPut(handle, {handle->data, static_cast<std::size_t>(handle->dataLength)}) &&
      (!handle->linePending || SectPutLine(handle));
  if (!passed) std::printf("OpenNext: Error Writing File %s\n\n", handle->wfn);
  handle->dataLength = 0;
  handle->data[0] = '\0';
  handle->linePending = false;
  return passed;
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
  handle->wflg = 0;
  CloseSection(handle);
  return nullptr;
}

SectHandle* OpenNextSection(SectHandle* handle) {
  if (handle == nullptr) return nullptr;
  sectTrace("\nOpenNextSection: hd=%x sect=%s\n", sectTraceId(handle), handle->section);
  // The path of a created section stands nowhere else.
  if (handle->wfd != nullptr && (handle->rflg & sectCreated) != 0) return nullptr;
  char path[sectNameBytes];
  std::memcpy(path, handle->section, sizeof path);
  if (passData(handle) && loadNext(handle, path) > 0) return handle;
  handle->refusal = "No Section";
  return nullptr;
}

void CloseSection(SectHandle* handle) {
  CommitSection(handle);
}

int CommitSection(SectHandle* handle) {
  if (handle == nullptr) {
    sectTrace("CloseSection: VOID handle\n");
    return 0;
  }
  if (handle->cookie != sectCookie) {
    sectTrace("CloseSection: BAD cookie (h=%x c=%x)\n", sectTraceId(handle), handle->cookie);
    return 0;
  }
  const bool committed = handle->wfd == nullptr || SectCommit(handle);
  const bool whole = committed && !handle->damaged;
  sectTrace("CloseSection: rfn=%s\n", handle->rfn);
  if (handle->rfd != nullptr) std::fclose(handle->rfd);
  sectTrace("CloseSection: handle=0x%x\n", sectTraceId(handle));
  handle->cookie = ~handle->cookie;
  delete handle;
  return whole ? 0 : -1;
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

int ReadSectData(SectHandle* handle) {
  handle->dataLength = 0;
  handle->data[0] = '\0';
  handle->refusal = nullptr;
  while (SectReadLine(handle) > 0) {
    if (handle->dataLength + handle->lineLength > sectDataBytes) {
      std::printf("ReadSectData: Buffer Exceeded\n");
      handle->refusal = "Section Exceeds Buffer";
      handle->linePending = true;
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

SectHead SectHeadAt(const SectHandle* handle, const char* position) {
  const char* end = lineEnd(handle);
  SectHead head = {};
  head.name = nameAt(position + 1, end);
  head.end = head.name.data() + head.name.size();
  const char* behind = skipBlanks(head.end, end);
  if (behind != end && *behind == '=') {
    head.value = nameAt(skipBlanks(behind + 1, end), end);
    head.end = head.value.data() + head.value.size();
  }
  head.valid = behind == end || *behind == '=' || *behind == '#' || isLineEnd(*behind);
  return head;
}

void SectNameFwd(SectHandle* handle, const char* position) {
  const auto [name, value, end, valid] = SectHeadAt(handle, position);
  if (!valid) {
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

const char* SectNextMark(const SectHandle* handle, const char* from) {
  const char* end = lineEnd(handle);
  while (from != end && *from != '[' && *from != ']' && *from != '#') ++from;
  return from == end || *from == '#' ? nullptr : from;
}

const char* SectScanLine(SectHandle* handle, std::string_view path) {
  const char* mark = SectNextMark(handle, handle->linebuf);
  for (; mark != nullptr; mark = SectNextMark(handle, mark + 1)) {
    followMark(handle, mark);
    if (path == handle->section) break;
  }
  return mark;
}

bool SectListPaths(const char* file, std::vector<std::string>& paths) {
  SectHandle handle = {};
  const bool opened = openForReading(&handle, file);
  while (opened && nextLine(&handle) > 0) {
    const char* mark = SectNextMark(&handle, handle.linebuf);
    for (; mark != nullptr; mark = SectNextMark(&handle, mark + 1)) {
      const std::int32_t above = handle.nest;
      followMark(&handle, mark);
      if (handle.nest > above) paths.emplace_back(handle.section);
    }
  }
  if (handle.rfd != nullptr) std::fclose(handle.rfd);
  return opened && !handle.damaged;
}

void SectDump(const SectHandle* handle) {
  std::printf("cookie  %x\nrfd     %x\nwfd     %x\n", handle->cookie, sectTraceId(handle->rfd),
              sectTraceId(handle->wfd));
  std::printf("rflg    %x\nwflg    %d\nnest    %d\nline    %d\n",
              static_cast<unsigned>(handle->rflg), handle->wflg, handle->nest, handle->line);
  std::printf("rfn     %s\nwfn     %s\nsection %s\nlinebuf %s\ndata    %s\n", handle->rfn,
              handle->wfn, handle->section, handle->linebuf, handle->data);
}
