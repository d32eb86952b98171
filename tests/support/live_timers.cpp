// Stands in front of the toolkit's timers, for the program and for the libraries that it is linked
// with, and counts them.
#include "tests/support/live_timers.h"

#include <X11/Intrinsic.h>
#include <dlfcn.h>

#include <map>

namespace {

struct Timer {
  XtTimerCallbackProc procedure;
  XtPointer data;
};
std::map<XtIntervalId, Timer> timers;

template <class Function>
Function* theToolkits(const char* name) {
  return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

void fire(XtPointer, XtIntervalId* id) {
  const Timer fired = timers.extract(*id).mapped();
  fired.procedure(fired.data, id);
}

}  // namespace

int liveTimers() {
  return static_cast<int>(timers.size());
}

XtIntervalId XtAppAddTimeOut(XtAppContext context, unsigned long milliseconds,
                             XtTimerCallbackProc procedure, XtPointer data) {
  static auto* const add = theToolkits<decltype(XtAppAddTimeOut)>("XtAppAddTimeOut");
  const XtIntervalId id = add(context, milliseconds, fire, nullptr);
  timers[id] = {procedure, data};
  return id;
}

void XtRemoveTimeOut(XtIntervalId id) {
  static auto* const remove = theToolkits<decltype(XtRemoveTimeOut)>("XtRemoveTimeOut");
  timers.erase(id);
  remove(id);
}
