// Asks a program whether its main loop is alive, without the program's help.
#pragma once

#include <X11/Xlib.h>

// A shell of the toolkit takes part in the protocol of resource editors: told that an editor wants
// something, it asks for what that is by converting a selection that the editor owns. The request
// for the conversion comes out of the program's loop, also out of that of a modal dialog, when
// everything that the server sent before has been handled. It is refused, and nothing happens. Both
// the toolkit and Motif answer for a shell, so that a question can bring more than one request.
class Probe {
 public:
  explicit Probe(Display* display);

  // Seconds until `shell` has answered; negative when it does not within `patience` seconds.
  double answerTime(Window shell, double patience);
  // Refuses what came in late; to be called now and then, so that nobody waits for it.
  void refuseLate() const;

 private:
  void ask(Window shell);
  bool awaitRequest(double deadline) const;
  void refuse(const XSelectionRequestEvent& request) const;

  Display* display_;
  Window owner_;
  Atom protocol_;
  Atom selection_;
  Time question_ = CurrentTime;  // the time that we give counts the questions, and comes back
};

// Seconds on a clock that only goes forward.
double secondsNow();
