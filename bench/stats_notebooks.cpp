// usage: stats_notebooks NOTEBOOKS PAGE ROWS still|moving MILLISECONDS [TICKS]
// Opens so many Statistics notebooks on $DISPLAY, each on the page of template PAGE and refreshed
// every so many milliseconds, on a driver of its own that serves ROWS connections of a LAN
// Emulation client; `moving` has every counter change from one tick to the next. Says "ready" when
// the last one is seen and goes on until it is killed. With TICKS there is no timer: the first
// notebook's page is ticked so many times by statsTick, which a profiler may watch, and the program
// ends.
#include <cstdio>
#include <cstdlib>
#include <string_view>
#include <vector>

#include "applet/run_state.h"
#include "atm/devices.h"
#include "bench/served_records.h"
#include "driver/session.h"
#include "framework/core/app.h"
#include "framework/core/event_loop.h"
#include "framework/dialogs/dialog_frame.h"
#include "framework/resources/resources.h"
#include "stats/stats_dialog.h"
#include "stats/timer_page.h"
#include "tests/support/scratch_directory.h"

extern "C" void statsTick(StatsPage& page);  // a name that a profiler finds

[[gnu::noinline]] void statsTick(StatsPage& page) {
  page.Update();
}

namespace {

constexpr unsigned long dialogStyle = 0x80CE0000;

struct Wanted {
  int notebooks;
  int page;
  int rows;
  bool isMoving;
  int milliseconds;
  int ticks;
};

Wanted wantedOf(int argc, char** argv) {
  if (argc != 6 && argc != 7) {
    std::fputs("usage: stats_notebooks NOTEBOOKS PAGE ROWS still|moving MILLISECONDS [TICKS]\n",
               stderr);
    std::exit(2);
  }
  return {std::atoi(argv[1]), std::atoi(argv[2]),
          std::atoi(argv[3]), std::string_view(argv[4]) == "moving",
          std::atoi(argv[5]), argc == 7 ? std::atoi(argv[6]) : 0};
}

void startDriver(const Wanted& wanted) {
  ServedRecords& records = serveRecords();
  records.connections.count = wanted.rows;
  records.isMoving = wanted.isMoving;
  DaiOpenSuccess = dai_open(0, 0, &ioctlDesc) == 0;
  BoardIsThere[0] = 1;
  atmDevices.phy[0].RLPrimary = 1;
  advSettings = 1;
  timerTime = static_cast<std::uint32_t>(wanted.milliseconds);
}

StatsPage& openNotebook(zWindow& parent, int page) {
  auto* const notebook = new DStatsDlg(&parent, 0);  // frees itself when it is closed
  zPageDef* const def = notebook->findPage(page);
  notebook->select(def);
  notebook->showTimeout();
  while (!notebook->isShown()) ziProcessEvent();
  return *static_cast<StatsPage*>(def->page());
}

void handleEvents() {
  while (XtAppPending(app->context()) & XtIMXEvent) ziProcessEvent();
  XSync(app->display(), False);
}

void tickTimes(StatsPage& page, int ticks) {
  page.disableTimer();
  for (int tick = 0; tick < ticks; ++tick) {
    statsTick(page);
    handleEvents();
  }
}

}  // namespace

int main(int argc, char** argv) {
  const Wanted wanted = wantedOf(argc, argv);
  const ScratchDirectory scratch;
  ZAPPXMprogname = argv[0];
  app = new zApp(1, argv, "");
  initIntPack();
  startDriver(wanted);
  zDialogFrame root(nullptr, new zSizer(10, 600, 120, 40, nullptr), dialogStyle, "Bench", 0);
  std::vector<StatsPage*> pages;
  pages.reserve(static_cast<std::size_t>(wanted.notebooks));
  for (int i = 0; i < wanted.notebooks; ++i) pages.push_back(&openNotebook(root, wanted.page));
  if (wanted.ticks > 0) {
    tickTimes(*pages.front(), wanted.ticks);
    return 0;
  }
  std::puts("ready");
  std::fflush(stdout);
  for (;;) ziProcessEvent();
}
