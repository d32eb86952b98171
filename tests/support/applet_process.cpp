#include "tests/support/applet_process.h"

#include <X11/Xutil.h>
#include <X11/extensions/XTest.h>
#include <X11/extensions/record.h>
#include <fcntl.h>
#include <grp.h>

#include <cstring>
#include <sstream>

namespace {

constexpr uid_t nobody = 65534;
// A hand is no faster than this between pressing and letting go. A program that captures the mouse
// while a button is down may do so late for one that is.
constexpr unsigned long handMs = 30;

std::string contents(const std::string& path) {
  std::ifstream file(path);
  return {std::istreambuf_iterator<char>(file), {}};
}

void writeInto(int descriptor, const std::string& path) {
  dup2(open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644), descriptor);
}

void becomeOrdinary() {
  if (setgroups(0, nullptr) != 0 || setgid(nobody) != 0 || setuid(nobody) != 0) _exit(126);
}

// Windows come and go while they are looked at.
int ignoreError(Display*, XErrorEvent*) {
  return 0;
}

}  // namespace

// The program is opened before any right is given up, since its folder may be private.
ProgramRun::ProgramRun(const std::string& directory, std::vector<std::string> words,
                       const Manner& manner)
    : directory_(directory) {
  std::vector<char*> arguments;
  for (std::string& word : words) arguments.push_back(word.data());
  arguments.push_back(nullptr);
  process_ = fork();
  if (process_ != 0) return;
  const int program = open(arguments[0], O_PATH | O_CLOEXEC);
  if (chdir(directory.c_str()) != 0) _exit(126);
  writeInto(STDOUT_FILENO, "stdout");
  writeInto(STDERR_FILENO, "stderr");
  if (!manner.display.empty()) setenv("DISPLAY", manner.display.c_str(), 1);
  if (manner.ordinaryUser) becomeOrdinary();
  fexecve(program, arguments.data(), environ);
  _exit(127);
}

ProgramRun::~ProgramRun() {
  if (process_ <= 0) return;
  send(SIGKILL);
  waitpid(process_, nullptr, 0);
}

std::string ProgramRun::output() const {
  return contents(directory_ + "/stdout");
}

std::string ProgramRun::errors() const {
  return contents(directory_ + "/stderr");
}

bool ProgramRun::logged(const std::string& line, int times) const {
  return lisimWaitFor([&] {
    std::istringstream log(errors());
    int count = 0;
    for (std::string found; std::getline(log, found);) count += found == line;
    return count >= times;
  });
}

std::string ProgramRun::missing(const std::vector<std::string>& lines) const {
  std::istringstream log(errors());
  std::size_t next = 0;
  for (std::string found; next < lines.size() && std::getline(log, found);) {
    if (found == lines[next]) ++next;
  }
  return next < lines.size() ? lines[next] : "";
}

bool ProgramRun::running() {
  int status = 0;
  if (process_ <= 0 || waitpid(process_, &status, WNOHANG) != process_) return process_ > 0;
  process_ = 0;
  status_ = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  return false;
}

int ProgramRun::end() {
  return lisimWaitFor([&] { return !running(); }) ? status_ : -1;
}

XServer::XServer(const std::string& fonts) {
  run_ = std::make_unique<ProgramRun>(
      scratch_.file(""),
      std::vector<std::string>{"/usr/bin/Xvfb", "-displayfd", "1", "-screen", "0", "1280x1024x24",
                               "-fp", fonts, "-nolisten", "tcp", "-noreset"});
  lisimWaitFor([&] { return run_->output().find('\n') != std::string::npos; });
  name_ = ":" + run_->output();
  name_.pop_back();
}

Person::Person(const std::string& display)
    : display_(XOpenDisplay(display.empty() ? nullptr : display.c_str())) {
  XSetErrorHandler(ignoreError);
}

void Person::walk(Window window, const std::string& title, std::vector<Window>& found) const {
  XWindowAttributes now{};
  char* name = nullptr;
  if (XFetchName(display_, window, &name) && name == title &&
      XGetWindowAttributes(display_, window, &now) && now.map_state == IsViewable) {
    found.push_back(window);
  }
  if (name) XFree(name);
  Window root = None, parent = None, *children = nullptr;
  unsigned count = 0;
  if (!XQueryTree(display_, window, &root, &parent, &children, &count)) return;
  for (unsigned i = 0; i < count; ++i) walk(children[i], title, found);
  if (children) XFree(children);
}

std::vector<Window> Person::windows(const std::string& title) const {
  std::vector<Window> found;
  walk(DefaultRootWindow(display_), title, found);
  return found;
}

Window Person::await(const std::string& title) const {
  std::vector<Window> found;
  lisimWaitFor([&] { return !(found = windows(title)).empty(); });
  return found.empty() ? None : found.front();
}

bool Person::awaitCount(const std::string& title, std::size_t count) const {
  return lisimWaitFor([&] { return windows(title).size() == count; });
}

bool Person::hasFocus(Window window) const {
  Window focused = None;
  int revert = 0;
  XGetInputFocus(display_, &focused, &revert);
  return focused == window;
}

void Person::moveTo(Window window, int x, int y) const {
  int rootX = 0, rootY = 0;
  Window child = None;
  XTranslateCoordinates(display_, window, DefaultRootWindow(display_), x, y, &rootX, &rootY,
                        &child);
  XTestFakeMotionEvent(display_, -1, rootX, rootY, CurrentTime);
  XSync(display_, False);
}

void Person::click(Window window, int x, int y) const {
  moveTo(window, x, y);
  XTestFakeButtonEvent(display_, 1, True, handMs);
  XTestFakeButtonEvent(display_, 1, False, handMs);
  XSync(display_, False);
}

void Person::key(KeySym symbol, std::initializer_list<KeySym> held) const {
  const auto fake = [this](KeySym one, bool down) {
    XTestFakeKeyEvent(display_, XKeysymToKeycode(display_, one), down, CurrentTime);
  };
  for (const KeySym h : held) fake(h, true);
  fake(symbol, true);
  fake(symbol, false);
  for (const KeySym h : held) fake(h, false);
  XSync(display_, False);
}

void Person::place(Window window, int x, int y) const {
  const auto corner = [&] {
    int left = 0, top = 0;
    Window child = None;
    XTranslateCoordinates(display_, window, DefaultRootWindow(display_), 0, 0, &left, &top, &child);
    return std::pair(left, top);
  };
  const auto before = corner();
  XMoveWindow(display_, window, x, y);
  lisimWaitFor([&] { return corner() != before; });
}

void Person::closeByManager(Window window) const {
  XEvent event{};
  event.xclient.type = ClientMessage;
  event.xclient.window = window;
  event.xclient.message_type = XInternAtom(display_, "WM_PROTOCOLS", False);
  event.xclient.format = 32;
  event.xclient.data.l[0] = static_cast<long>(XInternAtom(display_, "WM_DELETE_WINDOW", False));
  XSendEvent(display_, window, False, NoEventMask, &event);
  XSync(display_, False);
}

Person::Size Person::size(Window window) const {
  XWindowAttributes now{};
  XGetWindowAttributes(display_, window, &now);
  return {now.width, now.height};
}

std::vector<unsigned long> Person::picture(Window window, int x, int y, int width,
                                           int height) const {
  std::vector<unsigned long> colors;
  XImage* image = XGetImage(display_, window, x, y, static_cast<unsigned>(width),
                            static_cast<unsigned>(height), AllPlanes, ZPixmap);
  if (!image) return colors;
  for (int row = 0; row < height; ++row) {
    for (int column = 0; column < width; ++column) {
      colors.push_back(XGetPixel(image, column, row) & 0xffffff);
    }
  }
  XDestroyImage(image);
  return colors;
}

unsigned long Person::requestsDuring(Window window, const std::function<void()>& watched) const {
  XRecordRange* range = XRecordAllocRange();
  range->core_requests = {0, 127};
  range->ext_requests = {{128, 255}, {0, 65535}};
  XRecordClientSpec client = window;
  const XRecordContext context = XRecordCreateContext(display_, 0, &client, 1, &range, 1);
  XFree(range);
  XSync(display_, False);
  Display* records = XOpenDisplay(DisplayString(display_));
  unsigned long count = 0;
  const auto note = [](XPointer counter, XRecordInterceptData* data) {
    if (data->category == XRecordFromClient) ++*reinterpret_cast<unsigned long*>(counter);
    XRecordFreeData(data);
  };
  XRecordEnableContextAsync(records, context, note, reinterpret_cast<XPointer>(&count));
  XFlush(records);
  watched();
  XRecordDisableContext(display_, context);
  XSync(display_, False);
  XRecordProcessReplies(records);
  XRecordFreeContext(display_, context);
  XCloseDisplay(records);
  return count;
}
