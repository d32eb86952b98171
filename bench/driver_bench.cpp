// What a request costs beyond the messages it needs: one frame, a whole table in pages, and all the
// control requests of a full adapter that has changed in everything, each beside bare round trips
// of the same sizes to an echoing process. LISIM names the simulated driver to run; without it the
// one in the build folder is.

#include <benchmark/benchmark.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <new>
#include <string>
#include <vector>

#include "applet/run_state.h"
#include "atm/devices.h"
#include "atm/transfer_buffers.h"
#include "bench/driver_child.h"
#include "driver/control_table.h"
#include "driver/queries.h"
#include "driver/session.h"
#include "platform/wire.h"
#include "shell/apply_changes.h"
#include "tests/support/scratch_directory.h"

namespace {

std::size_t allocations = 0;

}  // namespace

[[gnu::noinline]] void* operator new(std::size_t bytes) {
  ++allocations;
  if (void* block = std::malloc(bytes)) return block;
  std::abort();
}
[[gnu::noinline]] void operator delete(void* block) noexcept {
  std::free(block);
}
[[gnu::noinline]] void operator delete(void* block, std::size_t) noexcept {
  std::free(block);
}

namespace {

constexpr std::uint16_t tableRows = 900;
constexpr int pageRows = formOf(Query::LecTable).pageRows;
constexpr int pagesOfTable = (tableRows + pageRows - 1) / pageRows;
constexpr std::size_t pageMessage =
    sizeof(WireHead) + plainDataOffset + pageRows * sizeof(lec_tbl_t);
constexpr std::size_t countMessage = sizeof(WireHead) + plainDataOffset;
constexpr std::size_t frameMessage = sizeof(WireHead) + plainDataOffset + sizeof(board_state);

void echo(int socket) {
  char message[65536];
  for (ssize_t got; (got = recv(socket, message, sizeof message, 0)) > 0;)
    send(socket, message, static_cast<std::size_t>(got), MSG_NOSIGNAL);
}

// Exchanges that the least driver has served, in memory shared with its process.
std::atomic<std::uint64_t>* served = nullptr;

// The least a driver can be: it counts tableRows rows in any table and serves them in pages.
void answerFrame(req_param_t& head, std::uint8_t*) {
  served->fetch_add(1, std::memory_order_relaxed);
  head.Resp = 0;
  if (head.Type == serviceNRows) head.NRow = tableRows;
  if (head.Type != serviceTable) return;
  head.NRow = static_cast<std::uint16_t>(std::clamp(tableRows + 1 - head.RowM, 0, pageRows));
  head.RowM = static_cast<std::uint16_t>(head.RowM + head.NRow);
}

// Opens the device in the working directory, which its driver may still have to make.
int openSession() {
  int session = -1;
  for (int attempt = 0; attempt < 100 && dai_open(0, 0, &session) != 0; ++attempt) usleep(20000);
  return session;
}

int echoSocket = -1;
int tableSession = -1;
int simulatorSession = -1;

// One frame of the board state's size, to the simulated driver or, without one, its stand-in.
void frameToDriver(benchmark::State& state) {
  const bool simulated = simulatorSession >= 0;
  aalInfo query(simulated ? simulatorSession : tableSession, 0, 0);
  query.prepareMsg(sizeof(board_state));
  for (auto _ : state) {
    if (query.daiRequest() != 0) state.SkipWithError("the driver refused the frame");
  }
  state.SetLabel(simulated ? "lisim" : "stand-in, lisim did not start");
}
BENCHMARK(frameToDriver);

void bareFrame(benchmark::State& state) {
  std::vector<std::uint8_t> message(frameMessage);
  for (auto _ : state) {
    if (!roundTrip(echoSocket, message.data(), frameMessage)) state.SkipWithError("no echo");
  }
}
BENCHMARK(bareFrame);

// A client's table of 900 connections, by an object that is kept and by a new one each time.
void entireLecTable(benchmark::State& state) {
  auto query = std::make_unique<lecInfo>(tableSession, 0, 0);
  query->GetEntireTable();
  const std::size_t before = allocations;
  for (auto _ : state) {
    if (state.range(0) != 0) query = std::make_unique<lecInfo>(tableSession, 0, 0);
    if (query->GetEntireTable() == nullptr || query->header().NRow != tableRows)
      state.SkipWithError("the table did not come whole");
  }
  state.counters["allocations"] = benchmark::Counter(static_cast<double>(allocations - before),
                                                     benchmark::Counter::kAvgIterations);
}
BENCHMARK(entireLecTable)->ArgName("new")->Arg(0)->Arg(1);

void bareTableRoundTrips(benchmark::State& state) {
  std::vector<std::uint8_t> message(pageMessage);
  for (auto _ : state) {
    bool ok = roundTrip(echoSocket, message.data(), countMessage);
    for (int page = 0; page < pagesOfTable; ++page)
      ok = roundTrip(echoSocket, message.data(), pageMessage) && ok;
    if (!ok) state.SkipWithError("no echo");
  }
}
BENCHMARK(bareTableRoundTrips);

// A full adapter: every client with its circuits, every server with its clients, everything on and
// everything changed.
constexpr short fullAdapter = 0;
constexpr std::size_t circuits = 50;
constexpr std::size_t clientsOfServer = 2;

void changeEverything() {
  DaiOpenSuccess = BoardIsThere[fullAdapter] = 1;
  for (int n = 0; n < maxLecs; ++n) {
    xferBuffer[n].Enabled = xferBuffer[n].EnhancedVC = 1;
    xferBuffer[n].ElanName = "changed";
    xferBuffer[n].pvcs.resize(circuits);
  }
  for (int n = 0; n < maxLess; ++n) {
    lesXferBuffer[n].Enabled = 1;
    lesXferBuffer[n].clients.resize(clientsOfServer);
  }
  lecsXferBuffer.Enabled = 1;
  ip1577XferBuffer.Enabled = 1;
  ip1577XferBuffer.pvcs.resize(circuits);
  sigXferBuffer.Enabled = 1;
  phyXferBuffer.Framing = phyXferBuffer.VPI = phyXferBuffer.RLAutoSwitch = 1;
}

// The requests that this asks for: what, and how many times.
constexpr struct {
  Control control;
  std::size_t times;
} fullApply[] = {
    {Control::LecEnable, maxLecs},
    {Control::LecAddPvc, maxLecs* circuits},
    {Control::LecSetEnhanced, maxLecs},
    {Control::LesDisable, maxLess},
    {Control::LesEnable, maxLess},
    {Control::LecsDisable, 1},
    {Control::LecsEnable, 1},
    {Control::LecsGo, 1},
    {Control::LecsAddClient, maxLess* clientsOfServer},
    {Control::IpEnable, 1},
    {Control::IpAddPvc, circuits},
    {Control::SigUpdate, 1},
    {Control::SigPort, 1},
    {Control::PhySetFraming, 1},
    {Control::PhySetVpi, 1},
    {Control::PhySetRedundantLink, 1},
};

std::size_t requestsAskedFor() {
  std::size_t count = 0;
  for (const auto& step : fullApply) count += step.times;
  return count;
}

void applyFullAdapter(benchmark::State& state) {
  changeEverything();
  const std::uint64_t before = *served;
  for (auto _ : state) {
    const ChangeSession session;
    applyClients(fullAdapter, session);
    applyServers(fullAdapter, session);
    applyConfigServer(fullAdapter, session);
    applyIp1577(fullAdapter, session);
    if (!applySignalling(fullAdapter, session) || !applyPhysical(fullAdapter, session))
      state.SkipWithError("not everything was sent");
  }
  state.counters["requests"] =
      benchmark::Counter(static_cast<double>(*served - before), benchmark::Counter::kAvgIterations);
  state.counters["asked for"] = static_cast<double>(requestsAskedFor());
}
BENCHMARK(applyFullAdapter);

void bareApplyRoundTrips(benchmark::State& state) {
  std::vector<std::uint8_t> message(sizeof(WireHead) + signallingFrameBytes);
  for (auto _ : state) {
    bool ok = true;
    for (const auto& [control, times] : fullApply) {
      const std::size_t bytes = sizeof(WireHead) + formOf(control).frameBytes;
      for (std::size_t i = 0; i < times; ++i)
        ok = roundTrip(echoSocket, message.data(), bytes) && ok;
    }
    if (!ok) state.SkipWithError("no echo");
  }
}
BENCHMARK(bareApplyRoundTrips);

std::string lisimPath() {
  const char* path = std::getenv("LISIM");
  return std::filesystem::absolute(path != nullptr ? path : ONDRELLE_BUILD_DIR "/lisim").string();
}

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  const std::string lisim = lisimPath();
  stayOnOneProcessor();

  int ends[2];
  if (socketpair(AF_UNIX, SOCK_SEQPACKET, 0, ends) != 0) return 1;
  const Child echoing([&] { echo(ends[1]); });
  close(ends[1]);
  echoSocket = ends[0];

  served = new (sharedMemory(sizeof *served)) std::atomic<std::uint64_t>(0);
  const ScratchDirectory tableDirectory;
  const int tableListener = listenOnNode();
  const Child serving([&] { serveSessions(tableListener, answerFrame); });
  tableSession = openSession();

  const ScratchDirectory simulatorDirectory;
  const Child simulating([&] {
    execl(lisim.c_str(), "lisim", "--device", "./li", "--boards", "2", nullptr);
    std::perror(lisim.c_str());
  });
  simulatorSession = openSession();
  if (simulatorSession < 0)
    std::fprintf(stderr, "%s did not start; a stand-in answers the frames\n", lisim.c_str());

  // The last one made is the device that changes are applied to.
  const ScratchDirectory applyDirectory;
  const int applyListener = listenOnNode();
  const Child applying([&] { serveSessions(applyListener, answerFrame); });

  benchmark::RunSpecifiedBenchmarks();
  dai_close(0, simulatorSession);
  dai_close(0, tableSession);
  return 0;
}
