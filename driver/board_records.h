// Answers of the board, AAL and virtual-circuit queries, each laid out here and nowhere else.
// All integers are little-endian.
#pragma once

#include <cstddef>
#include <cstdint>
#include <iosfwd>

// Boards present.
struct board_state {
  std::uint16_t numBoards;  // how many boards the driver has
  std::uint16_t boardMask;  // bit i set for adapter i
  std::uint8_t reserved[12];
};
static_assert(sizeof(board_state) == 16 && offsetof(board_state, boardMask) == 2);

// A board's MAC address; asked for by adapter number plus 1 in the first byte.
struct board_mac {
  std::uint8_t address[6];
  std::uint8_t reserved[10];
};
static_assert(sizeof(board_mac) == 16);

// Where a board stands in its redundant pair.
struct rls_status {
  std::uint16_t linkState;  // 0 Active, 1 Inactive, 2 Down
  std::int16_t activeLink;  // the adapter whose partner or traffic this is, -1 none
};
static_assert(sizeof(rls_status) == 4 && offsetof(rls_status, activeLink) == 2);

// One row of a board's virtual-circuit table.
struct vc_tbl {
  std::int16_t vci;
  std::uint8_t reserved[10];
  std::uint32_t counterOut;
  std::uint32_t counterIn;
};
static_assert(sizeof(vc_tbl) == 20 && offsetof(vc_tbl, counterOut) == 12 &&
              offsetof(vc_tbl, counterIn) == 16);

// The log's form: VCI and the two counters, on one line that the caller ends.
std::ostream& operator<<(std::ostream& os, const vc_tbl& row);

// AAL5 and ATM layer counters, 32-bit words that wrap.
struct aal_stats {
  std::uint32_t txCells;           // 0
  std::uint32_t rxCells;           // 1
  std::uint32_t txPackets;         // 2
  std::uint32_t rxPackets;         // 3
  std::uint32_t reserved4[2];      // 4, 5
  std::uint32_t rxCellErrors[4];   // 6 to 9, shown as their sum
  std::uint32_t rxFrameErrors[4];  // 10 to 13, shown as their sum
  std::uint32_t reserved14[4];     // 14 to 17
  std::uint32_t invalidVcis;       // 18
  std::uint32_t invalidVpis;       // 19
  std::uint32_t rxDropped;         // 20
  std::uint32_t reserved21;        // 21
  std::uint32_t txDropped;         // 22
  std::uint32_t reserved23[2];     // 23, 24
};
static_assert(sizeof(aal_stats) == 100 && offsetof(aal_stats, invalidVcis) == 72 &&
              offsetof(aal_stats, txDropped) == 88);

// The line interface: what it is and its alarms, nonzero meaning raised unless said otherwise.
struct suni_stats {
  std::uint32_t medium;   // 0: 1 25 Mb/s, 2 OC3c multi-mode, 3 OC3c single-mode, 4 155 UTP
  std::uint32_t answers;  // 1: zero when the line interface does not answer
  std::uint32_t linkUp;   // 2: of a 25 Mb/s interface
  std::uint32_t oof;      // 3: out of frame
  std::uint32_t lof;      // 4: loss of frame
  std::uint32_t los;      // 5: loss of signal
  std::uint32_t reserved6[2];
  std::uint32_t ferf;  // 8: far end receive failure
  std::uint32_t ais;   // 9: alarm indication signal
  std::uint32_t reserved10[2];
  std::uint32_t lop;  // 12: loss of pointer
  std::uint32_t reserved13[46];
};
static_assert(sizeof(suni_stats) == 236 && offsetof(suni_stats, ferf) == 32 &&
              offsetof(suni_stats, lop) == 48);

constexpr std::uint16_t packageRevBytes = 40;  // a text, terminated unless it fills the field
constexpr std::uint16_t boardMaxVcBytes = 4;   // one word
