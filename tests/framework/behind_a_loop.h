// What happens to a dialog while it runs a loop of its own.
#pragma once

#include <functional>
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
