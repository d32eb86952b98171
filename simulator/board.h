// One slot of the simulated host: the board in it, its line, its place in a redundant pair and
// its counters.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

#include "driver/board_records.h"
#include "simulator/counter.h"
#include "simulator/services.h"

namespace lisim {

constexpr int boardSlots = 8;
constexpr int noBoard = -1;

// The table's read position is a 16-bit row number from 1, and stands behind the last row in the
// end.
constexpr std::uint32_t maxVcRows = 65534;

enum class Presence { absent, present, silent };
enum class Role { primary, backup };

enum AlarmKind { alarmLos, alarmLof, alarmOof, alarmFerf, alarmAis, alarmLop, alarmKinds };

enum CounterName {
  cellsIn,
  cellsOut,
  packetsIn,
  packetsOut,
  cellErrors,
  frameErrors,
  invalidVcis,
  invalidVpis,
  droppedIn,
  droppedOut,
  vcIn,
  vcOut,
  lecsValid,
  lecsInvalid,
  lecsRejected,
  lecsMade,
  lecsOpen,
  ipIn,
  ipOut,
  ipDroppedIn,
  ipDroppedOut,
  counterNames
};

// The codes of the line interface's medium.
enum Medium : std::uint32_t {
  mediumUnknown = 0,
  medium25 = 1,
  mediumOc3MultiMode = 2,
  mediumOc3SingleMode = 3,
  medium155Utp = 4
};

struct Board {
  Presence presence = Presence::absent;
  std::array<std::uint8_t, 6> mac{};
  std::uint32_t maxVc = 1024;

  std::uint32_t medium = mediumOc3MultiMode;
  std::uint32_t framing = 0;  // 0 SONET, 1 SDH
  std::uint32_t vpi = 0;      // 0 to 255
  bool lineAnswers = true;    // the line interface can be asked for its alarms
  bool linkUp = true;
  std::array<bool, alarmKinds> alarms{};

  Role role = Role::primary;
  int backup = noBoard;  // of a primary
  bool autoSwitch = false;
  int carrier = noBoard;                  // of a primary: the board that carries its link
  std::optional<Milliseconds> returnDue;  // when auto-switch gives the link back
  std::optional<rls_status> forcedStatus;

  std::uint32_t vcRows = 0;  // of traffic of its own, 0 to maxVcRows
  std::array<Counter, counterNames> counters{};
  TrafficClock traffic;         // of the link it carries
  TrafficClock circuitTraffic;  // of its own link, whoever carries it
  TrafficClock lecsRequests;    // of the configuration server
  TrafficClock ipTraffic;
  Services services;

  bool linkWell = false;       // a board that is well carries its link, or is its backup
  Milliseconds linkSince = 0;  // when that last changed

  // There, answering, and its line up.
  bool well() const { return presence == Presence::present && linkUp; }

  // What a counter grows with, and where it stands.
  const TrafficClock& clockOf(CounterName name) const;
  std::uint32_t count(CounterName name, Milliseconds now, std::uint32_t seed) const;
};

// The answers to the queries of one board, as of `now`.
aal_stats aalStatsOf(const Board& board, Milliseconds now, std::uint32_t seed);
suni_stats suniStatsOf(const Board& board);

// The board's services as of `now`, with the time a step of theirs takes.
ServiceView serviceView(const Board& board, Milliseconds now, Milliseconds step);

// The VCI in row `row` of the traffic that the board has of its own.
std::uint16_t ownVci(std::size_t row);

// The VCIs of the board's virtual-circuit table: those of its own traffic, the two signalling
// circuits first, then what the services have beyond them.
std::vector<std::uint16_t> vcisOf(const Board& board, const ServiceView& services);

// The circuit's row of that table. With a seed other than 0 each has counts of its own.
vc_tbl vcRowOf(const Board& board, std::uint16_t vci, Milliseconds now, std::uint32_t seed);

// The counters of the services, which are zero while they are off.
void countConfigServer(const Board& board, Milliseconds now, std::uint32_t seed, lecs_stats& stats);
ip_stats ipStatsOf(const Board& board, Milliseconds now, std::uint32_t seed);

}  // namespace lisim
