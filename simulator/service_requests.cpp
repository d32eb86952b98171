// The services of an adapter that none has been started on: their states and counts are zero and
// their tables empty. And the driver's own debug trace.
#include "simulator/request.h"

#include "driver/control_types.h"
#include "driver/query_types.h"

namespace lisim {

namespace {

// Payloads of signalling frames start with a head of their own.
constexpr std::uint16_t sigHead = signallingDataOffset - plainDataOffset;
constexpr std::uint16_t sigRecordBytes = signallingFrameBytes - signallingDataOffset;

template <std::uint16_t replyBytes>
Answer idleRecord(Request& request) {
  request.reply(std::array<std::uint8_t, replyBytes>{});
  return Answer::done;
}

Answer noRows(Request& request) {
  request.head.NRow = 0;
  return Answer::done;
}

// The three layers stand behind two bytes of the record, ILMI, QSAAL and signalling.
Answer idleSignalling(Request& request) {
  constexpr std::uint8_t notConfigured = 255;
  std::array<std::uint8_t, sigRecordBytes> record{};
  std::fill_n(record.begin() + 2, 3, notConfigured);
  request.reply(record, sigHead);
  return Answer::done;
}

// Three bytes behind the signalling head: 0, which traces, and whether they are on.
Answer debugTrace(Request& request) {
  struct Setting {
    std::uint8_t head[sigHead];
    std::uint8_t zero;
    std::uint8_t selector;
    std::uint8_t on;
  };
  const auto setting = request.input<Setting>();
  constexpr std::uint8_t selectors = 1 | 2 | 4;
  if ((setting.selector & ~selectors) != 0) return Answer::badValue;
  std::uint32_t& traces = request.simulator.debugTrace;
  traces = setting.on ? traces | setting.selector
                      : traces & ~static_cast<std::uint32_t>(setting.selector);
  return Answer::done;
}

template <std::uint16_t bytes>
constexpr Operation idle(std::uint16_t primitive, std::uint16_t type) {
  return {primitive, type, Target::board, OperationKind::plain, 0, bytes, idleRecord<bytes>};
}

constexpr Operation emptyCount(std::uint16_t primitive, std::uint16_t type) {
  return {primitive, type, Target::board, OperationKind::rowCount, 0, 0, noRows};
}

constexpr Operation emptyTable(std::uint16_t primitive, std::uint16_t type) {
  return {primitive, type, Target::board, OperationKind::table, 0, 0, noRows};
}

constexpr Operation operations[] = {
    idle<16>(primLecQuery, serviceState),
    idle<940>(primLecQuery, serviceStats),
    emptyCount(primLecQuery, serviceNRows),
    emptyTable(primLecQuery, serviceTable),
    idle<12>(primLesQuery, serviceState),
    idle<116>(primLesQuery, serviceStats),
    emptyCount(primLesQuery, serviceNRows),
    emptyTable(primLesQuery, serviceTable),
    idle<8>(primLecsQuery, serviceState),
    idle<48>(primLecsQuery, serviceStats),
    emptyCount(primLecsQuery, serviceNRows),
    emptyTable(primLecsQuery, serviceTable),
    idle<16>(primIpQuery, serviceState),
    idle<160>(primIpQuery, serviceStats),
    emptyCount(primIpQuery, serviceNRows),
    emptyTable(primIpQuery, serviceTable),
    emptyCount(primIpQuery, ipPvcNRows),
    emptyTable(primIpQuery, ipPvcTable),
    {primSigQuery, sigLinkState, Target::board, OperationKind::plain, 0, sigHead + sigRecordBytes,
     idleSignalling},
    {primSigControl, sigDebugTrace, Target::driver, OperationKind::plain, sigHead + 3, 0,
     debugTrace},
};

}  // namespace

std::span<const Operation> serviceOperations() {
  return operations;
}

}  // namespace lisim
