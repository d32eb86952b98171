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
  request.reply(ip_state{request.services().ipState(), {}});
  return Answer::done;
}

Answer statistics(Request& request) {
  request.reply(ip_stats{});
  return Answer::done;
}

Answer rowCount(Request& request) {
  request.head.NRow = static_cast<std::uint16_t>(ipOf(request).pvcs.size());
  return Answer::done;
}

Answer connectionRows(Request& request) {
  const auto& pvcs = ipOf(request).pvcs;
  return deliverRows(request, pvcs.size(), [&](std::size_t i) {
    const vc_tbl counts =
        vcRowOf(request.board(), pvcs[i].vcIndex, i, request.now, request.simulator.adapters.seed);
    ip_tbl row{};
    row.state = connectionActive;
    row.connectionKind = permanentConnection;
    row.vci = pvcs[i].vcIndex;
    row.txPackets = counts.counterOut;
    row.rxPackets = counts.counterIn;
    std::memcpy(row.ipAddress, pvcs[i].ipAddress, sizeof row.ipAddress);
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
    countOperation(Query::IpTable, rowCount),
    tableOperation(Query::IpTable, connectionRows),
    countOperation(Query::IpPvcTable, rowCount),
    tableOperation(Query::IpPvcTable, pvcRows),
};

}  // namespace

std::span<const Operation> ipOperations() {
  return operations;
}

}  // namespace lisim
