#include "framework/core/task.h"

#include "framework/core/app.h"

namespace {

// Tasks run on every so many idle calls, which leaves the loop responsive.
constexpr int idleCallsPerPoll = 101;

}  // namespace

void zTaskDev::append(zAction<int> task) {
  if (tasks_.empty()) XtAppAddWorkProc(app->context(), procTaskWork, this);
  tasks_.push_back(task);
  stop_ = False;
}

void zTaskDev::removeAll(const zAction<int>& task) {
  tasks_.remove(task);
  if (tasks_.empty()) stop_ = True;
}

Boolean zTaskDev::procTaskWork(XtPointer device) {
  static int calls = 0;
  auto* self = static_cast<zTaskDev*>(device);
  if (self->busy() && calls >= idleCallsPerPoll) {
    calls = 0;
    self->poll();
  }
  ++calls;
  return self->stop_;
}

void zTaskDev::poll() {
  const std::list<zAction<int>> now = tasks_;
  for (const zAction<int>& task : now) {
    const bool stillListed = std::find(tasks_.begin(), tasks_.end(), task) != tasks_.end();
    if (stillListed && task()) removeAll(task);
  }
}
