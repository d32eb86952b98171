// The tables of the pages: rows that come, move and go, and what their counters start from.
#include "tests/stats/stats_stage.h"

#include <array>

namespace {

constexpr int signallingPage = 575;
constexpr int lecPage = 577;
constexpr int lesPage = 578;
constexpr int ipPage = 580;

vc_tbl circuit(std::int16_t vci, std::uint32_t out, std::uint32_t in) {
  vc_tbl row{};
  row.vci = vci;
  row.counterOut = out;
  row.counterIn = in;
  return row;
}

lec_tbl_t connection(std::uint16_t vci, std::uint32_t tx, std::uint32_t rx, int kind = 2) {
  lec_tbl_t row{};
  row.macAddress[5] = static_cast<std::uint8_t>(vci);
  row.connectionKind = static_cast<std::uint16_t>(kind);
  fillAddress(row.address, 0x30);
  row.vci = vci;
  row.txPackets = tx;
  row.rxPackets = rx;
  return row;
}

constexpr char noPrefix[] = "   PVC Connection                     ";
constexpr char noEsiSelector[] = "   PVC Connection   ";
const std::string permanent = std::string(noPrefix) + "|" + noEsiSelector + ";";
const std::string switched = "30:31:32:33:34:35:36:37:38:39:3a:3b:3c|3d:3e:3f:40:41:42-43;";

TEST_F(StatsStage, TheStackCountsTheFramesOfItsTwoCircuits) {
  atmDevices.phy[1].VPI = 7;
  StatsPage& stack = page(signallingPage);
  EXPECT_EQ(cells(stack, 208), "||;||;");
  driver.serveRows<vc_tbl>(Query::VcTable, {circuit(5, 10, 20), circuit(16, 30, 40)});
  stack.Update();
  EXPECT_EQ(cells(stack, 208), "  7/  16|40|30;  7/   5|20|10;");
  driver.asked();
  stack.ClearStats();
  EXPECT_EQ(driver.asked(), "1/0 GET_VC_TBL") << "the lamps know no clearing";
  EXPECT_EQ(cells(stack, 208), "  7/  16|0|0;  7/   5|0|0;");
  driver.serveRows<vc_tbl>(Query::VcTable, {circuit(16, 31, 42)});
  stack.Update();
  EXPECT_EQ(cells(stack, 208), "  7/  16|0|0;  7/   5|0|0;") << "one row is too few";
  driver.serveRows<vc_tbl>(Query::VcTable,
                           {circuit(99, 1, 1), circuit(16, 31, 42), circuit(98, 1, 1)});
  stack.Update();
  EXPECT_EQ(cells(stack, 208), "  7/  16|2|1;  7/   5|0|0;");
}

TEST_F(StatsStage, ConnectionsCountByTheirCircuit) {
  driver.serve(Query::LecState, lec_state{5, {}, 0});
  driver.serve(Query::LecStats, lec_stats{});
  driver.serveRows<lec_tbl_t>(Query::LecTable, {connection(33, 10, 20), connection(34, 30, 40, 1)});
  StatsPage& lec = page(lecPage);
  const std::string a = "00:00:00:00:00:21|  0/  33|", b = "00:00:00:00:00:22|  0/  34|";
  EXPECT_EQ(cells(lec, 244), a + "10|20|" + permanent + b + "30|40|" + switched);
  EXPECT_EQ(cells(lec, 243), "") << "a client that joins has no circuits to its servers";
  lec.ClearStats();
  EXPECT_EQ(cells(lec, 244), a + "0|0|" + permanent + b + "0|0|" + switched);
  // The rows change places, and one that is new comes with what it has.
  driver.serveRows<lec_tbl_t>(
      Query::LecTable, {connection(35, 7, 8), connection(34, 31, 40, 1), connection(33, 12, 20)});
  lec.Update();
  EXPECT_EQ(cells(lec, 244), "00:00:00:00:00:23|  0/  35|7|8|" + permanent + b + "1|0|" + switched +
                                 a + "2|0|" + permanent);
  // A circuit that is used anew keeps the baseline, and so wraps; as it does for another client.
  driver.serveRows<lec_tbl_t>(Query::LecTable, {connection(33, 9, 20)});
  lec.Update();
  EXPECT_EQ(cells(lec, 244), a + "4294967295|0|" + permanent);
  driver.serve(Query::LecState, lec_state{4, {}, 0}, 1);
  driver.serve(Query::LecStats, lec_stats{}, 1);
  driver.serveRows<lec_tbl_t>(Query::LecTable, {connection(33, 11, 21)}, 1);
  static_cast<zTabCtrl*>(lec.get(175))->select(2);
  EXPECT_EQ(cells(lec, 244), a + "4294967295|0|" + permanent) << "the next tick fills the table";
  lec.Update();
  EXPECT_EQ(cells(lec, 244), a + "1|1|" + permanent);
  driver.refuse(Query::LecTable, 1);
  lec.Update();
  EXPECT_EQ(cells(lec, 244), "");
}

lec_stats operational(std::uint16_t firstVci) {
  lec_stats stats{};
  stats.controlDirectVci = firstVci;
  stats.controlDistributeVci = static_cast<std::uint16_t>(firstVci + 1);
  stats.multicastSendVci = 0;  // not there
  stats.multicastForwardVci = static_cast<std::uint16_t>(firstVci + 3);
  fillAddress(stats.controlDirectAddress, 0x00);
  fillAddress(stats.controlDistributeAddress, 0x20);
  fillAddress(stats.multicastSendAddress, 0x40);
  fillAddress(stats.multicastForwardAddress, 0x60);
  return stats;
}

TEST_F(StatsStage, CircuitsToTheServersKeepTheirBaselinesByClient) {
  for (const int unit : {0, 1}) {
    driver.serve(Query::LecState, lec_state{6, {}, 0}, unit);
    driver.serve(Query::LecStats, operational(static_cast<std::uint16_t>(100 + 10 * unit)), unit);
  }
  const auto serveCircuits = [&](std::uint32_t count) {
    driver.serveRows<vc_tbl>(Query::VcTable, {circuit(103, count, 2 * count), circuit(0, 9, 9),
                                              circuit(100, count, count), circuit(110, count, 1)});
  };
  serveCircuits(1000);
  StatsPage& lec = page(lecPage);
  const auto shown = [](const char* direct, const char* forward, int vci = 100) {
    const std::string at = "  0/ ";
    return at + std::to_string(vci) + "|" + direct +
           "|00:01:02:03:04:05:06:07:08:09:0a:0b:0c|0d:0e:0f:10:11:12-13;" + at +
           std::to_string(vci + 1) +
           "|||20:21:22:23:24:25:26:27:28:29:2a:2b:2c|2d:2e:2f:30:31:32-33;||||;" + at +
           std::to_string(vci + 3) + "|" + forward +
           "|60:61:62:63:64:65:66:67:68:69:6a:6b:6c|6d:6e:6f:70:71:72-73;";
  };
  EXPECT_EQ(cells(lec, 243), shown("1000|1000", "1000|2000"));
  lec.ClearStats();
  serveCircuits(1004);
  auto* tabs = static_cast<zTabCtrl*>(lec.get(175));
  tabs->select(2);
  lec.Update();
  EXPECT_EQ(cells(lec, 243), shown("1004|1", "|", 110)) << "another client's rows start empty";
  tabs->select(1);
  lec.Update();
  EXPECT_EQ(cells(lec, 243), shown("4|4", "4|8"));
  driver.refuse(Query::VcTable);
  lec.Update();
  EXPECT_EQ(cells(lec, 243), shown("4|4", "4|8")) << "without the circuits the counts stay";
}

TEST_F(StatsStage, ClientsOfAServerCountByTheirMacAddress) {
  const auto client = [](std::uint8_t mac, std::uint16_t state, std::uint32_t count) {
    les_tbl row{};
    row.macAddress[0] = mac;
    fillAddress(row.address, 0x30);
    row.state = state;
    row.controlDirectVci = 40;
    row.controlDirectTx = count;
    row.controlDirectRx = count + 1;
    row.multicastSendVci = 12345;
    row.multicastSendTx = count + 2;
    row.multicastSendRx = count + 3;
    return row;
  };
  driver.serve(Query::LesState, les_state{1, 0, 1});
  driver.serve(Query::LesStats, les_stats{});
  driver.serveRows<les_tbl>(Query::LesTable, {client(1, 1, 10), client(2, 4, 20)});
  StatsPage& les = page(lesPage);
  EXPECT_EQ(cells(les, 246),
            "01:00:00:00:00:00|Signalling A|  0/  40|10|11|  0/12345|12|13|" + switched +
                "02:00:00:00:00:00|XXXX|  0/  40|20|21|  0/12345|22|23|" + switched);
  les.ClearStats();
  driver.refuse(Query::LesTable);
  les.Update();
  EXPECT_EQ(cells(les, 246), "");
  // One joins again, with its baselines, and one joins for the first time.
  driver.serveRows<les_tbl>(Query::LesTable, {client(3, 3, 5), client(2, 3, 21)});
  les.Update();
  EXPECT_EQ(cells(les, 246), "03:00:00:00:00:00|Active|  0/  40|5|6|  0/12345|7|8|" + switched +
                                 "02:00:00:00:00:00|Active|  0/  40|1|1|  0/12345|1|1|" + switched);
  static_cast<zTabCtrl*>(les.get(183))->select(16);
  driver.asked();
  les.Update();
  EXPECT_EQ(driver.asked(), "1/15 GET_LES_STATE");
  EXPECT_EQ(cells(les, 246), "");
}

TEST_F(StatsStage, ConnectionsOfIpTellTheirState) {
  const auto row = [](std::uint16_t state, int kind, std::uint16_t vci, std::uint32_t tx) {
    ip_tbl connection{};
    connection.state = state;
    connection.connectionKind = static_cast<std::uint16_t>(kind);
    connection.vci = vci;
    connection.txPackets = tx;
    connection.rxPackets = 2 * tx;
    for (int i = 0; i < 4; ++i) connection.ipAddress[i] = static_cast<std::uint8_t>(10 + i);
    fillAddress(connection.address, 0x30);
    return connection;
  };
  driver.serve(Query::IpState, ip_state{5, {}});
  driver.serve(Query::IpStats, ip_stats{});
  driver.serveRows<ip_tbl>(Query::IpTable, {row(2, 1, 50, 4), row(6, 0, 51, 6)});
  StatsPage& ip = page(ipPage);
  EXPECT_EQ(cells(ip, 259), "10.11.12.13|  0/  50|Active|4|8|" + switched +
                                "10.11.12.13|  0/  51|XXXX|6|12|" + permanent);
  ip.ClearStats();
  driver.serveRows<ip_tbl>(Query::IpTable, {row(4, 1, 51, 7), row(1, 1, 52, 1)});
  ip.Update();
  EXPECT_EQ(cells(ip, 259), "10.11.12.13|  0/  51|Waiting for InARP response|1|2|" + switched +
                                "10.11.12.13|  0/  52|Waiting for VCC connection|1|2|" + switched);
  driver.serve(Query::IpState, ip_state{0, {}});
  ip.Update();
  EXPECT_EQ(cells(ip, 259), "");
}

TEST_F(StatsStage, NineHundredRowsAreShownWithTheirNumbers) {
  std::vector<lec_tbl_t> rows;
  for (std::uint16_t i = 0; i < 900; ++i)
    rows.push_back(connection(static_cast<std::uint16_t>(32 + i), i, i));
  driver.serve(Query::LecState, lec_state{5, {}, 0});
  driver.serve(Query::LecStats, lec_stats{});
  driver.serveRows(Query::LecTable, rows);
  StatsPage& lec = page(lecPage);
  const auto& table = *static_cast<zTable*>(lec.get(244));
  EXPECT_EQ(table.model()->getNumRows(), 900U);
  EXPECT_EQ(table.model()->getCell({3, 900})->getText(), "899");
  EXPECT_GE(table.sizer()->width() - table.roomForCells().width, table.labelFont().textWidth("900"))
      << "the row labels have room for their numbers";
  EXPECT_TRUE(std::ranges::any_of(table.model()->attributes(), [](const auto& attr) {
    return dynamic_cast<zTableTextAlignmentAttr*>(attr.get()) && attr->region().contains({3, 900});
  })) << "the last row is centred as the first one is";
  driver.serve(Query::LecState, lec_state{0, {}, 0});
  lec.Update();
  EXPECT_EQ(table.model()->getNumRows(), 0U);
}

}  // namespace
