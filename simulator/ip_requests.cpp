// The requests about the classical IP over ATM service (RFC 1577).
#include <cstring>

#include "simulator/circuit_rules.h"
#include "simulator/request.h"

namespace lisim {

namespace {

constexpr std::uint16_t connectionActive = 2;

IpService& ipOf(Request& request) {
  return request.board().services.ip;
}

// One that runs is started anew.
Answer enable(Request& request) {
  const auto record = request.input<ip1577ReqStruct>();
  if (!isOneOf(record.config, 0, 1)) return Answer::badValue;
  ipOf(request) = {true, record, request.now, {}};
  return Answer::done;
}

Answer disable(Request& request) {
  ipOf(request) = {};
  return Answer::done;
}

Answer addPvc(Request& request) {
  return addCircuit(request, ipOf(request));
}

Answer deletePvc(Request& request) {
  return deleteCircuit(request, ipOf(request));
}

Answer state(Request& request) {
  const std::uint32_t real = request.services().ipState();
  request.reply(ip_state{ipOf(request).forcedState.value_or(real), {}});
  return Answer::done;
}

Answer statistics(Request& request) {
  request.reply(ipStatsOf(request.board(), request.now, request.simulator.adapters.seed));
  return Answer::done;
}

Answer pvcCount(Request& request) {
  request.head.NRow = static_cast<std::uint16_t>(ipOf(request).pvcs.size());
  return Answer::done;
}

// The client's connections: those that switching has made, then the permanent ones.

Answer connectionCount(Request& request) {
  const std::size_t rows = request.services().peersOfIp().size() + ipOf(request).pvcs.size();
  request.head.NRow = static_cast<std::uint16_t>(rows);
  return Answer::done;
}

ip_tbl activeRow(Request& request, std::uint16_t kind, std::uint16_t vci) {
  auto row = connectionRow<ip_tbl>(request, kind, vci);
  row.state = connectionActive;
  return row;
}

ip_tbl switchedRow(Request& request, const Peer& peer) {
  constexpr std::uint64_t localEsi = 0x020000000000;  // of which the IP address is the rest
  ip_tbl row = activeRow(request, switchedConnection, peer.vcis[0]);
  request.services().writePeerAddress(row.address, localEsi | peer.name);
  std::memcpy(row.ipAddress, row.address + networkPrefixBytes + esiBytes - sizeof row.ipAddress,
              sizeof row.ipAddress);
  return row;
}

Answer connectionRows(Request& request) {
  const ServiceView services = request.services();
  const auto peers = services.peersOfIp();
  const auto& pvcs = ipOf(request).pvcs;
  return deliverRows(request, peers.size() + pvcs.size(), [&](std::size_t i) {
    if (i < peers.size()) return switchedRow(request, peers[i]);
    const ip_pvc& pvc = pvcs[i - peers.size()];
    ip_tbl row = activeRow(request, permanentConnection, pvc.vcIndex);
    std::memcpy(row.ipAddress, pvc.ipAddress, sizeof row.ipAddress);
    return row;
  });
}

// The driver's own form of a circuit: the start of the record that added it.
Answer pvcRows(Request& request) {
  const auto& pvcs = ipOf(request).pvcs;
  return deliverRows(request, pvcs.size(), [&](std::size_t i) {
    ip_pvc_tbl row{};
    std::memcpy(row.bytes, &pvcs[i], sizeof row.bytes);
    return row;
  });
}

constexpr auto board = Target::board;

constexpr Operation operations[] = {
    controlOperation(Control::IpEnable, board, enable),
    controlOperation(Control::IpDisable, board, disable),
    controlOperation(Control::IpAddPvc, board, addPvc),
    controlOperation(Control::IpDeletePvc, board, deletePvc),
    queryOperation(Query::IpState, state),
    queryOperation(Query::IpStats, statistics),
    countOperation(Query::IpTable, connectionCount),
    tableOperation(Query::IpTable, connectionRows),
    countOperation(Query::IpPvcTable, pvcCount),
    tableOperation(Query::IpPvcTable, pvcRows),
};

}  // namespace

std::span<const Operation> ipOperations() {
  return operations;
}

}  // namespace lisim
