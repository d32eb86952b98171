// The framework's diagnostics. Silent unless asked for: by the resource "debugOn" for the trace, by
// bits of `debugFlags` for errors and assertions.
#pragma once

#include <X11/Intrinsic.h>

enum zDebugFlags {
  zDebugBox = 1,    // show a message box
  zDebugTrace = 2,  // write through debug()
  zDebugCrash = 4,  // stop in a debugger
  zDebugSuppressErrors = 8,
  zDebugSuppressWarnings = 16,
};
extern int debugFlags;
extern int _debugOn;  // above 0: debug() prints; -1: not decided yet

// Formats like printf and prints the result, with a line end, as a format of its own: a per cent
// sign in a message is read twice. Only when _debugOn is above 0.
void debug(const char* format, ...);

constexpr int zSeverityWarning = 2;
// Reports the error `number`; `severity` is zSeverityWarning or anything else for an error.
void zAppDoError(int number, int detail, int severity);
// Reports a failed condition; `kind` is 0 for a pre-condition, 1 an assertion, 2 a post-condition.
void zAppDoAssert(int kind, const char* file, int line);

// Handlers of the X library's errors and of the toolkit's warnings: both write through debug() and
// let the program live.
int zAppXlibErrorHandler(Display* display, XErrorEvent* event);
void zAppErrorHandler(char* message);
// Of the toolkit's errors. The toolkit is built not to go on behind one, so neither does this.
void zAppFatalErrorHandler(char* message) __attribute__((noreturn));
