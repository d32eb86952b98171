// The fields of the queries' answers: name, place and reading. What is reserved is left out.
#pragma once

#include "driver/board_records.h"
#include "driver/query_table.h"
#include "driver/record_layout.h"
#include "driver/service_records.h"
#include "driver/value_words.h"

// clang-format off
inline constexpr RecordField boardStateFields[] = {
    RECORD_FIELD(board_state, numBoards, 0, "boards", FieldKind::number),
    RECORD_FIELD(board_state, boardMask, 2, "mask", FieldKind::number),
};
static_assert(isLaidOut<board_state>(boardStateFields, false));

inline constexpr RecordField boardMacFields[] = {
    RECORD_FIELD(board_mac, address, 0, "MAC", FieldKind::macAddress),
};

inline constexpr RecordField aalStatsFields[] = {
    RECORD_FIELD(aal_stats, txCells, 0, "tx cells", FieldKind::number),
    RECORD_FIELD(aal_stats, rxCells, 4, "rx cells", FieldKind::number),
    RECORD_FIELD(aal_stats, txPackets, 8, "tx packets", FieldKind::number),
    RECORD_FIELD(aal_stats, rxPackets, 12, "rx packets", FieldKind::number),
    RECORD_FIELD(aal_stats, rxCellErrors, 24, "rx cell errors", FieldKind::wordList),
    RECORD_FIELD(aal_stats, rxFrameErrors, 40, "rx frame errors", FieldKind::wordList),
    RECORD_FIELD(aal_stats, invalidVcis, 72, "invalid VCIs", FieldKind::number),
    RECORD_FIELD(aal_stats, invalidVpis, 76, "invalid VPIs", FieldKind::number),
    RECORD_FIELD(aal_stats, rxDropped, 80, "rx dropped", FieldKind::number),
    RECORD_FIELD(aal_stats, txDropped, 88, "tx dropped", FieldKind::number),
};
static_assert(isLaidOut<aal_stats>(aalStatsFields, false));

inline constexpr RecordField suniStatsFields[] = {
    RECORD_FIELD(suni_stats, medium, 0, "medium", FieldKind::words, words::media),
    RECORD_FIELD(suni_stats, answers, 4, "answers", FieldKind::number),
    RECORD_FIELD(suni_stats, linkUp, 8, "link up", FieldKind::number),
    RECORD_FIELD(suni_stats, oof, 12, "OOF", FieldKind::number),
    RECORD_FIELD(suni_stats, lof, 16, "LOF", FieldKind::number),
    RECORD_FIELD(suni_stats, los, 20, "LOS", FieldKind::number),
    RECORD_FIELD(suni_stats, ferf, 32, "FERF", FieldKind::number),
    RECORD_FIELD(suni_stats, ais, 36, "AIS", FieldKind::number),
    RECORD_FIELD(suni_stats, lop, 48, "LOP", FieldKind::number),
};
static_assert(isLaidOut<suni_stats>(suniStatsFields, false));

inline constexpr RecordField packageRevFields[] = {
    {"revision", 0, packageRevBytes, FieldKind::text},
};

inline constexpr RecordField rlsStatusFields[] = {
    RECORD_FIELD(rls_status, linkState, 0, "link state", FieldKind::words, words::linkStates),
    RECORD_FIELD(rls_status, activeLink, 2, "active link", FieldKind::signedNumber),
};
static_assert(isLaidOut<rls_status>(rlsStatusFields, true));

inline constexpr RecordField vcTableFields[] = {
    RECORD_FIELD(vc_tbl, vci, 0, "VCI", FieldKind::signedNumber),
    RECORD_FIELD(vc_tbl, counterOut, 12, "out", FieldKind::number),
    RECORD_FIELD(vc_tbl, counterIn, 16, "in", FieldKind::number),
};
static_assert(isLaidOut<vc_tbl>(vcTableFields, false));

inline constexpr RecordField boardMaxVcFields[] = {
    {"VCs", 0, boardMaxVcBytes, FieldKind::number},
};

inline constexpr RecordField lecStateFields[] = {
    RECORD_FIELD(lec_state, state, 0, "state", FieldKind::words, words::lecStates),
    RECORD_FIELD(lec_state, ready, 12, "ready", FieldKind::number),
};

inline constexpr RecordField lecStatsFields[] = {
    RECORD_FIELD(lec_stats, address, 0, "address", FieldKind::atmAddress),
    RECORD_FIELD(lec_stats, elanType, 20, "ELAN type", FieldKind::words, words::serverElanTypes),
    RECORD_FIELD(lec_stats, mtuType, 21, "MTU", FieldKind::words, words::frameSizes),
    RECORD_FIELD(lec_stats, elanName, 28, "ELAN", FieldKind::text),
    RECORD_FIELD(lec_stats, macAddress, 61, "MAC", FieldKind::macAddress),
    RECORD_FIELD(lec_stats, controlDirectAddress, 76, "control direct address", FieldKind::atmAddress),
    RECORD_FIELD(lec_stats, controlDistributeAddress, 800, "control distribute address", FieldKind::atmAddress),
    RECORD_FIELD(lec_stats, controlDirectVci, 820, "control direct VCI", FieldKind::number),
    RECORD_FIELD(lec_stats, controlDistributeVci, 822, "control distribute VCI", FieldKind::number),
    RECORD_FIELD(lec_stats, multicastSendAddress, 824, "multicast send address", FieldKind::atmAddress),
    RECORD_FIELD(lec_stats, multicastForwardAddress, 844, "multicast forward address", FieldKind::atmAddress),
    RECORD_FIELD(lec_stats, multicastSendVci, 864, "multicast send VCI", FieldKind::number),
    RECORD_FIELD(lec_stats, multicastForwardVci, 866, "multicast forward VCI", FieldKind::number),
};
static_assert(isLaidOut<lec_stats>(lecStatsFields, false));

inline constexpr RecordField lecTableFields[] = {
    RECORD_FIELD(lec_tbl_t, macAddress, 0, "MAC", FieldKind::macAddress),
    RECORD_FIELD(lec_tbl_t, connectionKind, 8, "kind", FieldKind::words, words::connections),
    RECORD_FIELD(lec_tbl_t, address, 15, "address", FieldKind::atmAddress),
    RECORD_FIELD(lec_tbl_t, vci, 38, "VCI", FieldKind::number),
    RECORD_FIELD(lec_tbl_t, txPackets, 48, "tx packets", FieldKind::number),
    RECORD_FIELD(lec_tbl_t, rxPackets, 52, "rx packets", FieldKind::number),
};
static_assert(isLaidOut<lec_tbl_t>(lecTableFields, false));

inline constexpr RecordField lesStateFields[] = {
    RECORD_FIELD(les_state, state, 0, "state", FieldKind::words, words::lesStates),
    RECORD_FIELD(les_state, serving, 8, "serving", FieldKind::number),
};

inline constexpr RecordField lesStatsFields[] = {
    RECORD_FIELD(les_stats, address, 0, "address", FieldKind::atmAddress),
    RECORD_FIELD(les_stats, elanType, 20, "ELAN type", FieldKind::words, words::serverElanTypes),
    RECORD_FIELD(les_stats, mtuType, 21, "MTU", FieldKind::words, words::frameSizes),
    RECORD_FIELD(les_stats, busAddress, 32, "BUS address", FieldKind::atmAddress),
    RECORD_FIELD(les_stats, elanName, 80, "ELAN", FieldKind::text),
};
static_assert(isLaidOut<les_stats>(lesStatsFields, false));

inline constexpr RecordField lesTableFields[] = {
    RECORD_FIELD(les_tbl, macAddress, 2, "MAC", FieldKind::macAddress),
    RECORD_FIELD(les_tbl, address, 8, "address", FieldKind::atmAddress),
    RECORD_FIELD(les_tbl, state, 36, "state", FieldKind::words, words::busStates),
    RECORD_FIELD(les_tbl, controlDirectVci, 40, "control direct VCI", FieldKind::number),
    RECORD_FIELD(les_tbl, controlDirectTx, 44, "control direct tx", FieldKind::number),
    RECORD_FIELD(les_tbl, controlDirectRx, 48, "control direct rx", FieldKind::number),
    RECORD_FIELD(les_tbl, multicastSendVci, 52, "multicast send VCI", FieldKind::number),
    RECORD_FIELD(les_tbl, multicastSendTx, 56, "multicast send tx", FieldKind::number),
    RECORD_FIELD(les_tbl, multicastSendRx, 60, "multicast send rx", FieldKind::number),
};
static_assert(isLaidOut<les_tbl>(lesTableFields, false));

inline constexpr RecordField lecsStateFields[] = {
    RECORD_FIELD(lecs_state, state, 0, "state", FieldKind::words, words::lecsStates),
};

inline constexpr RecordField lecsStatsFields[] = {
    RECORD_FIELD(lecs_stats, address, 0, "address", FieldKind::atmAddress),
    RECORD_FIELD(lecs_stats, elanType, 20, "ELAN type", FieldKind::words, words::serverElanTypes),
    RECORD_FIELD(lecs_stats, etherMtuType, 21, "Ethernet MTU", FieldKind::words, words::frameSizes),
    RECORD_FIELD(lecs_stats, tokenRingMtuType, 22, "Token Ring MTU", FieldKind::words, words::frameSizes),
    RECORD_FIELD(lecs_stats, registered, 24, "registered", FieldKind::number),
    RECORD_FIELD(lecs_stats, validRequests, 28, "valid requests", FieldKind::number),
    RECORD_FIELD(lecs_stats, invalidRequests, 32, "invalid requests", FieldKind::number),
    RECORD_FIELD(lecs_stats, rejectedRequests, 36, "rejected requests", FieldKind::number),
    RECORD_FIELD(lecs_stats, connectionsMade, 40, "connections made", FieldKind::number),
    RECORD_FIELD(lecs_stats, connectionsOpen, 44, "connections open", FieldKind::number),
};
static_assert(isLaidOut<lecs_stats>(lecsStatsFields, false));

inline constexpr RecordField lecsTableFields[] = {
    RECORD_FIELD(lecs_tbl, esiSelector, 0, "ESI/selector", FieldKind::esiSelector),
    RECORD_FIELD(lecs_tbl, les, 7, "LES", FieldKind::number),
    RECORD_FIELD(lecs_tbl, kind, 8, "kind", FieldKind::number),
};
static_assert(isLaidOut<lecs_tbl>(lecsTableFields, true));

inline constexpr RecordField ipStateFields[] = {
    RECORD_FIELD(ip_state, state, 0, "state", FieldKind::words, words::ipStates),
};

inline constexpr RecordField ipStatsFields[] = {
    RECORD_FIELD(ip_stats, transmitted, 48, "transmitted", FieldKind::wordList),
    RECORD_FIELD(ip_stats, txDropped, 68, "tx dropped", FieldKind::wordList),
    RECORD_FIELD(ip_stats, received, 80, "received", FieldKind::wordList),
    RECORD_FIELD(ip_stats, rxDropped, 88, "rx dropped", FieldKind::wordList),
    RECORD_FIELD(ip_stats, receivedOther, 124, "received otherwise", FieldKind::number),
};
static_assert(isLaidOut<ip_stats>(ipStatsFields, false));

inline constexpr RecordField ipTableFields[] = {
    RECORD_FIELD(ip_tbl, state, 0, "state", FieldKind::number),
    RECORD_FIELD(ip_tbl, connectionKind, 2, "kind", FieldKind::words, words::connections),
    RECORD_FIELD(ip_tbl, vci, 12, "VCI", FieldKind::number),
    RECORD_FIELD(ip_tbl, txPackets, 20, "tx packets", FieldKind::number),
    RECORD_FIELD(ip_tbl, rxPackets, 24, "rx packets", FieldKind::number),
    RECORD_FIELD(ip_tbl, ipAddress, 30, "IP", FieldKind::ipBytes),
    RECORD_FIELD(ip_tbl, address, 34, "address", FieldKind::atmAddress),
};
static_assert(isLaidOut<ip_tbl>(ipTableFields, false));

inline constexpr RecordField ipPvcTableFields[] = {
    RECORD_FIELD(ip_pvc_tbl, bytes, 0, "bytes", FieldKind::hex),
};

inline constexpr RecordField linkStateFields[] = {
    RECORD_FIELD(sig_link_state, ilmi, 2, "ILMI", FieldKind::number),
    RECORD_FIELD(sig_link_state, saal, 3, "QSAAL", FieldKind::number),
    RECORD_FIELD(sig_link_state, signalling, 4, "signalling", FieldKind::number),
    RECORD_FIELD(sig_link_state, address, 9, "address", FieldKind::atmAddress),
};
static_assert(isLaidOut<sig_link_state>(linkStateFields, false));

// What a query asks for, in words, and how its answer is laid out; of a table, each row.
struct ReplyForm {
  Query query;
  const char* name;
  RecordLayout fields;
};

inline constexpr ReplyForm replyForms[] = {
    {Query::BoardState, "state", boardStateFields},
    {Query::BoardMacAddress, "MAC address", boardMacFields},
    {Query::AalStats, "AAL statistics", aalStatsFields},
    {Query::SuniStats, "line statistics", suniStatsFields},
    {Query::PackageRev, "package revision", packageRevFields},
    {Query::RLSStatus, "link status", rlsStatusFields},
    {Query::VcTable, "table", vcTableFields},
    {Query::BoardMaxVC, "maximum VCs", boardMaxVcFields},
    {Query::LecState, "state", lecStateFields},
    {Query::LecStats, "statistics", lecStatsFields},
    {Query::LecTable, "table", lecTableFields},
    {Query::LesState, "state", lesStateFields},
    {Query::LesStats, "statistics", lesStatsFields},
    {Query::LesTable, "table", lesTableFields},
    {Query::LecsState, "state", lecsStateFields},
    {Query::LecsStats, "statistics", lecsStatsFields},
    {Query::LecsTable, "table", lecsTableFields},
    {Query::IpState, "state", ipStateFields},
    {Query::IpStats, "statistics", ipStatsFields},
    {Query::IpTable, "table", ipTableFields},
    {Query::IpPvcTable, "PVC table", ipPvcTableFields},
    {Query::LinkState, "link state", linkStateFields},
};
// clang-format on

// In the order of the enumeration, as the table of queries.
constexpr const ReplyForm& replyFormOf(Query query) {
  return replyForms[static_cast<std::size_t>(query)];
}

static_assert([] {
  std::size_t place = 0;
  for (const ReplyForm& form : replyForms) {
    if (static_cast<std::size_t>(form.query) != place++) return false;
    const RecordField& last = form.fields.back();
    if (last.offset + last.bytes > formOf(form.query).replyBytes) return false;
    if (!hasItsWords(form.fields)) return false;
  }
  return place == std::size(queryForms);
}());
