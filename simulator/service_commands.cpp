// The commands about a board's services: what the applet would start, who connects to it, and
// states that are reported whatever is the case.
#include <algorithm>
#include <charconv>

#include "driver/frame.h"
#include "simulator/answer_code.h"
#include "simulator/command.h"
#include "simulator/peers.h"

namespace lisim {

namespace {

// A service in a command: where it is, how many circuits a peer of it has, what made-up peers are
// called from, and which argument comes behind the service's own.

std::size_t unitOf(const Values& values) {
  return static_cast<std::size_t>(values[1].number);
}

struct Client {
  static constexpr int circuits = 1;
  static constexpr std::uint64_t firstPeer = 0x024C50000001;
  static constexpr std::size_t next = 2;
  static LanClient& in(Services& services, const Values& values) {
    return services.clients[unitOf(values)];
  }
};

struct Server {
  static constexpr int circuits = 2;
  static constexpr std::uint64_t firstPeer = 0x024C51000001;
  static constexpr std::size_t next = 2;
  static LanServer& in(Services& services, const Values& values) {
    return services.servers[unitOf(values)];
  }
};

struct Config {
  static constexpr std::size_t next = 1;
  static ConfigServer& in(Services& services, const Values&) { return services.configServer; }
};

struct Ip {
  static constexpr int circuits = 1;
  static constexpr std::uint64_t firstPeer = 0x0A010001;  // 10.1.0.1
  static constexpr std::size_t next = 1;
  static IpService& in(Services& services, const Values&) { return services.ip; }
};

Board& boardOf(Simulator& simulator, const Values& values) {
  return simulator.adapters.board(static_cast<int>(values[0].number));
}

template <class Service>
auto& serviceOf(Simulator& simulator, const Values& values) {
  return Service::in(boardOf(simulator, values).services, values);
}

Reply outcome(bool done, Answer otherwise) {
  return {"", done ? "" : wordsOf(static_cast<std::uint16_t>(otherwise))};
}

Reply setPrefix(Simulator& simulator, const Values& values, Milliseconds) {
  const char* digits = values[1].text.c_str();
  for (std::uint8_t& byte : boardOf(simulator, values).services.signalling.cfg.NetPrefix) {
    std::from_chars(digits, digits + 2, byte, 16);
    digits += 2;
  }
  return {};
}

// Starting and stopping, with what most ELANs are like.

// Arguments: board, unit, ELAN type, frame size, ELAN name.
template <class Record>
void describeElan(Record& record, const Values& values, std::uint32_t ethernet) {
  const std::string name = values[4].given ? values[4].text : "elan1";
  name.copy(record.elanName, sizeof record.elanName);
  record.elanType = ethernet + static_cast<std::uint32_t>(values[2].number);
  record.mfs = values[3].given ? static_cast<std::uint32_t>(values[3].number) : 1;
}

Reply startClient(Simulator& simulator, const Values& values, Milliseconds now) {
  LanClient& client = serviceOf<Client>(simulator, values);
  client = LanClient{true, {}, now, 0, {}};
  client.record.lecs = 1;
  client.record.address[0] = 0x47;
  std::ranges::copy(boardOf(simulator, values).mac, client.record.address + networkPrefixBytes);
  describeElan(client.record, values, 0);
  return {};
}

Reply startServer(Simulator& simulator, const Values& values, Milliseconds) {
  LanServer& server = serviceOf<Server>(simulator, values);
  server = LanServer{true, {}};
  describeElan(server.record, values, 1);
  return {};
}

Reply startConfigServer(Simulator& simulator, const Values& values, Milliseconds) {
  ConfigServer& server = serviceOf<Config>(simulator, values);
  server = ConfigServer{true, true, {}, {}};
  server.record.elanType = 1;
  server.record.etherMfs = 1;
  server.record.tokenRingMfs = 2;
  return {};
}

Reply startIp(Simulator& simulator, const Values& values, Milliseconds now) {
  serviceOf<Ip>(simulator, values) = IpService{true, {}, now, {}};
  return {};
}

template <class Service>
Reply stop(Simulator& simulator, const Values& values, Milliseconds) {
  serviceOf<Service>(simulator, values) = {};
  return {};
}

// Peers.

std::uint64_t numberOf(const Value& value) {
  return static_cast<std::uint64_t>(value.number);
}

template <class Service>
Reply join(Simulator& simulator, const Values& values, Milliseconds) {
  auto& service = serviceOf<Service>(simulator, values);
  if (!service.enabled) return outcome(false, Answer::notRunning);
  const std::uint64_t name = numberOf(values[Service::next]);
  return outcome(connectPeer(boardOf(simulator, values), service.peers, name, Service::circuits),
                 Answer::tableFull);
}

template <class Service>
Reply leave(Simulator& simulator, const Values& values, Milliseconds) {
  auto& service = serviceOf<Service>(simulator, values);
  return outcome(disconnectPeer(service.peers, numberOf(values[Service::next])),
                 Answer::noSuchEntry);
}

template <class Service>
Reply setCount(Simulator& simulator, const Values& values, Milliseconds) {
  auto& service = serviceOf<Service>(simulator, values);
  if (!service.enabled) return outcome(false, Answer::notRunning);
  const auto count = static_cast<std::size_t>(values[Service::next].number);
  return outcome(setPeers(boardOf(simulator, values), service.peers, count, Service::firstPeer,
                          Service::circuits),
                 Answer::tableFull);
}

// States.

template <class Service>
Reply forceState(Simulator& simulator, const Values& values, Milliseconds) {
  serviceOf<Service>(simulator, values).forcedState =
      static_cast<std::uint32_t>(values[Service::next].number);
  return {};
}

template <class Service>
Reply freeState(Simulator& simulator, const Values& values, Milliseconds) {
  serviceOf<Service>(simulator, values).forcedState.reset();
  return {};
}

template <std::size_t layer>
Reply forceLayer(Simulator& simulator, const Values& values, Milliseconds) {
  boardOf(simulator, values).services.signalling.forcedLayers[layer] =
      static_cast<std::uint8_t>(values[1].number);
  return {};
}

template <std::size_t layer>
Reply freeLayer(Simulator& simulator, const Values& values, Milliseconds) {
  boardOf(simulator, values).services.signalling.forcedLayers[layer].reset();
  return {};
}

constexpr CommandForm forms[] = {
    {"board {board} prefix {prefix}", setPrefix},
    {"board {board} lec {unit} on [type {elan-type}] [mtu {frame-size}] [elan {text}]",
     startClient},
    {"board {board} lec {unit} off", stop<Client>},
    {"board {board} lec {unit} connect {mac}", join<Client>},
    {"board {board} lec {unit} disconnect {mac}", leave<Client>},
    {"board {board} lec {unit} connections {rows}", setCount<Client>},
    {"board {board} lec {unit} state auto", freeState<Client>},
    {"board {board} lec {unit} state {word}", forceState<Client>},
    {"board {board} les {unit} on [type {elan-type}] [mtu {frame-size}] [elan {text}]",
     startServer},
    {"board {board} les {unit} off", stop<Server>},
    {"board {board} les {unit} join {mac}", join<Server>},
    {"board {board} les {unit} leave {mac}", leave<Server>},
    {"board {board} les {unit} joined {rows}", setCount<Server>},
    {"board {board} les {unit} state auto", freeState<Server>},
    {"board {board} les {unit} state {word}", forceState<Server>},
    {"board {board} lecs on", startConfigServer},
    {"board {board} lecs off", stop<Config>},
    {"board {board} lecs state auto", freeState<Config>},
    {"board {board} lecs state {word}", forceState<Config>},
    {"board {board} ip on", startIp},
    {"board {board} ip off", stop<Ip>},
    {"board {board} ip connect {ip}", join<Ip>},
    {"board {board} ip disconnect {ip}", leave<Ip>},
    {"board {board} ip connections {rows}", setCount<Ip>},
    {"board {board} ip state auto", freeState<Ip>},
    {"board {board} ip state {word}", forceState<Ip>},
    {"board {board} ilmi auto", freeLayer<0>},
    {"board {board} ilmi {byte}", forceLayer<0>},
    {"board {board} saal auto", freeLayer<1>},
    {"board {board} saal {byte}", forceLayer<1>},
    {"board {board} sig auto", freeLayer<2>},
    {"board {board} sig {byte}", forceLayer<2>},
};

}  // namespace

std::span<const CommandForm> serviceCommandForms() {
  return forms;
}

}  // namespace lisim
