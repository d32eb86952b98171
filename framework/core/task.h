// Idle tasks: work done a little at a time while the program waits for events.
#pragma once

#include <X11/Intrinsic.h>

#include <list>

#include "framework/core/event_handler.h"

class zTaskDev {
 public:
  // `member` takes no argument and returns non-zero when the task is finished.
  template <class T, class C>
  void add(T* object, int (C::*member)()) {
    append(zAction<int>(object, member));
  }
  template <class T, class C>
  void remove(T* object, int (C::*member)()) {
    removeAll(zAction<int>(object, member));
  }
  bool busy() const { return enabled_ && !tasks_.empty(); }

  // Calls every task once, in order, and drops those that are finished.
  void poll();

 private:
  static Boolean procTaskWork(XtPointer device);
  void append(zAction<int> task);
  void removeAll(const zAction<int>& task);

  std::list<zAction<int>> tasks_;
  bool enabled_ = true;
  Boolean stop_ = False;  // what the work procedure returns to the toolkit
};
