#include "driver/queries.h"

#include <cerrno>

#include "tests/driver/frame_driver.h"

namespace {

struct QueriesTest : FrameDriverTest {
  // A table of numbered rows, served in pages from RowM on; the faults are set per test.
  struct Table {
    std::uint16_t rows = 0;
    std::size_t rowBytes = 72;
    std::size_t requests = 0;
    std::size_t failedPage = 0;  // counted from 1
    std::uint16_t shortPage = 0xFFFF;
    std::uint16_t lie = 0;  // told in NRow in place of the rows delivered

    int answer(req_param_t& head, Payload& payload) {
      if (head.Type == 3 || head.Type == 5) {
        head.NRow = rows;
        return head.Resp = 0;
      }
      if (++requests == failedPage) return EIO;
      head.Resp = 0;
      const int left = rows + 1 - head.RowM;
      const int room = static_cast<int>(payload.size() / rowBytes);
      const int count = std::max(0, std::min({left, int{head.NRow}, room, int{shortPage}}));
      for (int i = 0; i < count; ++i)
        payload[static_cast<std::size_t>(i) * rowBytes] = static_cast<std::uint8_t>(head.RowM + i);
      head.RowM = static_cast<std::uint16_t>(head.RowM + count);
      head.NRow = lie != 0 ? lie : static_cast<std::uint16_t>(count);
      return 0;
    }
  };

  void serve(Table& table) {
    startDriver(
        [&table](req_param_t& head, Payload& payload) { return table.answer(head, payload); });
  }

  // The first bytes of the rows a query holds.
  template <class Row>
  static std::vector<int> numbers(const Row* rows, const InfoMsgHandler& query) {
    std::vector<int> first;
    for (int i = 0; rows != nullptr && i < query.header().NRow; ++i)
      first.push_back(*reinterpret_cast<const std::uint8_t*>(rows + i));
    return first;
  }
  static std::vector<int> upTo(int last, int first = 1) {
    std::vector<int> all;
    for (int i = first; i <= last; ++i) all.push_back(i);
    return all;
  }
};

struct Queries {
  int session;
  aalInfo aal{session, 1, 0};
  vccInfo vcc{session, 1, 0};
  lecInfo lec{session, 1, 2};
  lesInfo les{session, 1, 2};
  lecsInfo lecs{session, 1, 0};
  ip1577Info ip{session, 1, 0};
  sigInfo sig{session, 1, 0};
};

// Its answer, then the primitive, type, link, unit, size and input size it sent, and its log line.
struct QueryCase {
  bool (*ask)(Queries&);
  int prim, type, link, unit, size, input;
  const char* logLine;
};
// clang-format off
const QueryCase queryCases[] = {
    {[](Queries& q) { return q.aal.GetBoardState() != nullptr; }, 129, 1, 1, 0, 32, 16, "GET_BRDS_STATE"},
    {[](Queries& q) { return q.aal.GetBoardMacAddress(8) != nullptr; }, 129, 2, 1, 0, 32, 32, "GET_BRDS_MACADDR"},
    {[](Queries& q) { return q.aal.GetAalStats(6, 5) != nullptr; }, 129, 3, 6, 5, 116, 16, "GET_AAL_DRV_STATS"},
    {[](Queries& q) { return q.aal.GetSuniStats() != nullptr; }, 129, 4, 6, 5, 252, 16, "GET_SUNI_STATS"},
    {[](Queries& q) { return q.aal.GetPackageRev() != nullptr; }, 129, 5, 6, 5, 56, 16, "GET_PACKAGE_REV"},
    {[](Queries& q) { return q.aal.GetRLSStatus(3) != nullptr; }, 129, 16, 3, 0, 20, 16, "GET_RLS_STATUS"},
    {[](Queries& q) { return q.vcc.GetBoardMaxVC(4, 0) == 0x04030201; }, 1, 5, 4, 0, 20, 16, "GET_MAX_VC"},
    {[](Queries& q) { return q.vcc.GetTable(5, 16) != nullptr; }, 1, 4, 4, 0, 336, 16, "GET_VC_TBL"},
    {[](Queries& q) { return q.lec.GetState() != nullptr; }, 20, 1, 1, 2, 32, 16, "GET_LEC_STATE"},
    {[](Queries& q) { return q.lec.GetStats(7, 15) != nullptr; }, 20, 2, 7, 15, 956, 16, "GET_LEC_STATS"},
    {[](Queries& q) { return q.lec.GetTable(0, 3, 1, 13) != nullptr; }, 20, 4, 0, 3, 952, 16, "GET_LEC_TBL"},
    {[](Queries& q) { return q.les.GetState() != nullptr; }, 21, 1, 1, 2, 28, 16, "GET_LES_STATE"},
    {[](Queries& q) { return q.les.GetStats() != nullptr; }, 21, 2, 1, 2, 132, 16, "GET_LES_STATS"},
    {[](Queries& q) { return q.les.GetTable(1, 15) != nullptr; }, 21, 4, 1, 2, 976, 16, "GET_LES_TBL"},
    {[](Queries& q) { return q.lecs.GetState() != nullptr; }, 22, 1, 1, 0, 24, 16, "GET_LECS_STATE"},
    {[](Queries& q) { return q.lecs.GetStats() != nullptr; }, 22, 2, 1, 0, 64, 16, "GET_LECS_STATS"},
    {[](Queries& q) { return q.lecs.GetTable(1, 200) != nullptr; }, 22, 4, 1, 0, 1816, 16, "GET_LECS_TBL"},
    {[](Queries& q) { return q.ip.GetState() != nullptr; }, 66, 1, 1, 0, 32, 16, "GET_IP_STATE"},
    {[](Queries& q) { return q.ip.GetStats() != nullptr; }, 66, 2, 1, 0, 176, 16, "GET_IP_STATS"},
    {[](Queries& q) { return q.ip.GetTable(1, 100) != nullptr; }, 66, 4, 1, 0, 5616, 16, "GET_IP_TBL"},
    {[](Queries& q) { return q.ip.GetPvcTable(1, 60) != nullptr; }, 66, 6, 1, 0, 1216, 16, "GET_IP_PVC_TBL"},
    {[](Queries& q) { return q.ip.GetPvcNRows() == 60; }, 66, 5, 1, 0, 16, 16, "GET_NROWS"},
    {[](Queries& q) { return q.sig.GetLinkState() != nullptr; }, 33, 1, 1, 0, 288, 24, "DaiSigLnkStatus"},
};
// clang-format on

TEST_F(QueriesTest, EachQueryAsksAsTold) {
  startDriver([](req_param_t& head, Payload& payload) {
    for (std::size_t i = 0; i < payload.size(); ++i) payload[i] = static_cast<std::uint8_t>(i + 1);
    if (head.Type == ipPvcNRows) head.NRow = 60;
    return head.Resp = 0;
  });
  captureLog();
  Queries queries{session_};
  for (const auto& c : queryCases) {
    EXPECT_TRUE(c.ask(queries)) << c.logLine;
    const req_param_t sent = frames().back().head;
    EXPECT_EQ(std::vector<int>({sent.Prim, sent.Type, sent.Link, sent.Unit, sent.Size, sent.SzIO}),
              std::vector<int>({c.prim, c.type, c.link, c.unit, c.size, c.input}))
        << c.logLine;
    EXPECT_NE(log().rfind("\n" + std::string(c.logLine) + "\n-> "), std::string::npos) << c.logLine;
  }
  EXPECT_EQ(frames().at(1).payload.at(0), 8) << "the board asked for";
  EXPECT_EQ(queries.sig.GetLinkState()->ilmi, 8 + 3) << "behind the signalling head";

  driver_.reset();
  for (const auto& c : queryCases) EXPECT_FALSE(c.ask(queries)) << c.logLine;
}

TEST_F(QueriesTest, LongTablesTakeAsManyRequestsAsTheirPages) {
  Table table;
  serve(table);
  Queries queries{session_};
  const struct {
    std::size_t rowBytes;
    std::uint16_t rows;
    std::size_t requests;
    std::vector<int> (*read)(Queries&);
  } cases[] = {
      {72, 13, 1, [](Queries& q) { return numbers(q.lec.GetEntireTable(), q.lec); }},
      {72, 14, 2, [](Queries& q) { return numbers(q.lec.GetEntireTable(0, 15), q.lec); }},
      {72, 200, 16, [](Queries& q) { return numbers(q.lec.GetEntireTable(), q.lec); }},
      {64, 15, 1, [](Queries& q) { return numbers(q.les.GetEntireTable(), q.les); }},
      {64, 16, 2, [](Queries& q) { return numbers(q.les.GetEntireTable(), q.les); }},
      {20, 50, 1, [](Queries& q) { return numbers(q.vcc.GetEntireTable(), q.vcc); }},
      {20, 51, 2, [](Queries& q) { return numbers(q.vcc.GetEntireTable(), q.vcc); }},
      {9, 250, 1, [](Queries& q) { return numbers(q.lecs.GetEntireTable(), q.lecs); }},
      {56, 100, 1, [](Queries& q) { return numbers(q.ip.GetEntireTable(), q.ip); }},
      {20, 100, 1, [](Queries& q) { return numbers(q.ip.GetEntirePvcTable(), q.ip); }},
      {72, 0, 0, [](Queries& q) { return numbers(q.lec.GetEntireTable(), q.lec); }},
  };
  for (const auto& c : cases) {
    table.rowBytes = c.rowBytes;
    table.rows = c.rows;
    table.requests = 0;
    EXPECT_EQ(c.read(queries), upTo(c.rows)) << c.rowBytes;
    EXPECT_EQ(table.requests, c.requests) << c.rowBytes << " * " << c.rows;
  }
}

TEST_F(QueriesTest, PagesCarryOnFromTheFrameTheDriverLeft) {
  Table table;
  table.rows = 40;
  serve(table);
  captureLog();
  lecInfo lec(session_, 0, 0);
  EXPECT_EQ(numbers(lec.GetTable(2, 30), lec), upTo(31, 2));
  const int expected[][2] = {{2, 13}, {15, 13}, {28, 13}};
  const auto sent = frames();
  ASSERT_EQ(sent.size(), 3U);
  for (std::size_t i = 0; i < 3; ++i) {
    EXPECT_EQ(sent[i].head.RowM, expected[i][0]);
    EXPECT_EQ(sent[i].head.NRow, expected[i][1]);
    EXPECT_EQ(sent[i].head.Size, 952);
  }
  EXPECT_NE(log().find("\nIncr GET_LEC_TBL\n-> "), std::string::npos);
  EXPECT_EQ(lec.header().Size, 30 * 72 + 16);
}

TEST_F(QueriesTest, FaultyPagesShortenOrSpoilATable) {
  const struct {
    const char* name;
    std::uint16_t rows;
    std::size_t failedPage;
    std::uint16_t shortPage;
    std::vector<int> expected;
  } cases[] = {
      {"first page fails", 26, 1, 0xFFFF, upTo(13)},
      {"last page fails", 26, 2, 0xFFFF, {}},
      {"pages are short, and asked for only as often as full ones", 39, 0, 10, upTo(30)},
      {"no rows at all", 26, 0, 0, {}},
  };
  Table table;
  serve(table);
  for (const auto& c : cases) {
    table = {c.rows, 72, 0, c.failedPage, c.shortPage};
    lecInfo lec(session_, 0, 0);
    const lec_tbl_t* rows = lec.GetEntireTable();
    EXPECT_EQ(numbers(rows, lec), c.expected) << c.name;
    EXPECT_EQ(rows == nullptr, c.failedPage == 2) << c.name;
    EXPECT_EQ(table.requests, std::size_t{c.rows} / 13) << c.name;
  }
}

// Whatever counts and sizes come back, no row outside the frame is read or promised.
TEST_F(QueriesTest, CountsThatLieStayWithinTheFrame) {
  Table table;
  table.lie = 60000;
  serve(table);
  for (const unsigned rows : {5U, 13U, 14U, 40U, 911U, 930U, 32767U, 40000U}) {
    table.rows = static_cast<std::uint16_t>(rows);
    lecInfo lec(session_, 0, 0);
    if (lec.GetEntireTable() == nullptr) continue;
    EXPECT_LE(lec.header().NRow * sizeof(lec_tbl_t), lec.capacity() - 16U) << rows;
    EXPECT_LE(lec.header().NRow, rows) << rows;
  }
  table.rowBytes = 9;
  for (const unsigned rows : {100U, 7281U, 7282U, 65535U}) {
    table.rows = static_cast<std::uint16_t>(rows);
    lecsInfo lecs(session_, 0, 0);
    if (lecs.GetEntireTable() == nullptr) continue;
    EXPECT_LE(lecs.header().NRow * sizeof(lecs_tbl), lecs.capacity() - 16U) << rows;
  }
}

TEST_F(QueriesTest, SixteenBitProductsDecideTheWay) {
  Table table;
  table.rows = 911;  // 65,592 bytes, of which 16 bits hold 56
  serve(table);
  lecInfo lec(session_, 0, 0);
  EXPECT_NE(lec.GetEntireTable(), nullptr);
  EXPECT_EQ(table.requests, 1U);
  EXPECT_EQ(frames().at(1).head.Size, 72);
}

TEST_F(QueriesTest, FindsTheCircuitOfAVci) {
  Table table;
  table.rowBytes = sizeof(vc_tbl);
  table.rows = 60;
  serve(table);
  vccInfo vcc(session_, 0, 0);
  EXPECT_EQ(vcc.GetVciEntry(0), nullptr);
  const vc_tbl* rows = vcc.GetEntireTable();
  ASSERT_NE(rows, nullptr);
  EXPECT_EQ(vcc.GetVciEntry(60), rows + 59);
  EXPECT_EQ(vcc.GetVciEntry(61), nullptr);
  EXPECT_EQ(vcc.GetVciEntry(0), nullptr);
  vcc.header().NRow = 65535;
  EXPECT_EQ(vcc.GetVciEntry(61), nullptr);
}

}  // namespace
