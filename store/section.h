// The section library: reads and edits one section at a time of a nested, line-oriented text file.
//
//     [Adapter0                       # a section; "[Adapter = 0" is the same one
//         VPI                   = 0   # a key and its value
//         [Signalling0                # a child, by path "/Adapter0/Signalling0"
//             Enabled           = 1
//         ]
//     ]
//
// Lines have up to 255 characters; a longer one is read as several. `#` starts a comment.
// Indentation doesn't matter, and a `]` closes the innermost section wherever it stands.
//
// The life of a handle: OpenSection positions it on the first section of a path and loads the
// section's text, down to the first line with a bracket in it: a child's head or the section's
// end. ReadKey looks at that text alone. OpenNextSection moves on to the text behind the child, or
// to a later section of the same path. CloseSection ends the work and releases the handle, which
// belongs to the caller until then.
//
// A handle opened for writing copies what it passes into a temporary file beside the file's
// directory. WriteKey edits the loaded text alone. CloseSection, if a key was written, copies the
// rest, forces the copy to disk and renames it over the file; every byte but the edited ones is as
// it was, and so are mode, owner and group. Until the rename nothing touches the file, and any
// trouble on the way leaves it alone and removes the copy. A symbolic link is replaced by a file.
//
// Messages go to standard output, and so do the traces, once `dV` is set. One thread at a time.
#pragma once

#include <cstdint>
#include <cstdio>
#include <memory>

// Type codes of values.
enum ValueType : short {
  T_CHAR = 1,    // a number, its low 8 bits
  T_SHORT = 2,   // a number, its low 16 bits
  T_INT = 3,     // a number of 32 bits
  T_LONG = 4,    // the same
  T_HEX = 5,     // bytes as pairs of hexadecimal digits
  T_STRING = 6,  // text, which may hold blanks inside
  T_IPADDR = 7,  // a dotted address, 4 bytes in network order
};

// Open flags. Reading is what is left when the write bit is not set. The library itself marks a
// section that it created.
constexpr int sectRead = 1;
constexpr int sectWrite = 2;
constexpr int sectCreated = 4;

constexpr std::uint32_t sectCookie = 0xDEADBEEF;
constexpr int sectNameBytes = 128;     // file names and section paths, with their terminator
constexpr int sectLineBytes = 256;     // a line with its terminator
constexpr int sectDataBytes = 5476;    // the text of one section
constexpr int sectAheadBytes = 16384;  // read from the file at once

struct SectHandle {
  std::uint32_t cookie;  // sectCookie while the handle is alive
  std::FILE* rfd;        // the file being read
  std::FILE* wfd;        // the temporary file being written, or none
  std::int32_t rflg;     // the open flags
  std::int32_t wflg;     // number of keys written
  std::int32_t nest;     // depth of the current section
  std::int32_t line;     // number of the line last read, from 1
  char rfn[sectNameBytes];
  char wfn[sectNameBytes];
  char section[sectNameBytes];  // the current section's path
  char linebuf[sectLineBytes];  // the line last read, with its line end
  char data[sectDataBytes + 1];
  std::int32_t lineLength;     // bytes in linebuf; a file may hold NULs
  std::int32_t dataLength;     // bytes in data
  const char* refusal;         // why WriteKey must not edit `data`, or null
  char ahead[sectAheadBytes];  // what has been read of rfd
  std::int32_t aheadStart;     // where in `ahead` the bytes start that no line has taken yet
  std::int32_t aheadEnd;       // and where they end
  bool linePending;            // linebuf is behind `data` and not yet written
  bool midLine;                // the last byte written is no line end
  bool damaged;                // a read or a write failed: the file is to be left alone
};

// Tracing to standard output, off at the start, and the rule that stands in the traces.
extern int dV;
extern const char SectDmsg[];

// Opens `file` on the section of the path, for example "/Adapter0/LEC3". Returns null if there is
// no such plain file, with a message, or no such section, without one. With sectWrite a missing
// section is created as the last child of its parent, which must be there, and null, with a
// message, also tells that there can be no temporary file. One handle at a time may write.
SectHandle* OpenSection(const char* file, const char* sectionPath, int flags);

// Moves to the next text of the same path. Returns the handle, or null at the end of the file.
SectHandle* OpenNextSection(SectHandle* handle);

// Replaces the file if keys were written, closes it and releases the handle. Null, or a handle that
// is not alive, does nothing.
void CloseSection(SectHandle* handle);

// The same for callers that want to know. Returns 0, or -1 if the file was to be replaced and was
// not, or could not be read or copied on the way; then it is as it was.
int CommitSection(SectHandle* handle);

// Owns a handle and closes it at the end.
struct SectCloser {
  void operator()(SectHandle* handle) const { CloseSection(handle); }
};
using SectOwner = std::unique_ptr<SectHandle, SectCloser>;

// Reads a key's value into `dst`. `len` is the room in bytes of a T_HEX or T_STRING target; the
// numbers have their own width. Returns 0 when the value was stored, 1 for a key with an empty
// value (a T_STRING becomes empty, any other target keeps what it held) and -1 for a key that is
// missing or a type that is none.
int ReadKey(SectHandle* handle, const char* key, void* dst, int type, int len);

// Writes a key: over its value, or as a new line behind the section's keys. `len` is the size in
// bytes of a T_HEX or T_STRING value. The last of those of a T_STRING is set to 0 in the caller's
// buffer first; nothing is written of one with no room at all. A value that reads the same
// already stays as it stands. Returns 0, or -1 for a type that is none, a value that is at the
// very end of the file and, with a message, for what would not fit or could not be read back.
int WriteKey(SectHandle* handle, const char* key, void* value, int type, int len);

// The handle if it is alive, else null, with a trace.
SectHandle* ValidHandle(SectHandle* handle);
