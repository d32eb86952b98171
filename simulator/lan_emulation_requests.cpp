// The requests about LAN Emulation clients, servers and the configuration server.
#include <algorithm>
#include <cstring>

#include "simulator/circuit_rules.h"
#include "simulator/request.h"

namespace lisim {

namespace {

LanClient& clientOf(Request& request) {
  return request.board().services.clients[request.head.Unit];
}

LanServer& serverOf(Request& request) {
  return request.board().services.servers[request.head.Unit];
}

ConfigServer& configServerOf(Request& request) {
  return request.board().services.configServer;
}

// Clients. One that runs is started anew.

Answer enableClient(Request& request) {
  const auto record = request.input<lecReqStruct>();
  if (!isOneOf(record.mfs, smallestFrame, largestFrame) || !isOneOf(record.elanType, 0, 1) ||
      !isOneOf(record.config, 0, 1) || !isOneOf(record.lecs, 0, 1))
    return Answer::badValue;
  clientOf(request) = {true, record, request.now, 0, {}};
  return Answer::done;
}

Answer disableClient(Request& request) {
  clientOf(request) = {};
  return Answer::done;
}

Answer addClientPvc(Request& request) {
  return addCircuit(request, clientOf(request));
}

Answer deleteClientPvc(Request& request) {
  return deleteCircuit(request, clientOf(request));
}

Answer setEnhanced(Request& request) {
  LanClient& client = clientOf(request);
  if (!client.enabled) return Answer::notRunning;
  client.enhanced = request.input<word_req>().value;
  return Answer::done;
}

Answer clientState(Request& request) {
  lec_state state{};
  const std::uint32_t real = request.services().clientState(request.head.Unit);
  state.state = clientOf(request).forcedState.value_or(real);
  state.ready = real != serviceOff && request.services().signallingUp();
  request.reply(state);
  return Answer::done;
}

Answer clientStatistics(Request& request) {
  request.reply(request.services().clientStats(request.head.Unit));
  return Answer::done;
}

// A client's connections: those that switching has made, then the permanent ones.

Answer clientRowCount(Request& request) {
  const std::size_t rows =
      request.services().peersOfClient(request.head.Unit).size() + clientOf(request).pvcs.size();
  request.head.NRow = static_cast<std::uint16_t>(rows);
  return Answer::done;
}

Answer clientRows(Request& request) {
  const ServiceView services = request.services();
  const auto peers = services.peersOfClient(request.head.Unit);
  const auto& pvcs = clientOf(request).pvcs;
  return deliverRows(request, peers.size() + pvcs.size(), [&](std::size_t i) {
    if (i >= peers.size()) {
      const bdgPvcReqStruct& pvc = pvcs[i - peers.size()];
      auto row = connectionRow<lec_tbl_t>(request, permanentConnection, pvc.vcIndex);
      std::memcpy(row.macAddress, pvc.macAddress, sizeof row.macAddress);
      return row;
    }
    auto row = connectionRow<lec_tbl_t>(request, switchedConnection, peers[i].vcis[0]);
    services.writePeerAddress(row.address, peers[i].name);
    std::memcpy(row.macAddress, row.address + networkPrefixBytes, sizeof row.macAddress);
    return row;
  });
}

// Servers. One that runs has to be stopped before it is started.

Answer enableServer(Request& request) {
  const auto record = request.input<lesReqStruct>();
  if (!isOneOf(record.mfs, smallestFrame, largestFrame) || !isOneOf(record.elanType, 1, 2))
    return Answer::badValue;
  if (serverOf(request).enabled) return Answer::alreadyRunning;
  serverOf(request) = {true, record};
  return Answer::done;
}

Answer disableServer(Request& request) {
  serverOf(request) = {};
  return Answer::done;
}

Answer serverState(Request& request) {
  les_state state{};
  const std::uint32_t real = request.services().serverState(request.head.Unit);
  state.state = serverOf(request).forcedState.value_or(real);
  state.serving = real != serviceOff && request.services().signallingUp();
  request.reply(state);
  return Answer::done;
}

Answer serverStatistics(Request& request) {
  request.reply(request.services().serverStats(request.head.Unit));
  return Answer::done;
}

Answer serverRowCount(Request& request) {
  const auto rows = request.services().joinedClients(request.head.Unit);
  request.head.NRow = static_cast<std::uint16_t>(rows.size());
  return Answer::done;
}

Answer serverRows(Request& request) {
  const auto rows = request.services().joinedClients(request.head.Unit);
  return deliverRows(request, rows.size(), [&](std::size_t i) {
    les_tbl row = rows[i];
    const vc_tbl control = request.vcRow(row.controlDirectVci);
    const vc_tbl multicast = request.vcRow(row.multicastSendVci);
    row.controlDirectTx = control.counterOut;
    row.controlDirectRx = control.counterIn;
    row.multicastSendTx = multicast.counterOut;
    row.multicastSendRx = multicast.counterIn;
    return row;
  });
}

// The configuration server. It is set up first and then set going.

Answer enableConfigServer(Request& request) {
  const auto record = request.input<lecs_req>();
  if (!isOneOf(record.elanType, 1, 2) || !isOneOf(record.etherMfs, smallestFrame, largestFrame) ||
      !isOneOf(record.tokenRingMfs, smallestFrame, largestFrame))
    return Answer::badValue;
  if (configServerOf(request).enabled) return Answer::alreadyRunning;
  configServerOf(request) = {true, false, record, {}};
  return Answer::done;
}

Answer disableConfigServer(Request& request) {
  configServerOf(request) = {};
  return Answer::done;
}

Answer startConfigServer(Request& request) {
  ConfigServer& server = configServerOf(request);
  if (!server.enabled) return Answer::notRunning;
  server.going = true;
  return Answer::done;
}

auto findClient(ConfigServer& server, const lecs_req& client) {
  return std::ranges::find_if(server.clients, [&](const lecs_tbl& known) {
    return std::ranges::equal(known.esiSelector, client.esiSelector);
  });
}

// Which server the client goes to is not in the request.
Answer addMapping(Request& request) {
  ConfigServer& server = configServerOf(request);
  if (!server.enabled) return Answer::notRunning;
  const auto client = request.input<lecs_req>();
  lecs_tbl row{};
  std::memcpy(row.esiSelector, client.esiSelector, sizeof row.esiSelector);
  row.kind = Mapping::configured;
  const auto known = findClient(server, client);
  if (known != server.clients.end()) {
    *known = row;
    return Answer::done;
  }
  if (server.clients.size() >= mostMappings) return Answer::tableFull;
  server.clients.push_back(row);
  return Answer::done;
}

Answer deleteMapping(Request& request) {
  ConfigServer& server = configServerOf(request);
  const auto known = findClient(server, request.input<lecs_req>());
  if (known == server.clients.end()) return Answer::noSuchEntry;
  server.clients.erase(known);
  return Answer::done;
}

Answer configServerState(Request& request) {
  const std::uint32_t real = request.services().configServerState();
  request.reply(lecs_state{configServerOf(request).forcedState.value_or(real), 0});
  return Answer::done;
}

Answer configServerStatistics(Request& request) {
  lecs_stats stats = request.services().configServerStats();
  countConfigServer(request.board(), request.now, request.simulator.adapters.seed, stats);
  request.reply(stats);
  return Answer::done;
}

Answer mappingCount(Request& request) {
  request.head.NRow = static_cast<std::uint16_t>(configServerOf(request).clients.size());
  return Answer::done;
}

Answer mappingRows(Request& request) {
  const auto& clients = configServerOf(request).clients;
  return deliverRows(request, clients.size(), [&](std::size_t i) { return clients[i]; });
}

constexpr auto board = Target::board;
constexpr auto single = Target::singleService;

constexpr Operation operations[] = {
    controlOperation(Control::LecEnable, board, enableClient),
    controlOperation(Control::LecDisable, board, disableClient),
    controlOperation(Control::LecAddPvc, board, addClientPvc),
    controlOperation(Control::LecDeletePvc, board, deleteClientPvc),
    controlOperation(Control::LecSetEnhanced, board, setEnhanced),
    queryOperation(Query::LecState, clientState),
    queryOperation(Query::LecStats, clientStatistics),
    countOperation(Query::LecTable, clientRowCount),
    tableOperation(Query::LecTable, clientRows),
    controlOperation(Control::LesEnable, board, enableServer),
    controlOperation(Control::LesDisable, board, disableServer),
    queryOperation(Query::LesState, serverState),
    queryOperation(Query::LesStats, serverStatistics),
    countOperation(Query::LesTable, serverRowCount),
    tableOperation(Query::LesTable, serverRows),
    controlOperation(Control::LecsEnable, single, enableConfigServer),
    controlOperation(Control::LecsDisable, single, disableConfigServer),
    controlOperation(Control::LecsAddClient, single, addMapping),
    controlOperation(Control::LecsDeleteClient, single, deleteMapping),
    controlOperation(Control::LecsGo, single, startConfigServer),
    queryOperation(Query::LecsState, configServerState),
    queryOperation(Query::LecsStats, configServerStatistics),
    countOperation(Query::LecsTable, mappingCount),
    tableOperation(Query::LecsTable, mappingRows),
};

}  // namespace

std::span<const Operation> lanEmulationOperations() {
  return operations;
}

}  // namespace lisim
