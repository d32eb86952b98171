// The requests about boards: what is there, their counters, circuits and line, and the control of
// the physical layer.
#include "simulator/request.h"

#include "driver/board_records.h"

namespace lisim {

namespace {

struct PackageRevision {
  char text[packageRevBytes];
};

Answer boardState(Request& request) {
  const Adapters& adapters = request.simulator.adapters;
  request.reply(board_state{adapters.number, adapters.mask(), {}});
  return Answer::done;
}

// The one query with input: the adapter's number from 1. The head's Link plays no part.
Answer boardMac(Request& request) {
  const int index = request.input<std::uint8_t>() - 1;
  if (index < 0 || index >= boardSlots) return Answer::badLink;
  const Board& board = request.simulator.adapters.board(index);
  if (board.presence == Presence::absent) return Answer::noBoard;
  if (board.presence == Presence::silent) return Answer::boardSilent;
  board_mac record{};
  std::ranges::copy(board.mac, record.address);
  request.reply(record);
  return Answer::done;
}

Answer aalStatistics(Request& request) {
  request.reply(aalStatsOf(request.board(), request.now, request.simulator.adapters.seed));
  return Answer::done;
}

Answer lineStatistics(Request& request) {
  request.reply(suniStatsOf(request.board()));
  return Answer::done;
}

Answer packageRevision(Request& request) {
  PackageRevision record{};
  const std::string& text = request.simulator.adapters.revision;
  std::copy_n(text.begin(), std::min(text.size(), std::size(record.text)), record.text);
  request.reply(record);
  return Answer::done;
}

Answer linkStatus(Request& request) {
  request.reply(request.simulator.adapters.status(request.head.Link));
  return Answer::done;
}

Answer vcRowCount(Request& request) {
  const auto vcis = vcisOf(request.board(), request.services());
  request.head.NRow = static_cast<std::uint16_t>(vcis.size());
  return Answer::done;
}

Answer vcRows(Request& request) {
  const Board& board = request.board();
  const auto vcis = vcisOf(board, request.services());
  return deliverRows(request, vcis.size(), [&](std::size_t row) {
    return vcRowOf(board, vcis[row], request.now, request.simulator.adapters.seed);
  });
}

Answer maximumVcs(Request& request) {
  request.reply(request.board().maxVc);
  return Answer::done;
}

Answer setFraming(Request& request) {
  const auto framing = request.input<std::uint32_t>();
  if (framing > 1) return Answer::badValue;
  request.board().framing = framing;
  return Answer::done;
}

Answer setVpi(Request& request) {
  const auto vpi = request.input<std::uint32_t>();
  if (vpi > 255) return Answer::badValue;
  request.board().vpi = vpi;
  return Answer::done;
}

Answer setRedundantLink(Request& request) {
  const auto words = request.input<rls_req>();
  const PairSetting setting{words.primary != 0 ? Role::primary : Role::backup,
                            std::max(words.backup, std::int32_t{noBoard}), words.autoSwitch != 0};
  return request.simulator.adapters.configure(request.head.Link, setting);
}

Answer switchLink(Request& request) {
  return request.simulator.adapters.switchLink(request.head.Link);
}

constexpr Operation driverOperation(Query query, std::uint16_t inputBytes,
                                    Answer (*serve)(Request&)) {
  Operation operation = queryOperation(query, serve);
  operation.target = Target::driver;
  operation.inputBytes = inputBytes;
  return operation;
}

constexpr Operation operations[] = {
    driverOperation(Query::BoardState, 0, boardState),
    driverOperation(Query::BoardMacAddress, 1, boardMac),
    queryOperation(Query::AalStats, aalStatistics),
    queryOperation(Query::SuniStats, lineStatistics),
    driverOperation(Query::PackageRev, 0, packageRevision),
    queryOperation(Query::RLSStatus, linkStatus),
    countOperation(Query::VcTable, vcRowCount),
    tableOperation(Query::VcTable, vcRows),
    queryOperation(Query::BoardMaxVC, maximumVcs),
    controlOperation(Control::PhySetFraming, Target::board, setFraming),
    controlOperation(Control::PhySetVpi, Target::board, setVpi),
    controlOperation(Control::PhySetRedundantLink, Target::board, setRedundantLink),
    controlOperation(Control::PhySwitchLink, Target::board, switchLink),
};

}  // namespace

std::span<const Operation> boardOperations() {
  return operations;
}

}  // namespace lisim
