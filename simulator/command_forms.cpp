// The table of commands and what each does.
#include <array>

#include "simulator/command.h"

namespace lisim {

std::string macText(const std::array<std::uint8_t, 6>& mac) {
  constexpr char digits[] = "0123456789ABCDEF";
  std::string text;
  for (const std::uint8_t byte : mac) {
    if (!text.empty()) text += ':';
    text += digits[byte >> 4];
    text += digits[byte & 15];
  }
  return text;
}

namespace {

int index(const Value& value) {
  return static_cast<int>(value.number);
}

std::uint32_t word(const Value& value) {
  return static_cast<std::uint32_t>(value.number);
}

// The first argument of every command about one board.
Board& boardOf(Simulator& simulator, const Values& values) {
  return simulator.adapters.board(index(values[0]));
}

template <Presence presence>
Reply setPresence(Simulator& simulator, const Values& values, Milliseconds) {
  boardOf(simulator, values).presence = presence;
  std::uint16_t& number = simulator.adapters.number;
  const auto atLeast = static_cast<std::uint16_t>(values[0].number + 1);
  if (presence != Presence::absent) number = std::max(number, atLeast);
  return {};
}

Reply setMac(Simulator& simulator, const Values& values, Milliseconds) {
  auto bits = static_cast<std::uint64_t>(values[1].number);
  auto& mac = boardOf(simulator, values).mac;
  for (auto byte = mac.rbegin(); byte != mac.rend(); ++byte, bits >>= 8)
    *byte = static_cast<std::uint8_t>(bits);
  return {};
}

template <auto member>
Reply setMember(Simulator& simulator, const Values& values, Milliseconds) {
  auto& target = boardOf(simulator, values).*member;
  target = static_cast<std::remove_reference_t<decltype(target)>>(values[1].number);
  return {};
}

Reply setAlarm(Simulator& simulator, const Values& values, Milliseconds) {
  boardOf(simulator, values).alarms[static_cast<std::size_t>(values[1].number)] =
      values[2].number != 0;
  return {};
}

Reply setRate(Simulator& simulator, const Values& values, Milliseconds now) {
  Board& board = boardOf(simulator, values);
  const auto name = static_cast<CounterName>(values[1].number);
  board.counters[name].setRate(word(values[2]), board.clockOf(name).at(now),
                               simulator.adapters.seed);
  return {};
}

Reply setCounter(Simulator& simulator, const Values& values, Milliseconds now) {
  Board& board = boardOf(simulator, values);
  const auto name = static_cast<CounterName>(values[1].number);
  board.counters[name].setValue(word(values[2]), board.clockOf(name).at(now));
  return {};
}

Reply forceStatus(Simulator& simulator, const Values& values, Milliseconds) {
  boardOf(simulator, values).forcedStatus = rls_status{static_cast<std::uint16_t>(values[1].number),
                                                       static_cast<std::int16_t>(values[2].number)};
  return {};
}

Reply freeStatus(Simulator& simulator, const Values& values, Milliseconds) {
  boardOf(simulator, values).forcedStatus.reset();
  return {};
}

Reply populate(Simulator& simulator, const Values& values, Milliseconds) {
  simulator.adapters.populate(index(values[0]));
  return {};
}

Reply setNumber(Simulator& simulator, const Values& values, Milliseconds) {
  simulator.adapters.number = static_cast<std::uint16_t>(values[0].number);
  return {};
}

Reply outcome(Answer answer) {
  if (answer == Answer::done) return {};
  return {"", wordsOf(static_cast<std::uint16_t>(answer))};
}

template <bool autoSwitch>
Reply pair(Simulator& simulator, const Values& values, Milliseconds) {
  return outcome(simulator.adapters.configure(index(values[0]),
                                              {Role::primary, index(values[1]), autoSwitch}));
}

Reply unpair(Simulator& simulator, const Values& values, Milliseconds) {
  return outcome(simulator.adapters.configure(index(values[0]), {Role::primary, noBoard, false}));
}

Reply makeBackup(Simulator& simulator, const Values& values, Milliseconds) {
  return outcome(simulator.adapters.configure(index(values[0]), {Role::backup, noBoard, false}));
}

Reply switchLink(Simulator& simulator, const Values& values, Milliseconds) {
  return outcome(simulator.adapters.switchLink(index(values[0])));
}

template <auto member>
Reply setDelay(Simulator& simulator, const Values& values, Milliseconds) {
  simulator.adapters.*member = static_cast<Milliseconds>(values[0].number);
  return {};
}

Reply setSignalling(Simulator& simulator, const Values& values, Milliseconds now) {
  boardOf(simulator, values).services.signalling.enablePort(values[1].number != 0, now);
  return {};
}

// A client that the configuration server has learnt of by itself.
Reply addMapping(Simulator& simulator, const Values& values, Milliseconds) {
  ConfigServer& server = boardOf(simulator, values).services.configServer;
  if (!server.enabled) return outcome(Answer::notRunning);
  if (server.clients.size() >= mostMappings) return outcome(Answer::tableFull);
  lecs_tbl row{{}, static_cast<std::uint8_t>(values[1].number), Mapping::learnt};
  auto bits = static_cast<std::uint64_t>(values[2].number) << 8 |
              static_cast<std::uint64_t>(values[3].number);
  for (std::size_t i = std::size(row.esiSelector); i-- > 0; bits >>= 8)
    row.esiSelector[i] = static_cast<std::uint8_t>(bits);
  server.clients.push_back(row);
  return {};
}

Reply setRevision(Simulator& simulator, const Values& values, Milliseconds) {
  simulator.adapters.revision = values[0].text;
  return {};
}

Reply setSeed(Simulator& simulator, const Values& values, Milliseconds) {
  simulator.adapters.seed = word(values[0]);
  return {};
}

template <class Number>
std::optional<Number> ifGiven(const Value& value) {
  return value.given ? std::optional(static_cast<Number>(value.number)) : std::nullopt;
}

// Arguments: primitive, type, board, page, after, the kind's own if it has one, times.
template <FaultKind kind>
Reply addFault(Simulator& simulator, const Values& values, Milliseconds) {
  Fault fault;
  fault.primitive = ifGiven<std::uint16_t>(values[0]);
  fault.type = ifGiven<std::uint16_t>(values[1]);
  fault.link = ifGiven<std::uint8_t>(values[2]);
  fault.page = ifGiven<std::uint32_t>(values[3]);
  fault.after = values[4].given ? word(values[4]) : 0;
  fault.times = ifGiven<std::uint32_t>(values.back());
  fault.kind = kind;
  if (values.size() > 6) fault.value = word(values[5]);
  simulator.faults.add(fault);
  return {};
}

Reply clearFaults(Simulator& simulator, const Values&, Milliseconds) {
  simulator.faults.clear();
  return {};
}

std::string boardNumber(int board) {
  return board < 0 ? "none" : std::to_string(board + 1);
}

std::string alarmsText(const Board& board) {
  std::string text;
  for (std::size_t kind = 0; kind < alarmKinds; ++kind)
    if (board.alarms[kind]) text += (text.empty() ? "" : ",") + std::string(alarmNames[kind]);
  return text.empty() ? "none" : text;
}

std::string roleText(const Board& board) {
  if (board.role == Role::backup) return "backup";
  if (board.backup == noBoard) return "primary";
  return "primary with backup " + boardNumber(board.backup) +
         (board.autoSwitch ? " auto" : " manual");
}

std::string boardText(const Adapters& adapters, int number) {
  const Board& board = adapters.board(number);
  const std::string start = "board " + boardNumber(number);
  if (board.presence == Presence::absent) return start + " absent\n";
  const rls_status status = adapters.status(number);
  return start + (board.presence == Presence::silent ? " silent" : " present") + " mac " +
         macText(board.mac) + " state " + std::to_string(status.linkState) + " active " +
         boardNumber(status.activeLink) + " " + roleText(board) + " link " +
         (board.linkUp ? "up" : "down") + " medium " + mediumName(board.medium) + " framing " +
         (board.framing ? "sdh" : "sonet") + " vpi " + std::to_string(board.vpi) + " alarms " +
         alarmsText(board) + " maxvc " + std::to_string(board.maxVc) + " vcs " +
         std::to_string(board.vcRows) + "\n";
}

std::string serviceText(const char* name, int unit, std::uint32_t state, std::size_t circuits) {
  if (state == serviceOff) return "";
  std::string text = "  " + std::string(name);
  if (unit >= 0) text += " " + std::to_string(unit);
  return text + " state " + std::to_string(state) + " entries " + std::to_string(circuits) + "\n";
}

// A line for each service that runs, or is said to.
std::string servicesText(const Board& board, const ServiceView& view) {
  const Services& services = board.services;
  std::string text;
  if (services.signalling.portEnabled)
    text += view.signallingUp() ? "  signalling up\n" : "  signalling coming up\n";
  for (int unit = 0; unit < unitSlots; ++unit) {
    const LanClient& client = services.clients[static_cast<std::size_t>(unit)];
    text += serviceText("lec", unit, client.forcedState.value_or(view.clientState(unit)),
                        view.peersOfClient(unit).size() + client.pvcs.size());
  }
  for (int unit = 0; unit < unitSlots; ++unit) {
    const LanServer& server = services.servers[static_cast<std::size_t>(unit)];
    text += serviceText("les", unit, server.forcedState.value_or(view.serverState(unit)),
                        view.joinedClients(unit).size());
  }
  const ConfigServer& config = services.configServer;
  text += serviceText("lecs", -1, config.forcedState.value_or(view.configServerState()),
                      config.clients.size());
  return text + serviceText("ip", -1, services.ip.forcedState.value_or(view.ipState()),
                            view.peersOfIp().size() + services.ip.pvcs.size());
}

Reply show(Simulator& simulator, const Values&, Milliseconds now) {
  const Adapters& adapters = simulator.adapters;
  std::string text = "number " + std::to_string(adapters.number) + " mask " +
                     std::to_string(adapters.mask()) + " debug " +
                     std::to_string(simulator.debugTrace) + " revision " + adapters.revision + "\n";
  for (int number = 0; number < boardSlots; ++number) {
    const Board& board = adapters.board(number);
    text += boardText(adapters, number);
    text += servicesText(board, serviceView(board, now, adapters.joinStep));
  }
  return {text + simulator.faults.describe(), ""};
}

Reply quit(Simulator& simulator, const Values&, Milliseconds) {
  simulator.quit = true;
  return {};
}

constexpr CommandForm forms[] = {
    {"boards {slots}", populate},
    {"number {short}", setNumber},
    {"board {board} present", setPresence<Presence::present>},
    {"board {board} absent", setPresence<Presence::absent>},
    {"board {board} silent", setPresence<Presence::silent>},
    {"board {board} mac {mac}", setMac},
    {"board {board} maxvc {word}", setMember<&Board::maxVc>},
    {"board {board} medium {medium}", setMember<&Board::medium>},
    {"board {board} framing {framing}", setMember<&Board::framing>},
    {"board {board} vpi {byte}", setMember<&Board::vpi>},
    {"board {board} link {up/down}", setMember<&Board::linkUp>},
    {"board {board} interface {on/off}", setMember<&Board::lineAnswers>},
    {"board {board} alarm {alarm} {on/off}", setAlarm},
    {"board {board} vcs {rows}", setMember<&Board::vcRows>},
    {"board {board} rate {counter} {word}", setRate},
    {"board {board} counter {counter} {word}", setCounter},
    {"board {board} state auto", freeStatus},
    {"board {board} state {short} {active}", forceStatus},
    {"board {board} signalling {up/down}", setSignalling},
    {"board {board} mapping {server} {mac} {byte}", addMapping},
    {"board {board} backup", makeBackup},
    {"pair {board} {board}", pair<false>},
    {"pair {board} {board} manual", pair<false>},
    {"pair {board} {board} auto", pair<true>},
    {"unpair {board}", unpair},
    {"switch {board}", switchLink},
    {"return-delay {time}", setDelay<&Adapters::returnDelay>},
    {"join-delay {time}", setDelay<&Adapters::joinStep>},
    {"revision {text}", setRevision},
    {"seed {word}", setSeed},
    {"fault clear", clearFaults},
    {"fault {pattern} {pattern} [board {board}] [page {count}] [after {word}] code {short} [times "
     "{count}]",
     addFault<FaultKind::code>},
    {"fault {pattern} {pattern} [board {board}] [page {count}] [after {word}] errno {errno} "
     "[times {count}]",
     addFault<FaultKind::error>},
    {"fault {pattern} {pattern} [board {board}] [page {count}] [after {word}] untouched [times "
     "{count}]",
     addFault<FaultKind::untouched>},
    {"fault {pattern} {pattern} [board {board}] [page {count}] [after {word}] delay {time} [times "
     "{count}]",
     addFault<FaultKind::delay>},
    {"fault {pattern} {pattern} [board {board}] [page {count}] [after {word}] silence [times "
     "{count}]",
     addFault<FaultKind::silence>},
    {"fault {pattern} {pattern} [board {board}] [page {count}] [after {word}] rows {short} [times "
     "{count}]",
     addFault<FaultKind::rows>},
    {"fault {pattern} {pattern} [board {board}] [page {count}] [after {word}] hangup [times "
     "{count}]",
     addFault<FaultKind::hangup>},
    {"show", show},
    {"quit", quit},
};

}  // namespace

std::span<const CommandForm> commandForms() {
  return forms;
}

}  // namespace lisim
