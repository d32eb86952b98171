// The requests about boards: what is there, their counters, circuits and line, and the control of
// the physical layer.
#include "simulator/request.h"

#include "driver/board_records.h"
#include "driver/control_types.h"
#include "driver/query_types.h"

namespace lisim {

namespace {

struct PackageRevision {
  char text[packageRevBytes];
};

// The words of a set-redundant-link request.
struct PairWords {
  std::int32_t primary;
  std::int32_t backup;
  std::int32_t autoSwitch;
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
  request.head.NRow = static_cast<std::uint16_t>(request.board().vcRows);
  return Answer::done;
}

Answer vcRows(Request& request) {
  const Board& board = request.board();
  return deliverRows(request, board.vcRows, [&](std::size_t row) {
    return vcRowOf(board, row, request.now, request.simulator.adapters.seed);
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
  const auto words = request.input<PairWords>();
  const PairSetting setting{words.primary != 0 ? Role::primary : Role::backup,
                            std::max(words.backup, std::int32_t{noBoard}), words.autoSwitch != 0};
  return request.simulator.adapters.configure(request.head.Link, setting);
}

Answer switchLink(Request& request) {
  return request.simulator.adapters.switchLink(request.head.Link);
}

constexpr auto driver = Target::driver;
constexpr auto board = Target::board;
constexpr auto plain = OperationKind::plain;

constexpr Operation operations[] = {
    {primAalQuery, aalBoardState, driver, plain, 0, sizeof(board_state), boardState},
    {primAalQuery, aalBoardMacAddress, driver, plain, 1, sizeof(board_mac), boardMac},
    {primAalQuery, aalStats, board, plain, 0, sizeof(aal_stats), aalStatistics},
    {primAalQuery, aalSuniStats, board, plain, 0, sizeof(suni_stats), lineStatistics},
    {primAalQuery, aalPackageRev, driver, plain, 0, packageRevBytes, packageRevision},
    {primAalQuery, aalRlsStatus, board, plain, 0, sizeof(rls_status), linkStatus},
    {primVccQuery, vccNRows, board, OperationKind::rowCount, 0, 0, vcRowCount},
    {primVccQuery, vccTable, board, OperationKind::table, 0, 0, vcRows},
    {primVccQuery, vccBoardMaxVC, board, plain, 0, boardMaxVcBytes, maximumVcs},
    {primPhyControl, phySetFraming, board, plain, 4, 0, setFraming},
    {primPhyControl, phySetVpi, board, plain, 4, 0, setVpi},
    {primPhyControl, phySetRedundantLink, board, plain, sizeof(PairWords), 0, setRedundantLink},
    {primPhyControl, phySwitchLink, board, plain, 0, 0, switchLink},
};

}  // namespace

std::span<const Operation> boardOperations() {
  return operations;
}

}  // namespace lisim
