#include "bench/asked_of_server.h"

#include <X11/Xlib.h>
#include <dlfcn.h>

#include <cstdlib>

#include "framework/core/app.h"
#include "tests/support/x_driver.h"

namespace {

long waits = 0;

}  // namespace

// Every call of Xlib that waits for a reply gets it by this one, which stands before the library's.
extern "C" int _XReply(Display* display, void* reply, int extra, int discard) {  // NOLINT
  using Reply = int (*)(Display*, void*, int, int);
  static const auto inLibrary = reinterpret_cast<Reply>(dlsym(RTLD_NEXT, "_XReply"));
  ++waits;
  return inLibrary(display, reply, extra, discard);
}

AskedOfServer askedOfServer() {
  return {static_cast<long>(NextRequest(app->display())), waits};
}

void settle() {
  XSync(app->display(), False);
  x_driver::handlePending();
  XSync(app->display(), False);
}

void checkCounting() {
  x_driver::settle();
  const AskedOfServer before = askedOfServer();
  settle();
  const AskedOfServer asked = askedOfServer() - before - askedBySettling;
  if (asked.requests != 0 || asked.waits != 0) std::abort();
}

void countPerIteration(benchmark::State& state, const AskedOfServer& ofAllIterations) {
  const auto average = [](long sum) {
    return benchmark::Counter(static_cast<double>(sum), benchmark::Counter::kAvgIterations);
  };
  state.counters["requests"] = average(ofAllIterations.requests);
  state.counters["waits"] = average(ofAllIterations.waits);
}
