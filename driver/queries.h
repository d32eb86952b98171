// What the driver tells about its boards and services: one query class per service.
//
// An object is built on an open session for one adapter and instance, which the forms with `link`
// and `unit` change for good. A result points into the object's own frame and holds until its next
// request; it is null, or 0 by value, when the driver had no answer. After a table has been read,
// `header().NRow` tells how many rows came, never more than the frame holds.
#pragma once

#include <cstdint>

#include "driver/query_table.h"
#include "driver/request.h"

// What all queries are asked through.
class QueryHandler : public InfoMsgHandler {
 protected:
  QueryHandler(int descriptor, Primitive prim, unsigned short firstType, unsigned short link,
               unsigned short unit);
  using InfoMsgHandler::InfoMsgHandler;

  // Sets up a simple query and sends it. Returns the payload, at least the query's reply bytes.
  const std::uint8_t* ask(Query query);

  // Reads NRow rows from row RowM on, as both stand in the head: in one frame, or in pages when
  // they are more than a frame should carry.
  const std::uint8_t* readTable(Query query);

  // As readTable from row 1 on, with as many rows as the driver counts; null for an empty table.
  const std::uint8_t* readEntireTable(Query query);

  template <class Record>
  const Record* askFor(Query query) {
    return reinterpret_cast<const Record*>(ask(query));
  }

  void setRows(unsigned short rowM, unsigned short nRows) {
    header().RowM = rowM;
    header().NRow = nRows;
  }

  // The first two steps of a query: its operation, and a frame with room for the answer.
  void prepareQuery(const QueryForm& form, unsigned short replyBytes);
  const std::uint8_t* send(const char* logLine);

 private:
  const std::uint8_t* readInOneFrame(const QueryForm& form, unsigned short replyBytes);
  const std::uint8_t* readInPages(const QueryForm& form, unsigned short rows);
};

// A table of `Row`s, with all the ways to read it.
template <class Row, Query table>
class TableInfo : public QueryHandler {
 public:
  unsigned short GetNRows() {
    return static_cast<unsigned short>(GetNumRows(formOf(table).countType));
  }
  unsigned short GetNRows(unsigned char link, unsigned char unit) {
    setTarget(link, unit);
    return GetNRows();
  }

  const Row* GetTable() { return reinterpret_cast<const Row*>(readTable(table)); }
  const Row* GetTable(unsigned short rowM, unsigned short nRows) {
    setRows(rowM, nRows);
    return GetTable();
  }
  const Row* GetTable(unsigned char link, unsigned char unit, unsigned short rowM,
                      unsigned short nRows) {
    setTarget(link, unit);
    return GetTable(rowM, nRows);
  }

  const Row* GetEntireTable() { return reinterpret_cast<const Row*>(readEntireTable(table)); }
  const Row* GetEntireTable(unsigned char link, unsigned char unit) {
    setTarget(link, unit);
    return GetEntireTable();
  }

 protected:
  using QueryHandler::QueryHandler;
};

// A service with a state, statistics and a table.
template <class State, Query state, class Stats, Query stats, class Row, Query table>
class ServiceInfo : public TableInfo<Row, table> {
 public:
  ServiceInfo(int descriptor, unsigned short link, unsigned short unit)
      : TableInfo<Row, table>(descriptor, formOf(state).prim, formOf(state).type, link, unit) {}

  const State* GetState() { return this->template askFor<State>(state); }
  const State* GetState(unsigned char link, unsigned char unit) {
    this->setTarget(link, unit);
    return GetState();
  }

  const Stats* GetStats() { return this->template askFor<Stats>(stats); }
  const Stats* GetStats(unsigned char link, unsigned char unit) {
    this->setTarget(link, unit);
    return GetStats();
  }
};

// Boards, AAL5 and the line interfaces.
class aalInfo : public QueryHandler {
 public:
  aalInfo(int descriptor, unsigned short link, unsigned short unit);

  const board_state* GetBoardState() { return askFor<board_state>(Query::BoardState); }
  const board_state* GetBoardState(unsigned char link, unsigned char unit);
  const aal_stats* GetAalStats() { return askFor<aal_stats>(Query::AalStats); }
  const aal_stats* GetAalStats(unsigned char link, unsigned char unit);
  const suni_stats* GetSuniStats() { return askFor<suni_stats>(Query::SuniStats); }
  const suni_stats* GetSuniStats(unsigned char link, unsigned char unit);

  // Of the board with adapter number `board` - 1.
  const board_mac* GetBoardMacAddress(unsigned short board);

  // packageRevBytes of text, terminated unless it fills them.
  const char* GetPackageRev() { return askFor<char>(Query::PackageRev); }

  const rls_status* GetRLSStatus(unsigned char link);
};

// The virtual circuits of a board.
class vccInfo : public TableInfo<vc_tbl, Query::VcTable> {
 public:
  vccInfo(int descriptor, unsigned short link, unsigned short unit);

  // How many circuits the board can have.
  std::uint32_t GetBoardMaxVC();
  std::uint32_t GetBoardMaxVC(unsigned char link, unsigned char unit);

  // The first row of the table fetched last whose VCI is `vci`, or null.
  const vc_tbl* GetVciEntry(unsigned short vci) const;
};

// A LAN Emulation client; `unit` is its index.
class lecInfo : public ServiceInfo<lec_state, Query::LecState, lec_stats, Query::LecStats,
                                   lec_tbl_t, Query::LecTable> {
 public:
  using ServiceInfo::ServiceInfo;
};

// A LAN Emulation server; `unit` is its index.
class lesInfo : public ServiceInfo<les_state, Query::LesState, les_stats, Query::LesStats, les_tbl,
                                   Query::LesTable> {
 public:
  using ServiceInfo::ServiceInfo;
};

// The LAN Emulation configuration server.
class lecsInfo : public ServiceInfo<lecs_state, Query::LecsState, lecs_stats, Query::LecsStats,
                                    lecs_tbl, Query::LecsTable> {
 public:
  using ServiceInfo::ServiceInfo;
};

// The IP over ATM service.
class ip1577Info : public ServiceInfo<ip_state, Query::IpState, ip_stats, Query::IpStats, ip_tbl,
                                      Query::IpTable> {
 public:
  using ServiceInfo::ServiceInfo;

  unsigned short GetPvcNRows();
  unsigned short GetPvcNRows(unsigned char link, unsigned char unit);
  const ip_pvc_tbl* GetPvcTable();
  const ip_pvc_tbl* GetPvcTable(unsigned short rowM, unsigned short nRows);
  const ip_pvc_tbl* GetPvcTable(unsigned char link, unsigned char unit, unsigned short rowM,
                                unsigned short nRows);
  const ip_pvc_tbl* GetEntirePvcTable();
  const ip_pvc_tbl* GetEntirePvcTable(unsigned char link, unsigned char unit);
};

// The signalling stack of a board. Its frame is built at its largest size, with the payload behind
// the signalling head.
class sigInfo : public QueryHandler {
 public:
  sigInfo(int descriptor, unsigned short link, unsigned short unit);

  const sig_link_state* GetLinkState() { return askFor<sig_link_state>(Query::LinkState); }
  const sig_link_state* GetLinkState(unsigned char link, unsigned char unit);

  // Sets the sizes only, cut to the frame; the frame and the payload's offset stay as they are.
  void prepareMsg(unsigned short replyBytes) override;
};
