// The steps of the section library, shared by its sources.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "store/section.h"

constexpr std::size_t keyWordBytes = 128;  // a key with its terminator

// Reads a line of at most 255 characters into `linebuf` and counts it. Returns its length, 0 at
// the end of the file and, with a message, on an error, which damages the handle.
int SectReadLine(SectHandle* handle);

// Passes over, into the temporary file if there is one, whole lines without a bracket, as many as
// can be told at once: none, perhaps. False on an error of writing, as SectPut.
bool SectSkipLines(SectHandle* handle);

// Copies what is left of the file into the temporary one. False, and the handle is damaged, on an
// error.
bool SectPutRest(SectHandle* handle);

// Forgets what has been read ahead: rfd has been moved.
void SectForgetAhead(SectHandle* handle);

// Fills `data` from the next line on, up to and including the first that has a bracket anywhere.
// Returns its length; 0 if there is none, or, with a message, if the section is too long.
int ReadSectData(SectHandle* handle);

// The head of a section: its two words and where they end. Behind one that is not valid stands
// something other than `=`.
struct SectHead {
  std::string_view name;
  std::string_view value;
  const char* end;
  bool valid;
};
SectHead SectHeadAt(const SectHandle* handle, const char* position);

// Enters the section whose head is the `[` at `position` in linebuf. A head that is no head, or
// too long a path, draws a message and changes nothing.
void SectNameFwd(SectHandle* handle, const char* position);

// Leaves the current section for its parent; at the top does nothing.
void SectNameRev(SectHandle* handle);

// The first `[` or `]` in linebuf from `from` on, or null; a comment ends the search.
const char* SectNextMark(const SectHandle* handle, const char* from);

// The tabs in front of a line at this depth. A section with a slash in its name takes one `]` for
// each slash to leave, which can take the depth below 0.
inline int SectTabs(int nest) {
  return nest > 0 ? nest : 0;
}

// Follows the brackets of linebuf up to the first behind which the current section is `path`.
// Returns that bracket, or null.
const char* SectScanLine(SectHandle* handle, std::string_view path);

// Appends the path of every section that OpenSection could find in the file, in the file's order.
// False, with a message, if the file can't be opened or read to its end.
bool SectListPaths(const char* file, std::vector<std::string>& paths);

// Where the key's value starts in `data`, which may be a line end or `#` for an empty one, or null.
const char* FindKey(const SectHandle* handle, std::string_view key);

// The value of that type that starts at `from` in `data`.
std::string_view SectValueAt(const SectHandle* handle, const char* from, int type);

// A value as text, empty for a type that is none.
std::string SectFormatValue(void* value, int type, int len);

// Two lower-case digits for each byte.
std::string SectHexEncode(const unsigned char* bytes, int len);

// Opens the temporary file; false, with a message, if that can't be.
bool SectOpenTemporary(SectHandle* handle);

// Appends to the temporary file, if there is one. False, and the handle is damaged, on an error.
bool SectPut(SectHandle* handle, std::string_view text);
bool SectPutLine(SectHandle* handle);

// Copies the file anew up to the end of the new section's parent, and writes its head. Null if it
// can't be created there.
SectHandle* CreateSection(SectHandle* handle, const char* path);

// Replaces the file by the temporary one if keys were written, else removes that. Closes both.
// False, with a message, if the file was to be replaced and was not.
bool SectCommit(SectHandle* handle);

// Marks a handle whose file can't be read or written to its end.
void SectDamage(SectHandle* handle);

// The value of a hexadecimal digit of either case, -1 for any other character.
int SectHexDigit(char digit);

// Decodes pairs of digits into at most `len` bytes, up to the first pair that is none. Returns the
// number of bytes.
int SectHexDecode(std::string_view text, unsigned char* dst, int len);

// Prints every field of the handle.
void SectDump(const SectHandle* handle);

// A line of the traces, printed if `dV` is set.
[[gnu::format(printf, 1, 2)]] void sectTrace(const char* format, ...);

// A handle or a word of memory as the traces show it.
unsigned sectTraceId(const void* pointer);

inline bool isLineEnd(char c) {
  return c == '\n' || c == '\r';
}

inline bool isBlank(char c) {
  return c == ' ' || c == '\t';
}
