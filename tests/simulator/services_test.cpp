// Control requests, and what the queries show of them, over the real socket.
#include <fcntl.h>
#include <gtest/gtest.h>

#include <cerrno>
#include <random>

#include "driver/control_table.h"
#include "driver/query_table.h"
#include "simulator/answer_code.h"
#include "simulator/command.h"
#include "simulator/services.h"
#include "tests/support/lisim_client.h"

namespace {

using lisim::Answer;

constexpr char atOnce[] = "join-delay 0\nboard 1 signalling up\n";

struct Services : testing::Test {
  explicit Services(const std::string& scenario = atOnce)
      : lisim(scenario), client(lisim.device(), O_RDWR) {}

  template <class Record>
  Answer control(Control which, std::uint8_t unit, const Record& record) {
    return send(which, unit, lisimBytesOf(record));
  }
  Answer control(Control which, std::uint8_t unit = 0) { return send(which, unit, {}); }

  Answer send(Control which, std::uint8_t unit, const LisimBytes& record) {
    const ControlForm& form = formOf(which);
    LisimBytes payload(form.frameBytes - sizeof(req_param_t));
    std::copy(record.begin(), record.end(),
              payload.end() - static_cast<std::ptrdiff_t>(record.size()));
    req_param_t head =
        LisimClient::lisimHead(form.prim, form.type, 0, form.frameBytes, form.inputBytes);
    head.Unit = unit;
    return static_cast<Answer>(client.exchange(head, payload).head.Resp);
  }

  LisimAnswer ask(Query query, std::uint8_t unit = 0, std::uint16_t rows = 0) {
    const QueryForm& form = formOf(query);
    const std::size_t room = (rows ? rows * form.replyBytes : form.replyBytes) + 8U;
    req_param_t head = LisimClient::lisimHead(form.prim, form.type, 0, 16 + room, 16);
    head.Unit = unit;
    head.NRow = rows;
    return client.exchange(head, LisimBytes(room));
  }
  std::uint32_t state(Query query, std::uint8_t unit = 0) {
    return ask(query, unit).as<std::uint32_t>();
  }
  int count(Query query, std::uint8_t unit = 0) {
    const QueryForm& form = formOf(query);
    req_param_t head = LisimClient::lisimHead(form.prim, form.countType, 0, 16, 16);
    head.Unit = unit;
    return client.exchange(head, {}).head.NRow;
  }
  std::vector<int> vcis() {
    const LisimAnswer answer = ask(Query::VcTable, 0, 50);
    std::vector<int> found;
    for (std::size_t i = 0; i < answer.head.NRow; ++i)
      found.push_back(answer.as<vc_tbl>(i * sizeof(vc_tbl)).vci);
    return found;
  }

  LisimProcess lisim;
  LisimClient client;
};

lecReqStruct lanClient() {
  lecReqStruct record;
  record.lecs = 1;
  record.mfs = 2;
  std::memcpy(record.elanName, "eng", 3);
  record.address[0] = 0x47;
  return record;
}

bdgPvcReqStruct bridged(std::uint16_t vci) {
  bdgPvcReqStruct record;
  record.macAddress[5] = 9;
  record.vcIndex = vci;
  return record;
}

ip_pvc routed(std::uint16_t vci) {
  ip_pvc record;
  record.ipAddress[0] = 10;
  record.vcIndex = vci;
  return record;
}

lesReqStruct lanServer() {
  lesReqStruct record;
  record.mfs = 2;
  record.elanType = 1;
  std::memcpy(record.elanName, "eng", 3);
  return record;
}

TEST_F(Services, LanClientsJoinAndKeepTheirCircuits) {
  EXPECT_EQ(control(Control::LecAddPvc, 3, bridged(100)), Answer::notRunning);
  EXPECT_EQ(control(Control::LecEnable, 3, lanClient()), Answer::done);
  EXPECT_EQ(state(Query::LecState, 3), lisim::lecOperational);
  EXPECT_EQ(state(Query::LecState, 4), 0U);
  EXPECT_EQ(control(Control::LecAddPvc, 3, bridged(100)), Answer::done);
  for (const auto& [vci, answer] : {std::pair{100, Answer::vcInUse},
                                    {268, Answer::vcInUse},
                                    {0, Answer::badVc},
                                    {1024, Answer::badVc}})
    EXPECT_EQ(control(Control::LecAddPvc, 3, bridged(static_cast<std::uint16_t>(vci))), answer)
        << vci;
  EXPECT_EQ(vcis(), (std::vector{5, 16, 100, 268, 269, 270, 271}));
  EXPECT_EQ(count(Query::VcTable), 7);
  EXPECT_EQ(count(Query::LecTable, 3), 1);
  const auto row = ask(Query::LecTable, 3, 5).as<lec_tbl_t>();
  EXPECT_EQ(row.vci, 100);
  EXPECT_EQ(row.macAddress[5], 9);
  EXPECT_NE(row.connectionKind, 1);
  const auto stats = ask(Query::LecStats, 3).as<lec_stats>();
  EXPECT_STREQ(stats.elanName, "eng");
  EXPECT_EQ(stats.elanType, 1);
  EXPECT_EQ(stats.mtuType, 2);
  EXPECT_EQ(stats.macAddress[5], 3);
  EXPECT_EQ(stats.controlDirectVci, 268);
  EXPECT_EQ(stats.multicastForwardAddress[0], 0x47);

  EXPECT_EQ(control(Control::LecDeletePvc, 3, bridged(100)), Answer::done);
  EXPECT_EQ(control(Control::LecDeletePvc, 3, bridged(100)), Answer::noSuchEntry);
  EXPECT_EQ(control(Control::LecAddPvc, 3, bridged(101)), Answer::done);
  EXPECT_EQ(control(Control::LecEnable, 3, lanClient()), Answer::done) << "anew";
  EXPECT_EQ(count(Query::LecTable, 3), 0);
  EXPECT_EQ(control(Control::LecSetEnhanced, 3, word_req{1}), Answer::done);
  EXPECT_EQ(control(Control::LecDisable, 3), Answer::done);
  EXPECT_EQ(control(Control::LecSetEnhanced, 3, word_req{1}), Answer::notRunning);
  EXPECT_EQ(state(Query::LecState, 3), 0U);
  EXPECT_EQ(vcis(), (std::vector{5, 16}));
  lecReqStruct wrong = lanClient();
  wrong.mfs = 5;
  EXPECT_EQ(control(Control::LecEnable, 3, wrong), Answer::badValue);
}

TEST_F(Services, LanServersAreStoppedBeforeTheyStart) {
  EXPECT_EQ(control(Control::LesDisable, 15), Answer::done);
  EXPECT_EQ(control(Control::LesEnable, 15, lanServer()), Answer::done);
  EXPECT_EQ(control(Control::LesEnable, 15, lanServer()), Answer::alreadyRunning);
  EXPECT_EQ(ask(Query::LesState, 15).as<les_state>().serving, 1U);
  EXPECT_EQ(count(Query::LesTable, 15), 0);
  EXPECT_EQ(control(Control::LecEnable, 1, lanClient()), Answer::done);
  EXPECT_EQ(count(Query::LesTable, 15), 1);
  const auto row = ask(Query::LesTable, 15, 4).as<les_tbl>();
  EXPECT_EQ(row.controlDirectVci, 260);
  EXPECT_EQ(row.macAddress[5], 1);
  EXPECT_STREQ(ask(Query::LesStats, 15).as<les_stats>().elanName, "eng");
}

TEST_F(Services, TheConfigurationServerTakesMappings) {
  lecs_req record;
  record.elanType = record.etherMfs = record.tokenRingMfs = 1;
  EXPECT_EQ(control(Control::LecsGo), Answer::notRunning);
  EXPECT_EQ(control(Control::LecsAddClient, 0, record), Answer::notRunning);
  EXPECT_EQ(control(Control::LecsEnable, 0, record), Answer::done);
  EXPECT_EQ(state(Query::LecsState), 1U);
  EXPECT_EQ(control(Control::LecsGo), Answer::done);
  EXPECT_EQ(state(Query::LecsState), lisim::lecsOperational);
  for (const int last : {7, 8, 7}) {
    record.esiSelector[6] = static_cast<std::uint8_t>(last);
    EXPECT_EQ(control(Control::LecsAddClient, 200, record), Answer::done);
  }
  EXPECT_EQ(count(Query::LecsTable), 2) << "the same client again is the same row";
  const LisimAnswer rows = ask(Query::LecsTable, 0, 9);
  EXPECT_EQ(rows.as<lecs_tbl>(9).esiSelector[6], 8);
  EXPECT_NE(rows.as<lecs_tbl>(9).kind, Mapping::learnt);
  EXPECT_EQ(control(Control::LecsDeleteClient, 255, record), Answer::done);
  EXPECT_EQ(control(Control::LecsDeleteClient, 255, record), Answer::noSuchEntry);
  EXPECT_EQ(control(Control::LecsGo, 255), Answer::done) << "with a row left over in the head";
  EXPECT_EQ(control(Control::LesDisable, 16), Answer::badUnit);
  EXPECT_EQ(control(Control::LecsDisable), Answer::done);
  EXPECT_EQ(count(Query::LecsTable), 0);
}

TEST_F(Services, IpServiceAndItsCircuits) {
  ip1577ReqStruct record;
  EXPECT_EQ(control(Control::IpAddPvc, 0, routed(40)), Answer::notRunning);
  EXPECT_EQ(control(Control::IpEnable, 0, record), Answer::done);
  EXPECT_EQ(state(Query::IpState), lisim::ipOperational);
  EXPECT_EQ(control(Control::IpAddPvc, 0, routed(40)), Answer::done);
  EXPECT_EQ(control(Control::IpAddPvc, 0, routed(5)), Answer::vcInUse);
  EXPECT_EQ(count(Query::IpTable), 1);
  EXPECT_EQ(count(Query::IpPvcTable), 1);
  EXPECT_EQ(ask(Query::IpTable, 0, 3).as<ip_tbl>().ipAddress[0], 10);
  EXPECT_EQ(ask(Query::IpPvcTable, 0, 3).as<ip_pvc_tbl>().bytes[4], 40);
  EXPECT_EQ(control(Control::IpDisable), Answer::done);
  EXPECT_EQ(count(Query::IpTable), 0);
  record.config = 2;
  EXPECT_EQ(control(Control::IpEnable, 0, record), Answer::badValue);
}

// By commands.

TEST_F(Services, PeersComeAndGoAndLeaveTheirCircuitsToOthers) {
  const auto command = [&](const std::string& line) { return lisim.command("board 1 " + line); };
  EXPECT_EQ(command("lec 0 connect 02:00:00:00:00:01"), "error: the service does not run\n");
  for (const char* line :
       {"lec 0 on", "lec 0 connect 02:00:00:00:00:01", "lec 0 connect 02:00:00:00:00:02",
        "prefix 47000580ffE1000000f21a26d8", "les 2 on type token-ring mtu 9234 elan plant floor",
        "les 2 join 02:00:00:00:00:03", "ip on", "ip connect 10.0.0.7"})
    EXPECT_EQ(command(line), "ok\n") << line;
  EXPECT_EQ(vcis(), (std::vector{5, 16, 256, 257, 258, 259, 512, 513, 514, 515, 516}));
  const auto second = ask(Query::LecTable, 0, 2).as<lec_tbl_t>(sizeof(lec_tbl_t));
  EXPECT_EQ(second.macAddress[5], 2);
  EXPECT_EQ(second.address[networkPrefixBytes + 5], 2);
  EXPECT_EQ(second.connectionKind, 1);
  EXPECT_EQ(second.vci, 513);
  EXPECT_STREQ(ask(Query::LesStats, 2).as<les_stats>().elanName, "plant floor");
  EXPECT_EQ(ask(Query::LesStats, 2).as<les_stats>().elanType, 2);
  EXPECT_EQ(ask(Query::LesStats, 2).as<les_stats>().mtuType, 3);
  const auto joined = ask(Query::LesTable, 2, 1).as<les_tbl>();
  EXPECT_EQ(joined.address[5], 0xE1);
  EXPECT_EQ(joined.macAddress[5], 3);
  EXPECT_EQ(joined.controlDirectVci, 514);
  EXPECT_EQ(joined.multicastSendVci, 515);
  const auto host = ask(Query::IpTable, 0, 1).as<ip_tbl>();
  EXPECT_EQ(host.ipAddress[0] * 256 + host.ipAddress[3], 10 * 256 + 7);
  EXPECT_EQ(host.vci, 516);

  EXPECT_EQ(command("lec 0 disconnect 02:00:00:00:00:09"), "error: no such entry\n");
  EXPECT_EQ(command("lec 0 disconnect 02:00:00:00:00:01"), "ok\n");
  EXPECT_EQ(command("ip connect 10.0.0.8"), "ok\n");
  EXPECT_EQ(ask(Query::IpTable, 0, 2).as<ip_tbl>(sizeof(ip_tbl)).vci, 512) << "used anew";
  EXPECT_EQ(command("lec 0 connections 900"), "ok\n");
  EXPECT_EQ(count(Query::LecTable), 900);
  EXPECT_EQ(command("lec 0 connections 1"), "ok\n");
  EXPECT_EQ(ask(Query::LecTable, 0, 1).as<lec_tbl_t>().macAddress[5], 2) << "the first one stays";
  EXPECT_EQ(command("les 2 joined 65000"), "error: the table is full\n");
  EXPECT_EQ(command("lec 0 off"), "ok\n");
  EXPECT_EQ(count(Query::LecTable), 0);
}

TEST_F(Services, PeersWaitForTheirService) {
  for (const char* line : {"lec 0 on", "les 2 on", "ip on", "lec 0 connections 2", "les 2 joined 2",
                           "ip connections 2", "link down"})
    EXPECT_EQ(lisim.command(std::string("board 1 ") + line), "ok\n");
  EXPECT_EQ(count(Query::LecTable) + count(Query::LesTable, 2) + count(Query::IpTable), 0);
  EXPECT_EQ(vcis(), (std::vector{5, 16}));
  EXPECT_EQ(control(Control::LecAddPvc, 0, bridged(513)), Answer::vcInUse) << "kept";
  EXPECT_EQ(lisim.command("board 1 les 2 joined 65000"), "error: the table is full\n");
  lisim.command("board 1 link up");
  EXPECT_EQ(count(Query::LesTable, 2), 3) << "as before, with the board's own client";
  for (const int forced : {1, 6}) {
    for (const int unit : {0, 4})
      lisim.command("board 1 lec " + std::to_string(unit) + " state " + std::to_string(forced));
    EXPECT_EQ(state(Query::LecState, 4), static_cast<std::uint32_t>(forced));
    EXPECT_EQ(count(Query::LecTable), 2) << "whatever is reported";
    EXPECT_EQ(ask(Query::LecState, 4).as<lec_state>().ready, 0U);
    EXPECT_EQ(count(Query::VcTable), 2 + 4 + 2 + 4 + 2);
  }
}

TEST_F(Services, CountersAndStatesAreAsCommanded) {
  const auto command = [&](const std::string& line) { return lisim.command("board 1 " + line); };
  for (const char* line : {"counter lecs-rejected 3", "counter lecs-open 5", "counter ip-in 7",
                           "counter ip-dropped-out 8", "counter vc-out 40"})
    EXPECT_EQ(command(line), "ok\n");
  EXPECT_EQ(ask(Query::LecsStats).as<lecs_stats>().connectionsOpen, 0U) << "while it is off";
  for (const char* line : {"lecs on", "ip on", "les 0 on", "les 0 joined 1"}) command(line);
  EXPECT_EQ(ask(Query::LecsStats).as<lecs_stats>().rejectedRequests, 3U);
  EXPECT_EQ(ask(Query::LecsStats).as<lecs_stats>().connectionsOpen, 5U);
  EXPECT_EQ(ask(Query::IpStats).as<ip_stats>().received[0], 7U);
  EXPECT_EQ(ask(Query::IpStats).as<ip_stats>().txDropped[0], 8U);
  const auto joined = ask(Query::LesTable, 0, 1).as<les_tbl>();
  EXPECT_EQ(joined.controlDirectTx + joined.multicastSendTx, 80U);

  struct Case {
    const char* service;
    Query query;
    std::uint32_t real;
  };
  for (const Case& c : {Case{"lec 3", Query::LecState, 0}, Case{"les 0", Query::LesState, 1},
                        Case{"lecs", Query::LecsState, 4}, Case{"ip", Query::IpState, 5}}) {
    const std::string service = c.service;
    const std::uint8_t unit = service == "lec 3" ? 3 : 0;
    command(service + " state 17");
    EXPECT_EQ(state(c.query, unit), 17U) << service;
    command(service + " state auto");
    EXPECT_EQ(state(c.query, unit), c.real) << service;
  }
  command("ilmi 3");
  command("saal 8");
  command("sig 255");
  auto stack = ask(Query::LinkState).as<sig_link_state>(8);
  EXPECT_EQ(stack.ilmi + 256 * stack.saal + 65536 * stack.signalling, 3 + 256 * 8 + 65536 * 255);
  command("sig auto");
  stack = ask(Query::LinkState).as<sig_link_state>(8);
  EXPECT_EQ(stack.signalling, 1);
}

TEST_F(Services, SignallingTakesItsRecord) {
  sigPortCfg_s cfg;
  cfg.port = 1;
  EXPECT_EQ(control(Control::SigUpdate, 0, cfg), Answer::badValue) << "another adapter's";
  cfg.port = 0;
  cfg.NetPrefix[1] = 0x99;
  EXPECT_EQ(control(Control::SigUpdate, 0, cfg), Answer::done);
  EXPECT_EQ(ask(Query::LinkState).as<sig_link_state>(8).address[1], 0x99);
  EXPECT_EQ(control(Control::SigPort, 0, sig_port_req{1, 0, 3}), Answer::badValue);
  EXPECT_EQ(control(Control::SigPort, 0, sig_port_req{1, 4, 2}), Answer::badValue);
  EXPECT_EQ(control(Control::SigPort, 0, sig_port_req{1, 0, 2}), Answer::done);
  EXPECT_EQ(ask(Query::LinkState).as<sig_link_state>(8).signalling, 255);
  EXPECT_EQ(control(Control::SigDebugTrace, 0, LisimBytes(264)), Answer::done);
}

// Whatever is in the records, every request is answered, and every query after it.
TEST_F(Services, OutliveAnyRecord) {
  EXPECT_EQ(lisim.command("board 1 maxvc 70000\nboard 1 vcs 65534"), "ok\nok\n");
  std::mt19937 random(11);
  const auto roll = [&](unsigned sides) { return static_cast<std::uint8_t>(random() % sides); };
  for (int round = 0; round < 4000; ++round) {
    const ControlForm& form = controlForms[random() % std::size(controlForms)];
    LisimBytes payload(form.frameBytes - sizeof(req_param_t));
    const unsigned sides = roll(4) == 0 ? 256 : 3;
    for (std::uint8_t& byte : payload) byte = roll(sides);
    req_param_t head =
        LisimClient::lisimHead(form.prim, form.type, roll(2), form.frameBytes, form.inputBytes);
    head.Unit = roll(16);
    ASSERT_EQ(client.exchange(head, payload).wire.code, 0U) << form.name;
    if (round % 40 != 0) continue;
    for (const QueryForm& query : queryForms)
      ASSERT_EQ(client.query(query.prim, query.type, roll(2), 300).wire.code, 0U);
  }
}

// The clock is the test's.
TEST(ServiceCounters, RestWhileTheServiceDoes) {
  lisim::Simulator host;
  host.adapters.populate(2);
  host.adapters.joinStep = 0;
  const auto run = [&](lisim::Milliseconds now, const std::string& line) {
    std::string error;
    const auto command = lisim::parseCommand(line, error);
    EXPECT_EQ(command ? lisim::runCommand(host, *command, now).error : error, "");
  };
  for (const char* counter : {"lecs-valid", "ip-dropped-out", "vc-in"})
    run(0, std::string("board 1 rate ") + counter + " 10");
  struct Moment {
    const char* command;  // at its start; a second later the counts are these
    std::uint32_t lecs, ip, circuits;
  };
  const Moment moments[] = {{"board 1 signalling up", 0, 0, 10},
                            {"board 1 lecs on", 10, 0, 20},
                            {"board 1 ip on", 20, 10, 30},
                            {"board 1 link down", 20, 10, 30},
                            {"pair 1 2", 30, 20, 40},  // and the backup carries the link at once
                            {"board 2 link down", 30, 20, 40},
                            {"board 2 link up", 40, 30, 50},
                            {"board 1 lecs off", 40, 40, 60},
                            {"board 1 ip off", 40, 40, 70}};
  lisim::Milliseconds now = 0;
  for (const Moment& moment : moments) {
    run(now, moment.command);
    host.adapters.advance(now += 1000);
    EXPECT_EQ(host.adapters.board(0).count(lisim::lecsValid, now, 0), moment.lecs) << now;
    EXPECT_EQ(host.adapters.board(0).count(lisim::ipDroppedOut, now, 0), moment.ip) << now;
    EXPECT_EQ(host.adapters.board(0).count(lisim::vcIn, now, 0), moment.circuits) << now;
  }
}

// What time does, without a process: signalling layer by layer, then what waits for it.
TEST(ServiceTimes, ServicesComeUpInOrder) {
  lisim::Services services;
  services.signalling.portEnabled = true;
  services.clients[0] = {true, lanClient(), 0, 0, {}};
  services.clients[1] = {true, lanClient(), 0, 0, {}};
  services.clients[1].record.config = 1;
  services.ip.enabled = true;
  const std::uint8_t mac[6] = {};
  struct Moment {
    lisim::Milliseconds time;
    int ilmi, saal, signalling, client, ip;
  };
  const Moment moments[] = {{0, 1, 1, 0, 1, 1},   {99, 1, 1, 0, 1, 1},  {100, 2, 1, 0, 1, 1},
                            {200, 2, 9, 0, 1, 1}, {300, 2, 9, 1, 1, 1}, {400, 2, 9, 1, 2, 2},
                            {700, 2, 9, 1, 5, 5}, {800, 2, 9, 1, 6, 5}, {9000, 2, 9, 1, 6, 5}};
  for (const Moment& at : moments) {
    SCOPED_TRACE(at.time);
    const lisim::ServiceView view{services, mac, true, 0, at.time, 100};
    const sig_link_state state = view.linkState();
    EXPECT_EQ(state.ilmi, at.ilmi);
    EXPECT_EQ(state.saal, at.saal);
    EXPECT_EQ(state.signalling, at.signalling);
    EXPECT_EQ(view.clientState(0), static_cast<std::uint32_t>(at.client));
    EXPECT_EQ(view.clientState(1), lisim::lecOperational) << "permanent circuits wait for nobody";
    EXPECT_EQ(view.ipState(), static_cast<std::uint32_t>(at.ip));
    EXPECT_EQ(view.circuits().size(), at.client == 6 ? 6U : 2U);
  }
  const lisim::ServiceView dead{services, mac, false, 9000, 9100, 100};
  EXPECT_EQ(dead.clientState(0), 1U);
  EXPECT_EQ(dead.linkState().signalling, 0);
  const lisim::ServiceView again{services, mac, true, 9200, 9500, 100};
  EXPECT_EQ(again.linkState().signalling, 1);
  EXPECT_EQ(again.clientState(0), 1U) << "joins anew";
}

}  // namespace
