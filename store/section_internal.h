// The steps of the section library, shared by its sources.
#pragma once

#include <string_view>

#include "store/section.h"

// Reads a line of at most 255 characters into `linebuf` and counts it. Returns its length, 0 at
// the end of the file.
int SectReadLine(SectHandle* handle);

// Fills `data` from the next line on, up to and including the first that has a bracket anywhere.
// Returns its length; 0 if there is none, or, with a message, if the section is too long.
int ReadSectData(SectHandle* handle);

// Enters the section whose head is the `[` at `position` in linebuf. A head that is no head, or
// too long a path, draws a message and changes nothing.
void SectNameFwd(SectHandle* handle, const char* position);

// Leaves the current section for its parent; at the top does nothing.
void SectNameRev(SectHandle* handle);

// Follows the brackets of linebuf up to the first behind which the current section is `path`.
// Returns whether there was one.
bool SectScanLine(SectHandle* handle, std::string_view path);

// Where the key's value starts in `data`, which may be a line end or `#` for an empty one, or null.
const char* FindKey(const SectHandle* handle, std::string_view key);

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
