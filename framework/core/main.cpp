// The process's entry, the same for every program on this framework.
#include <unistd.h>

#include <cstdlib>

#include "framework/core/app.h"

int main(int argc, char** argv) {
  srand(static_cast<unsigned>(getpid()));
  ZAPPXMprogname = argv[0];
  const auto count = static_cast<unsigned>(argc);
  app = new zApp(count, argv, getCommandLine(count - 1, argv + 1));
  app->zAppEntry();
  Display* display = app->display();
  delete app;
  if (display) XCloseDisplay(display);
  return 0;
}
