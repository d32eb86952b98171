#include "framework/core/errors.h"

#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "framework/core/app.h"
#include "framework/core/frame_window.h"
#include "framework/dialogs/message.h"

int debugFlags = zDebugBox;
int _debugOn = -1;

namespace {

constexpr unsigned noticeStyle = 0x30;

void report(const char* traceFormat, const char* title, const char* text) {
  if (debugFlags & zDebugTrace) debug(traceFormat, title, text);
  if (debugFlags & zDebugBox) {
    zMessage box(app ? app->rootWindow() : nullptr, text, title, noticeStyle);
  }
  if (debugFlags & zDebugCrash) std::raise(SIGSEGV);
}

// What printf makes of a text that it takes as a format without arguments: a doubled per cent sign
// is one. A conversion, for which there is no argument, stays as it is.
std::string readAsFormat(const char* text) {
  std::string read;
  for (; *text; ++text) {
    read += *text;
    if (text[0] == '%' && text[1] == '%') ++text;
  }
  return read;
}

}  // namespace

void debug(const char* format, ...) {
  if (_debugOn <= 0) return;
  char text[1024];
  va_list args;
  va_start(args, format);
  const int length = std::vsnprintf(text, sizeof text, format, args);
  va_end(args);
  if (length < 0) return;
  const std::string line = readAsFormat(text) + "\r\n";
  std::fputs(line.c_str(), stdout);
  std::fflush(stdout);
}

void zAppDoError(int number, int, int severity) {
  const bool warning = severity == zSeverityWarning;
  if (debugFlags & (warning ? zDebugSuppressWarnings : zDebugSuppressErrors)) return;
  const char* title = warning ? "zApp Warning" : "zApp Error";
  char text[256];
  std::snprintf(text, sizeof text, "%s #%d", title, number);
  report("%s: %s", title, text);
}

void zAppDoAssert(int kind, const char* file, int line) {
  constexpr const char* words[] = {"Pre Condition", "Assert", "Post Condition"};
  const char* word = kind >= 0 && kind < 3 ? words[kind] : words[1];
  char title[64];
  char text[256];
  std::snprintf(title, sizeof title, "zApp %s Failed", word);
  std::snprintf(text, sizeof text, "%.200s Line #%u", file, static_cast<unsigned>(line));
  report("%s : %s", title, text);
}

int zAppXlibErrorHandler(Display* display, XErrorEvent* event) {
  char text[200];
  XGetErrorText(display, event->error_code, text, sizeof text);
  debug("X Error of failed request: %s", text);
  debug("Opcode of failed request: %d, %d", event->request_code, event->minor_code);
  debug("Resource id in failed request: %d", static_cast<int>(event->resourceid));
  debug("Serial number of failed request: %d\n", static_cast<int>(event->serial));
  return 1;
}

void zAppErrorHandler(char* message) {
  debug("%s", message);
}

void zAppFatalErrorHandler(char* message) {
  debug("%s", message);
  std::fprintf(stderr, "Error: %s\n", message);
  std::exit(1);
}
