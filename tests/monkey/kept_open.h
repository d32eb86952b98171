// Keeps a program going while a monkey plays with it.
#pragma once

#include <X11/Xlib.h>

// The property that the monkey puts on the main window when it is done. Until then the program
// refuses to close it.
inline const char* const monkeyDone = "MONKEY_DONE";

// Whether the window has to stay.
inline bool isKeptOpen(Display* display, Window window) {
  int count = 0;
  Atom* const properties = XListProperties(display, window, &count);
  const Atom done = XInternAtom(display, monkeyDone, False);
  bool kept = true;
  for (int i = 0; i < count; ++i) kept = kept && properties[i] != done;
  if (properties) XFree(properties);
  return kept;
}
