// What it costs to open Setup of a full adapter in process, until the server has drawn it, and to
// turn its tabs, each beside a notebook of the same templates with nothing behind their controls.
//
// Each row tells what the program asked of the server: `requests`, and `waits` for a reply. What
// the measuring itself sends is left out of the counts; its time is what nothingTurned takes.
// openSetup's `ratio` is the time of opening Setup to that of opening the empty notebook, which
// takes turns with it.
#include <Xm/Xm.h>
#include <benchmark/benchmark.h>

#include <chrono>
#include <cstdlib>
#include <functional>

#include "applet/run_state.h"
#include "atm/transfer_buffers.h"
#include "bench/asked_of_server.h"
#include "framework/controls/tab_control.h"
#include "framework/core/app.h"
#include "framework/core/event_loop.h"
#include "framework/dialogs/control_types.h"
#include "framework/resources/resources.h"
#include "setup/config_dialog.h"
#include "setup/lec_page.h"
#include "setup/setup_session.h"
#include "tests/support/lisim_process.h"
#include "tests/support/x_driver.h"

namespace {

using Clock = std::chrono::steady_clock;

constexpr unsigned long dialogStyle = 0x80CE0000;
constexpr unsigned long notebookStyle = 0x80CE0002;  // as Setup's
constexpr int firstTemplate = 569;
constexpr int lastTemplate = 574;
constexpr int lecTemplate = 571;
constexpr int lecTabs = 175;
constexpr int circuits = 50;

double secondsSince(Clock::time_point start) {
  return std::chrono::duration<double>(Clock::now() - start).count();
}

// The same templates as Setup's, on plain pages.
class EmptyNotebook : public zNotebookDialog {
 public:
  explicit EmptyNotebook(zWindow* parent)
      : zNotebookDialog(parent, new zPageDef(zResId(firstTemplate), firstTemplate), notebookStyle,
                        "Empty") {
    for (int id = firstTemplate; id <= lastTemplate; ++id) {
      zPageDef* const def = add(new zPageDef(zResId(id), id));
      new zDialogPage(this, def, def->getStyle());
    }
    backgroundColor(zDialogGrey);
    setFont(std::make_shared<zFont>("Helv", zPrPoint(0, -120), zFontSpec::weightNormal), 0);
    centerWindow(1);
    show(1);
  }
};

// The adapter.

// Circuits that are different for each `client`.
template <class Pvc, class Address>
std::vector<Pvc> circuitsOf(int client, Address Pvc::*address) {
  std::vector<Pvc> pvcs(circuits);
  for (int i = 0; i < circuits; ++i) {
    Pvc& pvc = pvcs[static_cast<std::size_t>(i)];
    (pvc.*address).bytes[2] = static_cast<unsigned char>(client);
    (pvc.*address).bytes[3] = static_cast<unsigned char>(i);
    pvc.vci = static_cast<std::uint16_t>(100 * client + i);
    pvc.Encap = pvc.Bcast = (client + i) % 2;
  }
  return pvcs;
}

// Client `n` in all its fields.
LECXferBuffer fullClient(int n) {
  const std::string digit(1, static_cast<char>('0' + n % 10));
  LECXferBuffer client;
  client.ElanName = "elan" + digit;
  client.MacText = "00:20:48:00:00:0" + digit;
  client.AtmPrefix = "47000580FFE1000000F21A00" + digit + digit;
  client.AtmEsiSel = "0020480D00" + digit + digit + "0" + digit;
  client.Enabled = client.Lecs = 1;
  client.EnhancedVC = static_cast<std::int16_t>(n % 2);
  client.ElanType = static_cast<std::int16_t>(n % 2);
  client.Mfs = static_cast<std::int16_t>(n % 4);
  client.L3Mtu = static_cast<std::int16_t>(1500 + n);
  client.pvcs = circuitsOf(n, &AtmBridgedPvc::mac);
  return client;
}

// Tabs of clients, in pairs to turn between.
constexpr int equalClients = 1;
constexpr int namedApart = 3;
constexpr int differentClients = 5;

void fillAdapter() {
  phyXferBuffer.RLPrimary = 1;
  for (int n = 0; n < maxLecs; ++n) xferBuffer[n] = fullClient(n);
  for (const int tab : {equalClients, namedApart}) xferBuffer[tab] = xferBuffer[tab - 1];
  xferBuffer[namedApart].ElanName = "another";
  for (int n = 0; n < maxLess; ++n) {
    lesXferBuffer[n].Enabled = 1;
    lesXferBuffer[n].ElanType = 1;
    lesXferBuffer[n].ElanName = "elan";
    lesXferBuffer[n].clients.resize(2);
  }
  lecsXferBuffer.Enabled = 1;
  ip1577XferBuffer.Enabled = 1;
  ip1577XferBuffer.IPAddress = "010000000001";
  ip1577XferBuffer.pvcs = circuitsOf(1, &AtmRoutedPvc::ip);
}

// Opening.

zWindow* parent = nullptr;

struct Opened {
  double seconds;
  AskedOfServer asked;
};

// The window manager decides when a dialog comes up, and in the time until then nothing is asked.
template <class Notebook>
Opened open() {
  x_driver::settle();
  bool mapped = false;
  const auto noteMapping = [](Widget, XtPointer flag, XEvent* event, Boolean*) {
    if (event->type == MapNotify) *static_cast<bool*>(flag) = true;
  };
  const AskedOfServer before = askedOfServer();
  const Clock::time_point start = Clock::now();
  Notebook notebook(parent);
  XtAddEventHandler(notebook.shell(), StructureNotifyMask, False, noteMapping, &mapped);
  notebook.showTimeout();
  while (!mapped) ziProcessEvent();
  settle();
  return {secondsSince(start), askedOfServer() - before - askedBySettling};
}

void openSetup(benchmark::State& state) {
  AskedOfServer asked;
  double setup = 0, empty = 0;
  while (state.KeepRunning()) {
    empty += open<EmptyNotebook>().seconds;
    const Opened opened = open<DConfigDlg>();
    state.SetIterationTime(opened.seconds);
    setup += opened.seconds;
    asked += opened.asked;
  }
  countPerIteration(state, asked);
  state.counters["ratio"] = setup / empty;
}

void openEmpty(benchmark::State& state) {
  AskedOfServer asked;
  while (state.KeepRunning()) {
    const Opened opened = open<EmptyNotebook>();
    state.SetIterationTime(opened.seconds);
    asked += opened.asked;
  }
  countPerIteration(state, asked);
}

// Turning tabs.

// Takes the time of turning to one tab and the other in turn, until it can be seen.
void turn(benchmark::State& state, const std::function<void(int tab)>& select) {
  AskedOfServer asked;
  int tab = 0;
  select(tab);
  while (state.KeepRunning()) {
    x_driver::settle();
    tab = 1 - tab;
    const AskedOfServer before = askedOfServer();
    const Clock::time_point start = Clock::now();
    select(tab);
    settle();
    state.SetIterationTime(secondsSince(start));
    asked += askedOfServer() - before - askedBySettling;
  }
  countPerIteration(state, asked);
}

void nothingTurned(benchmark::State& state) {
  DConfigDlg setup(parent);
  if (!x_driver::show(setup)) std::abort();
  turn(state, [](int) {});
}

void turnClients(benchmark::State& state) {
  DConfigDlg setup(parent);
  setup.select(setup.findPage(lecTemplate));
  if (!x_driver::show(setup)) std::abort();
  auto* const tabs = static_cast<zTabCtrl*>(setup.lecPage()->get(lecTabs));
  const int first = static_cast<int>(state.range(0));
  turn(state, [&](int tab) { tabs->select(first + tab); });
}

template <class Notebook>
void turnPages(benchmark::State& state) {
  Notebook notebook(parent);
  if (!x_driver::show(notebook)) std::abort();
  turn(state,
       [&](int tab) { notebook.select(notebook.findPage(tab ? lecTemplate : firstTemplate)); });
}

#define SETUP_BENCHMARK(function) \
  BENCHMARK(function)->UseManualTime()->Unit(benchmark::kMicrosecond)
SETUP_BENCHMARK(openSetup);
SETUP_BENCHMARK(openEmpty);
SETUP_BENCHMARK(nothingTurned);
SETUP_BENCHMARK(turnClients)->Name("turnEqualClients")->Arg(equalClients);
SETUP_BENCHMARK(turnClients)->Name("turnClientsNamedApart")->Arg(namedApart);
SETUP_BENCHMARK(turnClients)->Name("turnDifferentClients")->Arg(differentClients);
SETUP_BENCHMARK(turnPages<DConfigDlg>)->Name("turnPagesOfSetup");
SETUP_BENCHMARK(turnPages<EmptyNotebook>)->Name("turnPagesOfEmpty");

}  // namespace

// The notebooks stand over app->rootWindow(). The pages know the driver by what the one before
// found, so the first Setup is not measured.
void zApp::zAppEntry() {
  initIntPack();
  const LisimProcess driver;
  std::filesystem::current_path(std::filesystem::path(driver.device()).parent_path());
  zDialogFrame root(nullptr, new zSizer(10, 600, 120, 40, nullptr), dialogStyle, "Bench", 0);
  if (!x_driver::show(root)) std::abort();
  checkCounting();
  parent = &root;
  advSettings = 1;
  fillAdapter();
  open<DConfigDlg>();
  if (!ConfDaiOpenSuccess) std::abort();
  benchmark::RunSpecifiedBenchmarks();
}
