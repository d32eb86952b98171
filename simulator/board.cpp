#include "simulator/board.h"

#include <algorithm>

namespace lisim {

namespace {

struct AalCounter {
  CounterName counter;
  std::uint32_t aal_stats::*word;
};

constexpr AalCounter aalCounters[] = {
    {cellsIn, &aal_stats::rxCells},         {cellsOut, &aal_stats::txCells},
    {packetsIn, &aal_stats::rxPackets},     {packetsOut, &aal_stats::txPackets},
    {invalidVcis, &aal_stats::invalidVcis}, {invalidVpis, &aal_stats::invalidVpis},
    {droppedIn, &aal_stats::rxDropped},     {droppedOut, &aal_stats::txDropped},
};

struct ConfigServerCounter {
  CounterName counter;
  std::uint32_t lecs_stats::*word;
};

constexpr ConfigServerCounter configServerCounters[] = {
    {lecsValid, &lecs_stats::validRequests},       {lecsInvalid, &lecs_stats::invalidRequests},
    {lecsRejected, &lecs_stats::rejectedRequests}, {lecsMade, &lecs_stats::connectionsMade},
    {lecsOpen, &lecs_stats::connectionsOpen},
};

constexpr std::uint32_t suni_stats::*alarmWords[alarmKinds] = {&suni_stats::los, &suni_stats::lof,
                                                               &suni_stats::oof, &suni_stats::ferf,
                                                               &suni_stats::ais, &suni_stats::lop};

// QSAAL's and ILMI's well-known circuits, and where the others start.
constexpr std::uint16_t signallingVcis[] = {5, 16};
constexpr std::size_t signallingRows = std::size(signallingVcis);
constexpr std::size_t firstDataVci = 33;

// So that the rows of one table do not all show one number.
constexpr std::uint32_t rowSpread = 1000;

bool isOwnVci(const Board& board, std::uint16_t vci) {
  for (std::size_t row = 0; row < std::min<std::size_t>(signallingRows, board.vcRows); ++row)
    if (signallingVcis[row] == vci) return true;
  return vci >= firstDataVci && vci - firstDataVci + signallingRows < board.vcRows;
}

}  // namespace

std::uint16_t ownVci(std::size_t row) {
  return row < signallingRows ? signallingVcis[row]
                              : static_cast<std::uint16_t>(firstDataVci + (row - signallingRows));
}

const TrafficClock& Board::clockOf(CounterName name) const {
  if (name < vcIn) return traffic;
  if (name < lecsValid) return circuitTraffic;
  return name < ipIn ? lecsRequests : ipTraffic;
}

std::uint32_t Board::count(CounterName name, Milliseconds now, std::uint32_t seed) const {
  return counters[name].value(clockOf(name).at(now), seed);
}

aal_stats aalStatsOf(const Board& board, Milliseconds now, std::uint32_t seed) {
  aal_stats stats{};
  for (const AalCounter& entry : aalCounters)
    stats.*entry.word = board.count(entry.counter, now, seed);
  stats.rxCellErrors[0] = board.count(cellErrors, now, seed);
  stats.rxFrameErrors[0] = board.count(frameErrors, now, seed);
  return stats;
}

suni_stats suniStatsOf(const Board& board) {
  suni_stats stats{};
  stats.medium = board.medium;
  stats.answers = board.lineAnswers;
  stats.linkUp = board.linkUp;
  for (int kind = 0; kind < alarmKinds; ++kind)
    stats.*alarmWords[kind] = board.alarms[static_cast<std::size_t>(kind)];
  if (!board.linkUp) stats.los = 1;
  return stats;
}

ServiceView serviceView(const Board& board, Milliseconds now, Milliseconds step) {
  return {board.services, board.mac, board.linkWell, board.linkSince, now, step};
}

std::vector<std::uint16_t> vcisOf(const Board& board, const ServiceView& services) {
  std::vector<std::uint16_t> vcis;
  for (std::size_t row = 0; row < board.vcRows; ++row) vcis.push_back(ownVci(row));
  for (const std::uint16_t vci : services.circuits())
    if (vcis.size() < maxVcRows && !isOwnVci(board, vci)) vcis.push_back(vci);
  return vcis;
}

vc_tbl vcRowOf(const Board& board, std::uint16_t vci, Milliseconds now, std::uint32_t seed) {
  const std::uint32_t offset = seed == 0 ? 0 : draw(seed, vci, vcIn) % rowSpread;
  vc_tbl entry{};
  entry.vci = static_cast<std::int16_t>(vci);
  entry.counterIn = board.count(vcIn, now, seed) + offset;
  entry.counterOut = board.count(vcOut, now, seed) + offset;
  return entry;
}

void countConfigServer(const Board& board, Milliseconds now, std::uint32_t seed,
                       lecs_stats& stats) {
  if (!board.services.configServer.enabled) return;
  for (const ConfigServerCounter& entry : configServerCounters)
    stats.*entry.word = board.count(entry.counter, now, seed);
}

ip_stats ipStatsOf(const Board& board, Milliseconds now, std::uint32_t seed) {
  ip_stats stats{};
  if (!board.services.ip.enabled) return stats;
  stats.received[0] = board.count(ipIn, now, seed);
  stats.transmitted[0] = board.count(ipOut, now, seed);
  stats.rxDropped[0] = board.count(ipDroppedIn, now, seed);
  stats.txDropped[0] = board.count(ipDroppedOut, now, seed);
  return stats;
}

}  // namespace lisim
