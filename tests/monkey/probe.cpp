#include "tests/monkey/probe.h"

#include <poll.h>

#include <chrono>

namespace {

constexpr long protocolVersion = 5;

}  // namespace

double secondsNow() {
  return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

Probe::Probe(Display* display)
    : display_(display),
      owner_(XCreateSimpleWindow(display, DefaultRootWindow(display), 0, 0, 1, 1, 0, 0, 0)),
      protocol_(XInternAtom(display, "Editres", False)),
      selection_(XInternAtom(display, "MONKEY_PROBE", False)) {
  XSetSelectionOwner(display, selection_, owner_, CurrentTime);
}

double Probe::answerTime(Window shell, double patience) {
  const double start = secondsNow();
  ask(shell);
  return awaitRequest(start + patience) ? secondsNow() - start : -1;
}

void Probe::ask(Window shell) {
  XEvent message{};
  message.xclient.type = ClientMessage;
  message.xclient.window = shell;
  message.xclient.message_type = protocol_;
  message.xclient.format = 32;
  message.xclient.data.l[0] = static_cast<long>(++question_);
  message.xclient.data.l[1] = static_cast<long>(selection_);
  message.xclient.data.l[3] = protocolVersion;
  XSendEvent(display_, shell, False, NoEventMask, &message);
}

// False when the request that answers the last question has not come by the deadline.
bool Probe::awaitRequest(double deadline) const {
  XEvent event;
  XSync(display_, False);
  for (;;) {
    while (XCheckTypedWindowEvent(display_, owner_, SelectionRequest, &event)) {
      refuse(event.xselectionrequest);
      if (event.xselectionrequest.time == question_) return true;
    }
    const double left = deadline - secondsNow();
    if (left <= 0) return false;
    pollfd connection{ConnectionNumber(display_), POLLIN, 0};
    poll(&connection, 1, static_cast<int>(left * 1000) + 1);
  }
}

void Probe::refuseLate() const {
  XEvent event;
  while (XCheckTypedWindowEvent(display_, owner_, SelectionRequest, &event)) {
    refuse(event.xselectionrequest);
  }
}

void Probe::refuse(const XSelectionRequestEvent& request) const {
  XEvent refusal{};
  refusal.xselection.type = SelectionNotify;
  refusal.xselection.requestor = request.requestor;
  refusal.xselection.selection = request.selection;
  refusal.xselection.target = request.target;
  refusal.xselection.property = None;
  refusal.xselection.time = request.time;
  XSendEvent(display_, request.requestor, False, NoEventMask, &refusal);
}
