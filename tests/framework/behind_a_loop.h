// What happens to a dialog while it runs a loop of its own.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>

#include <X11/Intrinsic.h>

#include "framework/core/app.h"
#include "framework/core/timer.h"

// Runs what it is given once the main loop has come round.
class Later : public zEvH {
 public:
  Later(unsigned long milliseconds, std::function<void()> action)
      : action_(std::move(action)), timer_(this, &Later::run, milliseconds) {}

 private:
  void run() { action_(); }
  std::function<void()> action_;
  zOneShotTimer timer_;
};

// Does something once, as soon as a message box, or the form with this title, has the keyboard.
class AnswersBox : public zEvH {
 public:
  explicit AnswersBox(std::function<void()> action, std::string shell = "MessageBox_popup")
      : action_(std::move(action)),
        shell_(std::move(shell)),
        timer_(std::make_unique<zTimer>(this, &AnswersBox::look, lookEveryMs)) {}
  bool answered() const { return !timer_; }

 private:
  static constexpr unsigned long lookEveryMs = 50;

  void look() {
    Window focused = None;
    int revert = 0;
    XGetInputFocus(app->display(), &focused, &revert);
    Widget shell = XtWindowToWidget(app->display(), focused);
    while (shell && !XtIsShell(shell)) shell = XtParent(shell);
    if (!shell || XtName(shell) != shell_) return;
    timer_.reset();
    action_();
  }

  std::function<void()> action_;
  std::string shell_;
  std::unique_ptr<zTimer> timer_;
};

// Asks a shell to close, as the window manager's menu does.
inline void closeAsTheWindowManager(Widget shell) {
  XEvent event{};
  event.xclient.type = ClientMessage;
  event.xclient.window = XtWindow(shell);
  event.xclient.message_type = XInternAtom(app->display(), "WM_PROTOCOLS", False);
  event.xclient.format = 32;
  const Atom request = XInternAtom(app->display(), "WM_DELETE_WINDOW", False);
  event.xclient.data.l[0] = static_cast<long>(request);
  XSendEvent(app->display(), XtWindow(shell), False, NoEventMask, &event);
}
