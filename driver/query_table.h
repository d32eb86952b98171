// The queries the driver answers, in one table: what each is called on the wire and in the log, and
// how long its answer is.
#pragma once

#include <cstddef>
#include <cstdint>

#include "driver/board_records.h"
#include "driver/frame.h"
#include "driver/query_types.h"
#include "driver/service_records.h"

enum class Query : std::uint16_t {
  BoardState,
  BoardMacAddress,
  AalStats,
  SuniStats,
  PackageRev,
  RLSStatus,
  VcTable,
  BoardMaxVC,
  LecState,
  LecStats,
  LecTable,
  LesState,
  LesStats,
  LesTable,
  LecsState,
  LecsStats,
  LecsTable,
  IpState,
  IpStats,
  IpTable,
  IpPvcTable,
  LinkState,
};

struct QueryForm {
  Query query;
  Primitive prim;
  std::uint16_t type;
  std::uint16_t replyBytes;  // of payload; of a table, the bytes of a row
  const char* logLine;
  std::uint16_t countType = 0;  // of a table: the operation that counts its rows
  std::uint16_t pageRows = 0;   // of a table that is read in pages: the rows of a page
};

// clang-format off
inline constexpr QueryForm queryForms[] = {
    {Query::BoardState, primAalQuery, aalBoardState, sizeof(board_state), "GET_BRDS_STATE"},
    {Query::BoardMacAddress, primAalQuery, aalBoardMacAddress, sizeof(board_mac), "GET_BRDS_MACADDR"},
    {Query::AalStats, primAalQuery, aalStats, sizeof(aal_stats), "GET_AAL_DRV_STATS"},
    {Query::SuniStats, primAalQuery, aalSuniStats, sizeof(suni_stats), "GET_SUNI_STATS"},
    {Query::PackageRev, primAalQuery, aalPackageRev, packageRevBytes, "GET_PACKAGE_REV"},
    {Query::RLSStatus, primAalQuery, aalRlsStatus, sizeof(rls_status), "GET_RLS_STATUS"},
    {Query::VcTable, primVccQuery, vccTable, sizeof(vc_tbl), "GET_VC_TBL", vccNRows, 50},
    {Query::BoardMaxVC, primVccQuery, vccBoardMaxVC, boardMaxVcBytes, "GET_MAX_VC"},
    {Query::LecState, primLecQuery, serviceState, sizeof(lec_state), "GET_LEC_STATE"},
    {Query::LecStats, primLecQuery, serviceStats, sizeof(lec_stats), "GET_LEC_STATS"},
    {Query::LecTable, primLecQuery, serviceTable, sizeof(lec_tbl_t), "GET_LEC_TBL", serviceNRows, 13},
    {Query::LesState, primLesQuery, serviceState, sizeof(les_state), "GET_LES_STATE"},
    {Query::LesStats, primLesQuery, serviceStats, sizeof(les_stats), "GET_LES_STATS"},
    {Query::LesTable, primLesQuery, serviceTable, sizeof(les_tbl), "GET_LES_TBL", serviceNRows, 15},
    {Query::LecsState, primLecsQuery, serviceState, sizeof(lecs_state), "GET_LECS_STATE"},
    {Query::LecsStats, primLecsQuery, serviceStats, sizeof(lecs_stats), "GET_LECS_STATS"},
    {Query::LecsTable, primLecsQuery, serviceTable, sizeof(lecs_tbl), "GET_LECS_TBL", serviceNRows},
    {Query::IpState, primIpQuery, serviceState, sizeof(ip_state), "GET_IP_STATE"},
    {Query::IpStats, primIpQuery, serviceStats, sizeof(ip_stats), "GET_IP_STATS"},
    {Query::IpTable, primIpQuery, serviceTable, sizeof(ip_tbl), "GET_IP_TBL", serviceNRows},
    {Query::IpPvcTable, primIpQuery, ipPvcTable, sizeof(ip_pvc_tbl), "GET_IP_PVC_TBL", ipPvcNRows},
    {Query::LinkState, primSigQuery, sigLinkState, sizeof(sig_link_state), "DaiSigLnkStatus"},
};
// clang-format on

// The table is in the order of the enumeration, so that a query is its own place in it.
constexpr const QueryForm& formOf(Query query) {
  return queryForms[static_cast<std::size_t>(query)];
}

static_assert([] {
  std::size_t place = 0;
  for (const QueryForm& form : queryForms) {
    if (static_cast<std::size_t>(form.query) != place++) return false;
  }
  return place == static_cast<std::size_t>(Query::LinkState) + 1;
}());
