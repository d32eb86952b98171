// The services of a board, as requests have set them up, and what time makes of them.
//
// Signalling comes up layer by layer once its port is enabled and the link is well, a step a layer,
// and anew when it has been down. Clients that want an ELAN or an ARP server wait for it and
// then join step by step; those with permanent circuits alone work at once. A service that is
// stopped forgets its circuits and clients.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
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

// An end system that switching has connected to a service, by its MAC address (48 bits) or, for
// IP, its IP address (32 bits). A server's client has two circuits: control direct and multicast
// send.
struct Peer {
  std::uint64_t name = 0;
  std::array<std::uint16_t, 2> vcis{};
};

struct LanClient {
  bool enabled = false;
  lecReqStruct record;
  Milliseconds since = 0;
  std::uint32_t enhanced = 0;
  std::vector<bdgPvcReqStruct> pvcs;
  std::vector<Peer> peers = {};
  std::optional<std::uint32_t> forcedState = {};
};

struct LanServer {
  bool enabled = false;
  lesReqStruct record;
  std::vector<Peer> peers = {};
  std::optional<std::uint32_t> forcedState = {};
};

constexpr std::size_t mostMappings = 65534;  // what a 16-bit row number reaches

struct ConfigServer {
  bool enabled = false;
  bool going = false;
  lecs_req record;
  std::vector<lecs_tbl> clients;  // mappings, in the order in which they came
  std::optional<std::uint32_t> forcedState = {};
};

struct IpService {
  bool enabled = false;
  ip1577ReqStruct record;
  Milliseconds since = 0;
  std::vector<ip_pvc> pvcs;
  std::vector<Peer> peers = {};
  std::optional<std::uint32_t> forcedState = {};
};

struct Signalling {
  bool portEnabled = false;
  Milliseconds since = 0;
  sigPortCfg_s cfg;
  std::array<std::optional<std::uint8_t>, 3> forcedLayers{};  // ILMI, QSAAL, signalling

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

// Whether a circuit to a peer has this VCI, also while its service does not work.
bool isKeptForPeer(const Services& services, std::uint16_t vci);

// A moment of a board's services.
struct ServiceView {
  const Services& services;
  std::span<const std::uint8_t> mac;  // the board's, 6 bytes
  bool linkWell;
  Milliseconds linkSince;  // when that began
  Milliseconds now;
  Milliseconds step;  // between two states on the way up

  std::uint32_t clientState(int unit) const;
  std::uint32_t serverState(int unit) const;
  std::uint32_t configServerState() const;
  std::uint32_t ipState() const;
  bool signallingUp() const;
  // In full operation, so that their counters grow.
  bool configServerServes() const;
  bool ipCarries() const;

  sig_link_state linkState() const;
  lec_stats clientStats(int unit) const;
  les_stats serverStats(int unit) const;
  lecs_stats configServerStats() const;
  // The clients that a server's ELAN has: the board's own, then the others.
  std::vector<les_tbl> joinedClients(int unit) const;
  // The end systems that switching has connected to a client, a server and IP, while those work.
  std::span<const Peer> peersOfClient(int unit) const;
  std::span<const Peer> peersOfServer(int unit) const;
  std::span<const Peer> peersOfIp() const;
  // The address of an end system on the board's network, by 48 bits of it.
  void writePeerAddress(std::uint8_t* address, std::uint64_t esi) const;

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
