// Runs the applet as a process of its own and looks at it as a person does: at its windows, its
// picture and its log. Nothing here waits for a fixed time; every wait is for a condition and gives
// up after lisimPatienceMs.
#pragma once

#include <X11/Xlib.h>

#include <functional>
#include <initializer_list>
#include <memory>
#include <string>
#include <vector>

#include "tests/support/lisim_process.h"

// A program that runs in a directory of the test, which keeps its standard output and error in the
// files "stdout" and "stderr".
class ProgramRun {
 public:
  struct Manner {
    std::string display = "";   // another X server than the test's own
    bool ordinaryUser = false;  // gives up the rights of user 0 first
  };
  // `words` starts with the program's path.
  ProgramRun(const std::string& directory, std::vector<std::string> words, const Manner& manner);
  ProgramRun(const std::string& directory, std::vector<std::string> words)
      : ProgramRun(directory, std::move(words), Manner()) {}
  ~ProgramRun();
  ProgramRun(const ProgramRun&) = delete;
  ProgramRun& operator=(const ProgramRun&) = delete;

  std::string output() const;
  std::string errors() const;
  // Waits until the standard error holds the whole line as many times.
  bool logged(const std::string& line, int times = 1) const;
  // The first of the lines that does not come behind the others in the log; empty if all do.
  std::string missing(const std::vector<std::string>& lines) const;
  bool running();
  void send(int signal) const { kill(process_, signal); }
  // Waits for its end. Returns the exit status, or -1 when a signal or the test ended it.
  int end();

 private:
  std::string directory_;
  pid_t process_ = 0;
  int status_ = -1;
};

// A virtual X server for one test, without a window manager, with these folders of fonts.
class XServer {
 public:
  explicit XServer(
      const std::string& fonts = "/usr/share/fonts/X11/75dpi,/usr/share/fonts/X11/misc");
  const std::string& name() const { return name_; }
  ProgramRun& process() { return *run_; }

 private:
  LisimScratch scratch_;
  std::unique_ptr<ProgramRun> run_;
  std::string name_;
};

// Somebody at an X server: eyes, mouse and keys, on a connection of their own.
class Person {
 public:
  // At the test's own server, or at another.
  explicit Person(const std::string& display = "");
  ~Person() { XCloseDisplay(display_); }
  Person(const Person&) = delete;
  Person& operator=(const Person&) = delete;

  // The visible windows with this title.
  std::vector<Window> windows(const std::string& title) const;
  // Waits for a window, which is on the screen and settled in its place; None when patience ran
  // out.
  Window await(const std::string& title) const;
  bool awaitCount(const std::string& title, std::size_t count) const;

  // Whether the keyboard goes to the window.
  bool hasFocus(Window window) const;
  void moveTo(Window window, int x, int y) const;
  void click(Window window, int x, int y) const;
  void key(KeySym symbol, std::initializer_list<KeySym> held = {}) const;
  // Has the window manager put the window at another place on the screen, as dragging its title
  // does.
  void place(Window window, int x, int y) const;
  // What a window manager does when its close button is pressed.
  void closeByManager(Window window) const;

  struct Size {
    int width, height;
  };
  Size size(Window window) const;
  // The colours on the screen, as 0xRRGGBB, row by row; empty when the window is not there.
  std::vector<unsigned long> picture(Window window, int x, int y, int width, int height) const;
  // How many requests the program that owns `window` sends to the server while `watched` runs.
  unsigned long requestsDuring(Window window, const std::function<void()>& watched) const;

 private:
  void walk(Window window, const std::string& title, std::vector<Window>& found) const;

  Display* display_;
};
