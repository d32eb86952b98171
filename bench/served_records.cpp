#include "bench/served_records.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <new>
#include <span>

#include "bench/driver_child.h"
#include "driver/query_table.h"
#include "platform/wire.h"

namespace {

constexpr std::uint16_t switchedConnection = 1;
constexpr std::uint16_t firstVci = 32;
constexpr std::uint16_t refusal = 7;

ServedRecords* served = nullptr;

template <std::size_t size>
void fillAddress(std::uint8_t (&address)[size], int number) {
  for (std::size_t i = 0; i < size; ++i) address[i] = static_cast<std::uint8_t>(i + 1);
  address[size - 1] = static_cast<std::uint8_t>(number);
  address[size - 2] = static_cast<std::uint8_t>(number >> 8);
}

// Numbers of six digits, as wide as those that they change to.
std::uint32_t startingCount(int number) {
  return static_cast<std::uint32_t>(100000 + 7 * number);
}

std::uint16_t vciOf(int number) {
  return static_cast<std::uint16_t>(firstVci + number);
}

void fillRow(vc_tbl& row, int number) {
  constexpr std::int16_t wellKnown[] = {16, 5, 33, 34, 35, 36};
  const bool isKnown = number < static_cast<int>(std::size(wellKnown));
  row.vci = isKnown ? wellKnown[number] : static_cast<std::int16_t>(vciOf(number + 100));
  row.counterOut = row.counterIn = startingCount(number);
}
void fillRow(lec_tbl_t& row, int number) {
  fillAddress(row.macAddress, number);
  fillAddress(row.address, number);
  row.connectionKind = switchedConnection;
  row.vci = vciOf(number);
  row.txPackets = row.rxPackets = startingCount(number);
}
void fillRow(les_tbl& row, int number) {
  fillAddress(row.macAddress, number);
  fillAddress(row.address, number);
  row.state = 3;
  row.controlDirectVci = row.multicastSendVci = vciOf(number);
  row.controlDirectTx = row.controlDirectRx = startingCount(number);
  row.multicastSendTx = row.multicastSendRx = startingCount(number);
}
void fillRow(ip_tbl& row, int number) {
  fillAddress(row.ipAddress, number);
  fillAddress(row.address, number);
  row.connectionKind = switchedConnection;
  row.vci = vciOf(number);
  row.txPackets = row.rxPackets = startingCount(number);
}

template <class Rows>
void fillRows(Rows& table) {
  for (int number = 0; number < Rows::mostRows; ++number) fillRow(table.rows[number], number);
}

// Answering.

using Bytes = std::span<const std::uint8_t>;

template <auto member>
Bytes recordBytes() {
  const auto& record = served->*member;
  return {reinterpret_cast<const std::uint8_t*>(&record), sizeof record};
}
template <auto member>
Bytes rowBytes() {
  const auto& table = served->*member;
  return {reinterpret_cast<const std::uint8_t*>(table.rows),
          static_cast<std::size_t>(table.count) * sizeof *table.rows};
}

constexpr struct {
  Query query;
  Bytes (*bytes)();
} answers[] = {
    {Query::LinkState, recordBytes<&ServedRecords::signalling>},
    {Query::AalStats, recordBytes<&ServedRecords::aal>},
    {Query::SuniStats, recordBytes<&ServedRecords::line>},
    {Query::VcTable, rowBytes<&ServedRecords::circuits>},
    {Query::LecState, recordBytes<&ServedRecords::lecState>},
    {Query::LecStats, recordBytes<&ServedRecords::lec>},
    {Query::LecTable, rowBytes<&ServedRecords::connections>},
    {Query::LesState, recordBytes<&ServedRecords::lesState>},
    {Query::LesStats, recordBytes<&ServedRecords::les>},
    {Query::LesTable, rowBytes<&ServedRecords::clients>},
    {Query::LecsState, recordBytes<&ServedRecords::lecsState>},
    {Query::LecsStats, recordBytes<&ServedRecords::lecs>},
    {Query::IpState, recordBytes<&ServedRecords::ipState>},
    {Query::IpStats, recordBytes<&ServedRecords::ip>},
    {Query::IpTable, rowBytes<&ServedRecords::ipConnections>},
};

void countOn() {
  for (auto counters : {lecCounters, lesCounters, ipCounters})
    for (std::uint32_t* counter : counters(*served)) ++*counter;
}

void answerRows(const QueryForm& form, Bytes bytes, req_param_t& head, std::uint8_t* payload) {
  const int first = head.RowM - 1;
  const int rows = static_cast<int>(bytes.size() / form.replyBytes);
  head.NRow = static_cast<std::uint16_t>(std::clamp<int>(rows - first, 0, head.NRow));
  const std::size_t rowSize = form.replyBytes;
  std::memcpy(payload, bytes.data() + static_cast<std::size_t>(first) * rowSize,
              head.NRow * rowSize);
  head.RowM = static_cast<std::uint16_t>(head.RowM + head.NRow);
}

void answerQuery(const QueryForm& form, Bytes bytes, req_param_t& head, std::uint8_t* payload) {
  head.Resp = 0;
  if (form.countType == 0) {
    if (form.prim == primSigQuery) payload += signallingDataOffset - plainDataOffset;
    std::memcpy(payload, bytes.data(), bytes.size());
  } else if (head.Type == form.countType) {
    if (served->isMoving) countOn();
    head.NRow = static_cast<std::uint16_t>(bytes.size() / form.replyBytes);
  } else {
    answerRows(form, bytes, head, payload);
  }
}

void note(const req_param_t& head) {
  const std::uint32_t place = served->asked++;
  if (place < std::size(served->frames)) served->frames[place] = head;
}

void answerFrame(req_param_t& head, std::uint8_t* payload) {
  note(head);
  head.Resp = refusal;
  for (const auto& [query, bytes] : answers) {
    const QueryForm& form = formOf(query);
    if (form.prim != head.Prim || (form.type != head.Type && form.countType != head.Type)) continue;
    answerQuery(form, bytes(), head, payload);
    return;
  }
}

}  // namespace

ServedRecords::ServedRecords() {
  signalling.ilmi = 2;
  signalling.saal = 9;
  signalling.signalling = 1;
  fillAddress(signalling.address, 1);
  line.medium = 2;
  line.answers = 1;
  lecState.state = 6;
  fillAddress(lec.address, 1);
  fillAddress(lec.macAddress, 1);
  lec.elanType = lec.mtuType = les.elanType = les.mtuType = 1;
  std::strcpy(lec.elanName, "elan0");
  lec.controlDirectVci = 33;
  lec.controlDistributeVci = 34;
  lec.multicastSendVci = 35;
  lec.multicastForwardVci = 36;
  lesState.state = lesState.serving = 1;
  fillAddress(les.address, 1);
  fillAddress(les.busAddress, 2);
  std::strcpy(les.elanName, "elan0");
  lecsState.state = 4;
  fillAddress(lecs.address, 1);
  lecs.elanType = lecs.etherMtuType = lecs.tokenRingMtuType = 1;
  lecs.registered = 1;
  ipState.state = 5;
  fillRows(circuits);
  fillRows(connections);
  fillRows(clients);
  fillRows(ipConnections);
  int number = 0;
  for (auto counters : {aalCounters, lecsCounters, ipCounters})
    for (std::uint32_t* counter : counters(*this)) *counter = startingCount(++number);
}

ServedRecords& serveRecords() {
  served = new (sharedMemory(sizeof *served)) ServedRecords;
  const int listener = listenOnNode();
  static const Child driver([&] { serveSessions(listener, answerFrame); });
  return *served;
}

// The counters.

namespace {

// Down the table, each time a column on from where the last row's was.
template <class Rows, class Row, std::size_t count>
void appendCounters(std::vector<std::uint32_t*>& counters, Rows& table, int rows,
                    std::uint32_t Row::*const (&columns)[count]) {
  for (std::size_t pass = 0; pass < count; ++pass) {
    for (int row = 0; row < rows; ++row) {
      const auto column = columns[(pass + static_cast<std::size_t>(row)) % count];
      counters.push_back(&(table.rows[row].*column));
    }
  }
}

}  // namespace

std::vector<std::uint32_t*> signallingCounters(ServedRecords& records) {
  std::vector<std::uint32_t*> counters;
  appendCounters(counters, records.circuits, 2, {&vc_tbl::counterIn, &vc_tbl::counterOut});
  return counters;
}

std::vector<std::uint32_t*> aalCounters(ServedRecords& records) {
  aal_stats& aal = records.aal;
  return {&aal.rxPackets,   &aal.rxCells,    &aal.txPackets,        &aal.txCells,
          &aal.rxDropped,   &aal.txDropped,  &aal.rxFrameErrors[0], &aal.rxCellErrors[0],
          &aal.invalidVpis, &aal.invalidVcis};
}

std::vector<std::uint32_t*> lecCounters(ServedRecords& records) {
  std::vector<std::uint32_t*> counters;
  appendCounters(counters, records.connections, records.connections.count,
                 {&lec_tbl_t::txPackets, &lec_tbl_t::rxPackets});
  return counters;
}

std::vector<std::uint32_t*> lesCounters(ServedRecords& records) {
  std::vector<std::uint32_t*> counters;
  appendCounters(counters, records.clients, records.clients.count,
                 {&les_tbl::controlDirectTx, &les_tbl::controlDirectRx, &les_tbl::multicastSendTx,
                  &les_tbl::multicastSendRx});
  return counters;
}

std::vector<std::uint32_t*> lecsCounters(ServedRecords& records) {
  lecs_stats& lecs = records.lecs;
  return {&lecs.validRequests, &lecs.invalidRequests, &lecs.rejectedRequests, &lecs.connectionsMade,
          &lecs.connectionsOpen};
}

std::vector<std::uint32_t*> ipCounters(ServedRecords& records) {
  std::vector<std::uint32_t*> counters;
  appendCounters(counters, records.ipConnections, records.ipConnections.count,
                 {&ip_tbl::txPackets, &ip_tbl::rxPackets});
  ip_stats& ip = records.ip;
  for (std::uint32_t* word : {ip.received, ip.transmitted, ip.rxDropped, ip.txDropped})
    counters.push_back(word);  // one of each sum that a field shows
  return counters;
}

void exchangeBare(int socket, const std::vector<req_param_t>& frames) {
  static std::uint8_t message[sizeof(WireHead) + wireMaxBody];
  for (const req_param_t& head : frames) {
    const WireHead wire{wireExchange, 1, liCommand, 0, head.Size};
    std::memcpy(message, &wire, sizeof wire);
    std::memcpy(message + sizeof wire, &head, sizeof head);
    if (!roundTrip(socket, message, sizeof wire + head.Size)) std::abort();
  }
}
