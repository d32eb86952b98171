// The services of a board, as requests have set them up, and what time makes of them.
//
// Signalling comes up layer by layer once its port is enabled and the line is well, a step a layer,
// and anew when the line has been down. Clients that want an ELAN or an ARP server wait for it and
// then join step by step; those with permanent circuits alone work at once. A service that is
// stopped forgets its circuits and clients.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <vector>

#include "driver/control_records.h"
#include "driver/service_records.h"
#include "simulator/clock.h"

namespace lisim {

constexpr int unitSlots = 16;  // clients and servers of a board

// The states that are reported.
enum ServiceState : std::uint32_t {
  serviceOff = 0,
  serviceJoining = 1,
  lesRunning = 1,
  lecsOperational = 4,
  ipOperational = 5,
  lecOperational = 6,
};

struct LanClient {
  bool enabled = false;
  lecReqStruct record;
  Milliseconds since = 0;
  std::uint32_t enhanced = 0;
  std::vector<bdgPvcReqStruct> pvcs;
};

struct LanServer {
  bool enabled = false;
  lesReqStruct record;
};

struct ConfigServer {
  bool enabled = false;
  bool going = false;
  lecs_req record;
  std::vector<lecs_tbl> clients;  // mappings, in the order in which they came
};

struct IpService {
  bool enabled = false;
  ip1577ReqStruct record;
  Milliseconds since = 0;
  std::vector<ip_pvc> pvcs;
};

struct Signalling {
  bool portEnabled = false;
  Milliseconds since = 0;
  sigPortCfg_s cfg;

  // One that is enabled already goes on as it is.
  void enablePort(bool enabled, Milliseconds now) {
    if (enabled && !portEnabled) since = now;
    portEnabled = enabled;
  }
};

struct Services {
  std::array<LanClient, unitSlots> clients;
  std::array<LanServer, unitSlots> servers;
  ConfigServer configServer;
  IpService ip;
  Signalling signalling;
};

// A moment of a board's services.
struct ServiceView {
  const Services& services;
  std::span<const std::uint8_t> mac;  // the board's, 6 bytes
  bool lineWell;
  Milliseconds lineSince;  // when that began
  Milliseconds now;
  Milliseconds step;  // between two states on the way up

  std::uint32_t clientState(int unit) const;
  std::uint32_t serverState(int unit) const;
  std::uint32_t configServerState() const;
  std::uint32_t ipState() const;
  bool signallingUp() const;

  sig_link_state linkState() const;
  lec_stats clientStats(int unit) const;
  les_stats serverStats(int unit) const;
  lecs_stats configServerStats() const;
  // The board's own clients that a server's ELAN has.
  std::vector<les_tbl> joinedClients(int unit) const;

  // The VCIs of all circuits, signalling's and the services', in rising order.
  std::vector<std::uint16_t> circuits() const;

 private:
  Milliseconds waited(Milliseconds since) const;
  Milliseconds signallingStart() const;
  std::uint32_t joinState(bool enabled, bool pvcOnly, Milliseconds since,
                          std::uint32_t operational) const;
  std::uint32_t signallingSteps() const;
  bool hasControlCircuits(int unit) const;
  void writeAddress(std::uint8_t* address, int offset, std::uint8_t selector) const;
};

}  // namespace lisim
