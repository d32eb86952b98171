#include "simulator/services.h"

#include <algorithm>
#include <cstring>

#include "driver/frame.h"

namespace lisim {

namespace {

// What the layers report, as their codes have it.
enum LayerState : std::uint8_t {
  ilmiRegistering = 1,
  ilmiRegistered = 2,
  saalConnecting = 1,
  saalReady = 9,
  sigDisconnected = 0,
  sigReady = 1,
  layerNotConfigured = 255,
};

// Steps after which a layer is up.
constexpr std::uint32_t ilmiSteps = 1;
constexpr std::uint32_t saalSteps = 2;
constexpr std::uint32_t sigSteps = 3;

constexpr std::uint16_t saalVci = 5;
constexpr std::uint16_t ilmiVci = 16;

// A client's circuits to its servers: control direct and distribute, multicast send and forward.
constexpr int controlCircuits = 4;
constexpr std::uint16_t firstControlVci = 256;

std::uint16_t controlVci(int unit, int which) {
  return static_cast<std::uint16_t>(firstControlVci + controlCircuits * unit + which);
}

constexpr std::uint8_t serverSelector = 0x10;  // of unit 0; the others count up
constexpr std::uint8_t busSelector = 0x20;
constexpr std::uint8_t configServerSelector = 0x30;
constexpr std::uint16_t busActive = 3;

template <std::size_t size>
void copyBytes(std::uint8_t (&to)[size], const std::uint8_t (&from)[size]) {
  std::memcpy(to, from, size);
}

}  // namespace

bool isKeptForPeer(const Services& services, std::uint16_t vci) {
  const auto has = [vci](const auto& service) {
    return std::ranges::any_of(service.peers, [vci](const Peer& peer) {
      return std::ranges::find(peer.vcis, vci) != peer.vcis.end();
    });
  };
  return std::ranges::any_of(services.clients, has) || std::ranges::any_of(services.servers, has) ||
         has(services.ip);
}

Milliseconds ServiceView::waited(Milliseconds since) const {
  return now - std::min(since, now);
}

Milliseconds ServiceView::signallingStart() const {
  return std::max(services.signalling.since, linkSince);
}

std::uint32_t ServiceView::signallingSteps() const {
  if (!linkWell || !services.signalling.portEnabled) return 0;
  const Milliseconds passed = waited(signallingStart());
  return step == 0 ? sigSteps
                   : static_cast<std::uint32_t>(std::min<Milliseconds>(passed / step, sigSteps));
}

bool ServiceView::signallingUp() const {
  return signallingSteps() >= sigSteps;
}

// A join starts when both the client has been enabled and signalling is up.
std::uint32_t ServiceView::joinState(bool enabled, bool pvcOnly, Milliseconds since,
                                     std::uint32_t operational) const {
  if (!enabled) return serviceOff;
  if (pvcOnly) return operational;
  if (!signallingUp()) return serviceJoining;
  const Milliseconds start = std::max(since, signallingStart() + sigSteps * step);
  const Milliseconds steps = step == 0 ? operational : waited(start) / step;
  return static_cast<std::uint32_t>(std::min<Milliseconds>(serviceJoining + steps, operational));
}

std::uint32_t ServiceView::clientState(int unit) const {
  const LanClient& client = services.clients[static_cast<std::size_t>(unit)];
  return joinState(client.enabled, client.record.config == 1, client.since, lecOperational);
}

std::uint32_t ServiceView::serverState(int unit) const {
  return services.servers[static_cast<std::size_t>(unit)].enabled ? lesRunning : serviceOff;
}

std::uint32_t ServiceView::configServerState() const {
  const ConfigServer& server = services.configServer;
  if (!server.enabled) return serviceOff;
  return server.going ? lecsOperational : serviceJoining;
}

std::uint32_t ServiceView::ipState() const {
  const IpService& ip = services.ip;
  return joinState(ip.enabled, ip.record.config == 1, ip.since, ipOperational);
}

bool ServiceView::configServerServes() const {
  return configServerState() == lecsOperational && signallingUp();
}

bool ServiceView::ipCarries() const {
  return linkWell && ipState() == ipOperational;
}

// An address of this board: its network prefix, its MAC address `offset` further on, a selector.
void ServiceView::writeAddress(std::uint8_t* address, int offset, std::uint8_t selector) const {
  std::memcpy(address, services.signalling.cfg.NetPrefix, networkPrefixBytes);
  std::memcpy(address + networkPrefixBytes, mac.data(), esiBytes);
  std::uint8_t& last = address[networkPrefixBytes + esiBytes - 1];
  last = static_cast<std::uint8_t>(last + offset);
  address[networkPrefixBytes + esiBytes] = selector;
}

sig_link_state ServiceView::linkState() const {
  sig_link_state state{};
  if (!services.signalling.portEnabled) {
    state.ilmi = state.saal = state.signalling = layerNotConfigured;
  } else {
    const std::uint32_t steps = signallingSteps();
    state.ilmi = steps >= ilmiSteps ? ilmiRegistered : ilmiRegistering;
    state.saal = steps >= saalSteps ? saalReady : saalConnecting;
    state.signalling = steps >= sigSteps ? sigReady : sigDisconnected;
    if (steps >= ilmiSteps) writeAddress(state.address, 0, 0);
  }
  const auto& forced = services.signalling.forcedLayers;
  state.ilmi = forced[0].value_or(state.ilmi);
  state.saal = forced[1].value_or(state.saal);
  state.signalling = forced[2].value_or(state.signalling);
  return state;
}

bool ServiceView::hasControlCircuits(int unit) const {
  return clientState(unit) == lecOperational &&
         services.clients[static_cast<std::size_t>(unit)].record.config != 1;
}

lec_stats ServiceView::clientStats(int unit) const {
  const LanClient& client = services.clients[static_cast<std::size_t>(unit)];
  lec_stats stats{};
  if (!client.enabled) return stats;
  const lecReqStruct& record = client.record;
  writeAddress(stats.address, unit, 0);
  stats.elanType = static_cast<std::uint8_t>(record.elanType + 1);
  stats.mtuType = static_cast<std::uint8_t>(record.mfs);
  std::memcpy(stats.elanName, record.elanName, sizeof stats.elanName);
  std::memcpy(stats.macAddress, stats.address + networkPrefixBytes, sizeof stats.macAddress);
  if (!hasControlCircuits(unit)) return stats;
  copyBytes(stats.controlDirectAddress, record.address);
  copyBytes(stats.controlDistributeAddress, record.address);
  copyBytes(stats.multicastSendAddress, record.address);
  copyBytes(stats.multicastForwardAddress, record.address);
  stats.controlDirectVci = controlVci(unit, 0);
  stats.controlDistributeVci = controlVci(unit, 1);
  stats.multicastSendVci = controlVci(unit, 2);
  stats.multicastForwardVci = controlVci(unit, 3);
  return stats;
}

les_stats ServiceView::serverStats(int unit) const {
  const LanServer& server = services.servers[static_cast<std::size_t>(unit)];
  les_stats stats{};
  if (!server.enabled) return stats;
  const auto place = static_cast<std::uint8_t>(unit);
  writeAddress(stats.address, 0, static_cast<std::uint8_t>(serverSelector + place));
  writeAddress(stats.busAddress, 0, static_cast<std::uint8_t>(busSelector + place));
  stats.elanType = static_cast<std::uint8_t>(server.record.elanType);
  stats.mtuType = static_cast<std::uint8_t>(server.record.mfs);
  std::memcpy(stats.elanName, server.record.elanName, sizeof stats.elanName);
  return stats;
}

lecs_stats ServiceView::configServerStats() const {
  const ConfigServer& server = services.configServer;
  lecs_stats stats{};
  if (!server.enabled) return stats;
  writeAddress(stats.address, 0, configServerSelector);
  stats.elanType = static_cast<std::uint8_t>(server.record.elanType);
  stats.etherMtuType = static_cast<std::uint8_t>(server.record.etherMfs);
  stats.tokenRingMtuType = static_cast<std::uint8_t>(server.record.tokenRingMfs);
  stats.registered = configServerServes();
  return stats;
}

std::vector<les_tbl> ServiceView::joinedClients(int unit) const {
  const LanServer& server = services.servers[static_cast<std::size_t>(unit)];
  std::vector<les_tbl> rows;
  if (!server.enabled) return rows;
  for (int i = 0; i < unitSlots; ++i) {
    const lecReqStruct& record = services.clients[static_cast<std::size_t>(i)].record;
    if (!hasControlCircuits(i) || record.elanType + 1 != server.record.elanType ||
        std::memcmp(record.elanName, server.record.elanName, sizeof record.elanName) != 0)
      continue;
    les_tbl row{};
    writeAddress(row.address, i, 0);
    std::memcpy(row.macAddress, row.address + networkPrefixBytes, sizeof row.macAddress);
    row.state = busActive;
    row.controlDirectVci = controlVci(i, 0);
    row.multicastSendVci = controlVci(i, 2);
    rows.push_back(row);
  }
  for (const Peer& peer : peersOfServer(unit)) {
    les_tbl row{};
    writePeerAddress(row.address, peer.name);
    std::memcpy(row.macAddress, row.address + networkPrefixBytes, sizeof row.macAddress);
    row.state = busActive;
    row.controlDirectVci = peer.vcis[0];
    row.multicastSendVci = peer.vcis[1];
    rows.push_back(row);
  }
  return rows;
}

std::span<const Peer> ServiceView::peersOfClient(int unit) const {
  if (!hasControlCircuits(unit)) return {};
  return services.clients[static_cast<std::size_t>(unit)].peers;
}

std::span<const Peer> ServiceView::peersOfServer(int unit) const {
  if (!signallingUp()) return {};
  return services.servers[static_cast<std::size_t>(unit)].peers;
}

std::span<const Peer> ServiceView::peersOfIp() const {
  if (ipState() != ipOperational || services.ip.record.config == 1) return {};
  return services.ip.peers;
}

void ServiceView::writePeerAddress(std::uint8_t* address, std::uint64_t esi) const {
  std::memcpy(address, services.signalling.cfg.NetPrefix, networkPrefixBytes);
  for (int i = 0; i < esiBytes; ++i)
    address[networkPrefixBytes + i] = static_cast<std::uint8_t>(esi >> 8 * (esiBytes - 1 - i));
}

std::vector<std::uint16_t> ServiceView::circuits() const {
  std::vector<std::uint16_t> vcis;
  if (services.signalling.portEnabled) vcis = {saalVci, ilmiVci};
  const auto addPeers = [&vcis](std::span<const Peer> peers) {
    for (const Peer& peer : peers)
      for (const std::uint16_t vci : peer.vcis)
        if (vci != 0) vcis.push_back(vci);
  };
  for (int unit = 0; unit < unitSlots; ++unit) {
    const auto place = static_cast<std::size_t>(unit);
    for (const auto& pvc : services.clients[place].pvcs) vcis.push_back(pvc.vcIndex);
    addPeers(peersOfClient(unit));
    addPeers(peersOfServer(unit));
    if (!hasControlCircuits(unit)) continue;
    for (int which = 0; which < controlCircuits; ++which) vcis.push_back(controlVci(unit, which));
  }
  addPeers(peersOfIp());
  for (const ip_pvc& pvc : services.ip.pvcs) vcis.push_back(pvc.vcIndex);
  std::ranges::sort(vcis);
  vcis.erase(std::unique(vcis.begin(), vcis.end()), vcis.end());
  return vcis;
}

}  // namespace lisim
