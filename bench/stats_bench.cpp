// What a tick of the Statistics pages costs beside the same exchanges with the driver made bare:
// with nothing changed, with so many of the page's counters changed until the server has drawn
// them, and for a page that is hidden.
//
// Each row tells of a tick what was asked of the driver, `driver`, and of the server: `requests`,
// and `waits` for a reply. What the measuring itself sends is left out of the counts; waiting for
// the server's drawing takes its time on both sides of `ratio`, which is the time of the ticks to
// that of the bare exchanges; the two take turns. The counters of a table that change are no
// neighbours, and all are seen.
#include <Xm/Xm.h>
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <string>

#include "applet/run_state.h"
#include "atm/devices.h"
#include "bench/asked_of_server.h"
#include "bench/driver_child.h"
#include "bench/served_records.h"
#include "driver/session.h"
#include "framework/core/app.h"
#include "framework/core/event_loop.h"
#include "framework/dialogs/control_types.h"
#include "framework/resources/resources.h"
#include "stats/stats_dialog.h"
#include "stats/timer_page.h"
#include "tests/support/scratch_directory.h"
#include "tests/support/x_driver.h"

namespace {

using Clock = std::chrono::steady_clock;

constexpr unsigned long dialogStyle = 0x80CE0000;
// A notebook that shows 16 connections of a client.
constexpr zDimension notebookSize{900, 960};
constexpr int aal5Page = 576;
constexpr int lecPage = 577;

struct PageForm {
  const char* name;
  int id;
  int connections;  // of the LEC page
  std::vector<std::uint32_t*> (*counters)(ServedRecords&);
};
constexpr PageForm pageForms[] = {
    {"signalling", 575, 0, signallingCounters},
    {"aal5", aal5Page, 0, aalCounters},
    {"lec13", lecPage, 13, lecCounters},
    {"lec900", lecPage, 900, lecCounters},
    {"les", 578, 0, lesCounters},
    {"lecs", 579, 0, lecsCounters},
    {"ip", 580, 0, ipCounters},
};

ServedRecords* records = nullptr;
DStatsDlg* notebook = nullptr;
int bareSession = -1;

StatsPage& pageOf(int id) {
  return *static_cast<StatsPage*>(notebook->findPage(id)->page());
}

// Brings the page up, without its timer.
StatsPage& bringUp(const PageForm& form) {
  if (form.connections) records->connections.count = form.connections;
  notebook->select(notebook->findPage(form.id));
  StatsPage& page = pageOf(form.id);
  page.disableTimer();
  page.Update();
  x_driver::settle();
  return page;
}

// The frames that a tick asks for.
std::vector<req_param_t> framesOf(StatsPage& page) {
  records->asked = 0;
  page.Update();
  if (records->asked > std::size(records->frames)) std::abort();
  return {records->frames, records->frames + records->asked};
}

// With something to draw, until it is drawn.
double secondsOf(bool draws, const auto& act) {
  const Clock::time_point start = Clock::now();
  act();
  if (draws) settle();
  return std::chrono::duration<double>(Clock::now() - start).count();
}

class Tally {
 public:
  void begin() {
    driverBefore_ = records->asked;
    serverBefore_ = askedOfServer();
  }
  void end(AskedOfServer byMeasuring) {
    driver_ += records->asked - driverBefore_;
    server_ += askedOfServer() - serverBefore_ - byMeasuring;
  }
  void report(benchmark::State& state) const {
    state.counters["driver"] =
        benchmark::Counter(static_cast<double>(driver_), benchmark::Counter::kAvgIterations);
    countPerIteration(state, server_);
  }

 private:
  std::uint32_t driverBefore_ = 0;
  AskedOfServer serverBefore_;
  std::uint32_t driver_ = 0;
  AskedOfServer server_;
};

void tick(benchmark::State& state, const PageForm& form, std::size_t changes) {
  StatsPage& page = bringUp(form);
  const std::vector<req_param_t> frames = framesOf(page);
  std::vector<std::uint32_t*> counters = form.counters(*records);
  Tally tally;
  double ticks = 0, bare = 0;
  while (state.KeepRunning()) {
    bare += secondsOf(changes > 0, [&] { exchangeBare(bareSession, frames); });
    for (std::size_t i = 0; i < changes; ++i) *counters[i] ^= 1;
    x_driver::settle();
    tally.begin();
    const double seconds = secondsOf(changes > 0, [&] { page.Update(); });
    if (changes == 0) settle();
    tally.end(askedBySettling);
    state.SetIterationTime(seconds);
    ticks += seconds;
  }
  tally.report(state);
  state.counters["ratio"] = ticks / bare;
}

// The page has been seen and has polled; now another one is shown, which is kept from polling. So
// long as a tenth of a second nothing should happen.
void hidden(benchmark::State& state, const PageForm& form) {
  constexpr double watched = 0.1;
  timerTime = 1;
  bringUp(form).enableTimer();
  bringUp(pageForms[form.id == aal5Page ? 0 : 1]);
  Tally tally;
  while (state.KeepRunning()) {
    x_driver::settle();
    tally.begin();
    x_driver::waitUntil([] { return false; }, static_cast<int>(1000 * watched));
    tally.end({});
    state.SetIterationTime(watched);
  }
  tally.report(state);
}

void registerAll() {
  const auto add = [](const std::string& name, const auto& run) {
    benchmark::RegisterBenchmark(name.c_str(), run)
        ->UseManualTime()
        ->Unit(benchmark::kMicrosecond)
        ->MinTime(0.2);
  };
  for (const PageForm& form : pageForms) {
    const std::string name = form.name;
    for (const std::size_t changes : {0UL, 1UL, 4UL, 16UL}) {
      if (changes > form.counters(*records).size()) continue;
      add(name + "/" + std::to_string(changes),
          [&form, changes](benchmark::State& state) { tick(state, form, changes); });
    }
    add(name + "/hidden", [&form](benchmark::State& state) { hidden(state, form); });
  }
}

void openNotebook(zWindow* parent) {
  DaiOpenSuccess = dai_open(0, 0, &ioctlDesc) == 0;
  BoardIsThere[0] = 1;
  atmDevices.phy[0].RLPrimary = 1;
  advSettings = 1;
  notebook = new DStatsDlg(parent, 0);
  if (!DaiOpenSuccess || !x_driver::show(*notebook)) std::abort();
  XResizeWindow(app->display(), XtWindow(notebook->shell()), notebookSize.width,
                notebookSize.height);
  x_driver::settle();
  bareSession = connectToNode();
}

}  // namespace

// The notebook stands over app->rootWindow().
void zApp::zAppEntry() {
  initIntPack();
  const ScratchDirectory scratch;
  stayOnOneProcessor();
  zDialogFrame root(nullptr, new zSizer(10, 600, 120, 40, nullptr), dialogStyle, "Bench", 0);
  if (!x_driver::show(root)) std::abort();
  checkCounting();
  records = &serveRecords();
  openNotebook(&root);
  registerAll();
  benchmark::RunSpecifiedBenchmarks();
  delete notebook;
}
