#include "driver/queries.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <ostream>
#include <vector>

#include "foundation/odlog.h"

static_assert(sizeof(sig_link_state) == signallingFrameBytes - signallingDataOffset);

namespace {

// A table answer of this many bytes or more is read in pages, if the table has them.
constexpr std::uint16_t longAnswerBytes = 1008;

// Sizes of this layer are 16 bits wide and wrap.
unsigned short bytesOf(const QueryForm& form, unsigned short rows) {
  return static_cast<unsigned short>(rows * form.replyBytes);
}

// The rows in a payload of `payloadBytes` that the driver says holds `delivered`.
unsigned short rowsHeld(const QueryForm& form, std::size_t payloadBytes, unsigned short delivered) {
  return static_cast<unsigned short>(
      std::min<std::size_t>(delivered, payloadBytes / form.replyBytes));
}

}  // namespace

QueryHandler::QueryHandler(int descriptor, Primitive prim, unsigned short firstType,
                           unsigned short link, unsigned short unit)
    : InfoMsgHandler(descriptor, prim, firstType, link, unit, plainDataOffset, plainDataOffset, 1,
                     0, respUntouched) {}

void QueryHandler::prepareQuery(const QueryForm& form, unsigned short replyBytes) {
  header().Type = form.type;
  prepareMsg(replyBytes);
}

const std::uint8_t* QueryHandler::send(const char* logLine) {
  odlog << logLine << std::endl;
  return daiRequest() == 0 ? data() : nullptr;
}

const std::uint8_t* QueryHandler::ask(Query query) {
  const QueryForm& form = formOf(query);
  prepareQuery(form, form.replyBytes);
  return send(form.logLine);
}

const std::uint8_t* QueryHandler::readTable(Query query) {
  const QueryForm& form = formOf(query);
  const unsigned short rows = header().NRow;
  const unsigned short bytes = bytesOf(form, rows);
  const bool isShort = form.pageRows == 0 || bytes < longAnswerBytes;
  return isShort ? readInOneFrame(form, bytes) : readInPages(form, rows);
}

const std::uint8_t* QueryHandler::readEntireTable(Query query) {
  header().RowM = 1;
  const int rows = GetNumRows(formOf(query).countType);
  return (rows & 0xFFFF) == 0 ? nullptr : readTable(query);
}

const std::uint8_t* QueryHandler::readInOneFrame(const QueryForm& form, unsigned short replyBytes) {
  prepareQuery(form, replyBytes);
  const std::size_t room = payloadRoom();
  const std::uint8_t* rows = send(form.logLine);
  if (rows != nullptr) header().NRow = rowsHeld(form, room, header().NRow);
  return rows;
}

// The driver keeps its read position in the frame it returns, so between pages the head goes back
// as it came. A page that fails is left out; only the last one decides the result.
const std::uint8_t* QueryHandler::readInPages(const QueryForm& form, unsigned short rows) {
  std::vector<std::uint8_t> work;
  work.reserve(std::size_t{rows} * form.replyBytes);
  header().NRow = form.pageRows;
  prepareQuery(form, bytesOf(form, form.pageRows));

  unsigned short copied = 0;
  for (auto remaining = static_cast<short>(rows); remaining > 0;
       remaining = static_cast<short>(remaining - form.pageRows)) {
    odlog << "Incr " << form.logLine << std::endl;
    if (daiRequest() != 0) continue;
    const auto taken = static_cast<unsigned short>(
        std::min({header().NRow, form.pageRows, static_cast<unsigned short>(rows - copied)}));
    work.insert(work.end(), data(), data() + bytesOf(form, taken));
    copied = static_cast<unsigned short>(copied + taken);
  }
  if (header().Resp != 0) return nullptr;

  prepareMsg(bytesOf(form, copied));
  const std::size_t room = payloadRoom();
  std::copy_n(work.begin(), std::min(work.size(), room), data());
  header().NRow = rowsHeld(form, room, copied);
  return data();
}

aalInfo::aalInfo(int descriptor, unsigned short link, unsigned short unit)
    : QueryHandler(descriptor, primAalQuery, aalBoardState, link, unit) {}

const board_state* aalInfo::GetBoardState(unsigned char link, unsigned char unit) {
  setTarget(link, unit);
  return GetBoardState();
}

const aal_stats* aalInfo::GetAalStats(unsigned char link, unsigned char unit) {
  setTarget(link, unit);
  return GetAalStats();
}

const suni_stats* aalInfo::GetSuniStats(unsigned char link, unsigned char unit) {
  setTarget(link, unit);
  return GetSuniStats();
}

// The one query with input: the board's number, in the first byte of the answer's room.
const board_mac* aalInfo::GetBoardMacAddress(unsigned short board) {
  const QueryForm& form = formOf(Query::BoardMacAddress);
  prepareQuery(form, form.replyBytes);
  std::memset(data(), 0, form.replyBytes);  // the rest of the input is not an earlier answer's
  data()[0] = static_cast<std::uint8_t>(board);
  header().SzIO = static_cast<std::uint16_t>(dataOffset() + form.replyBytes);
  return reinterpret_cast<const board_mac*>(send(form.logLine));
}

const rls_status* aalInfo::GetRLSStatus(unsigned char link) {
  setTarget(link, 0);
  return askFor<rls_status>(Query::RLSStatus);
}

vccInfo::vccInfo(int descriptor, unsigned short link, unsigned short unit)
    : TableInfo(descriptor, primVccQuery, 2, link, unit) {}

std::uint32_t vccInfo::GetBoardMaxVC() {
  std::uint32_t circuits = 0;
  if (const std::uint8_t* answer = ask(Query::BoardMaxVC))
    std::memcpy(&circuits, answer, sizeof circuits);
  return circuits;
}

std::uint32_t vccInfo::GetBoardMaxVC(unsigned char link, unsigned char unit) {
  setTarget(link, unit);
  return GetBoardMaxVC();
}

const vc_tbl* vccInfo::GetVciEntry(unsigned short vci) const {
  const auto* rows = reinterpret_cast<const vc_tbl*>(data());
  const auto* end =
      rows + rowsHeld(formOf(Query::VcTable), capacity() - dataOffset(), header().NRow);
  const auto* entry = std::find_if(
      rows, end, [vci](const vc_tbl& row) { return static_cast<unsigned short>(row.vci) == vci; });
  return entry == end ? nullptr : entry;
}

unsigned short ip1577Info::GetPvcNRows() {
  return static_cast<unsigned short>(GetNumRows(ipPvcNRows));
}

unsigned short ip1577Info::GetPvcNRows(unsigned char link, unsigned char unit) {
  setTarget(link, unit);
  return GetPvcNRows();
}

const ip_pvc_tbl* ip1577Info::GetPvcTable() {
  return reinterpret_cast<const ip_pvc_tbl*>(readTable(Query::IpPvcTable));
}

const ip_pvc_tbl* ip1577Info::GetPvcTable(unsigned short rowM, unsigned short nRows) {
  setRows(rowM, nRows);
  return GetPvcTable();
}

const ip_pvc_tbl* ip1577Info::GetPvcTable(unsigned char link, unsigned char unit,
                                          unsigned short rowM, unsigned short nRows) {
  setTarget(link, unit);
  return GetPvcTable(rowM, nRows);
}

const ip_pvc_tbl* ip1577Info::GetEntirePvcTable() {
  return reinterpret_cast<const ip_pvc_tbl*>(readEntireTable(Query::IpPvcTable));
}

const ip_pvc_tbl* ip1577Info::GetEntirePvcTable(unsigned char link, unsigned char unit) {
  setTarget(link, unit);
  return GetEntirePvcTable();
}

sigInfo::sigInfo(int descriptor, unsigned short link, unsigned short unit)
    : QueryHandler(descriptor, primSigQuery, sigLinkState, link, unit, signallingFrameBytes,
                   signallingDataOffset, 1, 0, respUntouched) {
  setDataOffset(signallingDataOffset);
}

const sig_link_state* sigInfo::GetLinkState(unsigned char link, unsigned char unit) {
  setTarget(link, unit);
  return GetLinkState();
}

void sigInfo::prepareMsg(unsigned short replyBytes) {
  header().Size =
      std::min<unsigned short>(static_cast<unsigned short>(replyBytes + dataOffset()), capacity());
  header().SzIO = dataOffset();
  setDataOffset(dataOffset());
}
