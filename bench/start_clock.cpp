// usage: start_clock PROGRAM [ARGUMENT ...]
// Starts a program and prints what its start took until its main window was mapped: milliseconds
// from exec, milliseconds of processor time, and KiB resident half a second later. Then ends it.
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/wait.h>
#include <time.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

namespace {

constexpr int limitMs = 20000;
constexpr int settleMs = 500;

double nowMs() {
  timespec now;
  clock_gettime(CLOCK_MONOTONIC, &now);
  return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

double processorMs(pid_t pid) {
  clockid_t clock;
  timespec used{};
  if (clock_getcpuclockid(pid, &clock) == 0) clock_gettime(clock, &used);
  return static_cast<double>(used.tv_sec) * 1e3 + static_cast<double>(used.tv_nsec) / 1e6;
}

long residentKiB(pid_t pid) {
  const std::string name = "/proc/" + std::to_string(pid) + "/status";
  long kib = 0;
  char line[256];
  std::FILE* status = std::fopen(name.c_str(), "r");
  while (status && std::fgets(line, sizeof line, status)) {
    if (std::sscanf(line, "VmRSS: %ld", &kib) == 1) break;
  }
  if (status) std::fclose(status);
  return kib;
}

// Programs name the class of their top-level windows; a window manager's frames have none.
bool isProgramsWindow(Display* display, Window window) {
  XClassHint hint{};
  if (!XGetClassHint(display, window, &hint)) return false;
  XFree(hint.res_name);
  XFree(hint.res_class);
  return true;
}

// Asks to be told when the window is mapped. True if that has happened already.
bool follow(Display* display, Window window) {
  XWindowAttributes now{};
  XSelectInput(display, window, StructureNotifyMask);
  return XGetWindowAttributes(display, window, &now) && now.map_state != IsUnmapped &&
         isProgramsWindow(display, window);
}

// Follows each new top-level window until one of a program is mapped. False when time runs out.
bool waitForMainWindow(Display* display, double deadline) {
  for (double left; (left = deadline - nowMs()) > 0;) {
    if (!XPending(display)) {
      pollfd server{ConnectionNumber(display), POLLIN, 0};
      poll(&server, 1, static_cast<int>(left) + 1);
      continue;
    }
    XEvent event;
    XNextEvent(display, &event);
    if (event.type == CreateNotify) {
      if (follow(display, event.xcreatewindow.window)) return true;
    } else if (event.type == MapNotify && isProgramsWindow(display, event.xmap.window)) {
      return true;
    }
  }
  return false;
}

int ignoreError(Display*, XErrorEvent*) {
  return 0;  // a window that is gone before it could be followed
}

// The child's exec closes the pipe; what it took to fork is not the program's.
pid_t start(char** command, double& startedAt) {
  int ends[2];
  if (pipe2(ends, O_CLOEXEC) != 0) return -1;
  const pid_t pid = fork();
  if (pid == 0) {
    execvp(command[0], command);
    std::perror(command[0]);
    _exit(127);
  }
  close(ends[1]);
  char none;
  while (read(ends[0], &none, 1) > 0) continue;
  startedAt = nowMs();
  close(ends[0]);
  return pid;
}

}  // namespace

int main(int argc, char** argv) {
  Display* display = XOpenDisplay(nullptr);
  if (argc < 2 || !display) {
    std::fputs("usage: start_clock PROGRAM [ARGUMENT ...], on a display\n", stderr);
    return 2;
  }
  XSetErrorHandler(ignoreError);
  XSelectInput(display, DefaultRootWindow(display), SubstructureNotifyMask);
  XSync(display, False);
  double startedAt = 0;
  const pid_t pid = start(argv + 1, startedAt);
  if (pid < 0) return 1;
  const bool mapped = waitForMainWindow(display, startedAt + limitMs);
  const double mappedAt = nowMs();
  const double used = processorMs(pid);
  if (mapped) {
    usleep(settleMs * 1000);
    std::printf("%.1f %.1f %ld\n", mappedAt - startedAt, used, residentKiB(pid));
  } else {
    std::fprintf(stderr, "start_clock: %s showed no window\n", argv[1]);
  }
  kill(pid, SIGTERM);
  waitpid(pid, nullptr, 0);
  XCloseDisplay(display);
  return mapped ? 0 : 1;
}
