// The records of an adapter in full service, which a driver in a process of its own serves while
// the benchmark looks at them and changes them: they stand in memory that both share.
#pragma once

#include <atomic>
#include <cstdint>
#include <vector>

#include "driver/board_records.h"
#include "driver/frame.h"
#include "driver/service_records.h"

template <class Row, int most>
struct ServedRows {
  static constexpr int mostRows = most;
  int count = most;
  Row rows[most]{};
};

struct ServedRecords {
  // Fills in everything, every row and every counter different.
  ServedRecords();

  sig_link_state signalling{};
  aal_stats aal{};
  suni_stats line{};
  lec_state lecState{};
  lec_stats lec{};
  les_state lesState{};
  les_stats les{};
  lecs_state lecsState{};
  lecs_stats lecs{};
  ip_state ipState{};
  ip_stats ip{};
  ServedRows<vc_tbl, 16> circuits;
  ServedRows<lec_tbl_t, 900> connections;
  ServedRows<les_tbl, 8> clients;
  ServedRows<ip_tbl, 13> ipConnections;

  // Whether the driver counts on by itself, each time that a table is asked for.
  std::atomic<bool> isMoving = false;
  // The frames asked for since this was last set to 0, of which as many as there is room for are
  // kept as they came.
  std::atomic<std::uint32_t> asked = 0;
  req_param_t frames[128]{};
};

// The records and their driver, which is at work in the working directory until the program ends.
ServedRecords& serveRecords();

// What the pages show of the records' counters. Those of a table come in such an order that one and
// the next are no neighbours.
std::vector<std::uint32_t*> signallingCounters(ServedRecords& records);
std::vector<std::uint32_t*> aalCounters(ServedRecords& records);
std::vector<std::uint32_t*> lecCounters(ServedRecords& records);
std::vector<std::uint32_t*> lesCounters(ServedRecords& records);
std::vector<std::uint32_t*> lecsCounters(ServedRecords& records);
std::vector<std::uint32_t*> ipCounters(ServedRecords& records);

// Exchanges these frames on `socket`, a session of the benchmark's own, and does nothing else.
void exchangeBare(int socket, const std::vector<req_param_t>& frames);
