// The program `lisim` as it is started, told what to do, traced and ended.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fcntl.h>
#include <cerrno>

#include "driver/board_records.h"
#include "driver/control_types.h"
#include "driver/query_types.h"
#include "tests/support/lisim_client.h"

namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::MatchesRegex;
using testing::StartsWith;

TEST(Process, SaysItIsReadyAndCleansUp) {
  for (const int signal : {SIGTERM, SIGINT}) {
    LisimProcess lisim;
    EXPECT_EQ(lisim.readyLine(), "lisim: ready on " + lisim.device());
    EXPECT_EQ(lisim.run().end(signal), 0);
    EXPECT_FALSE(std::filesystem::exists(lisim.device()));
    EXPECT_EQ(lisim.run().line(), "");
  }
  LisimProcess lisim;
  EXPECT_EQ(lisim.command("quit"), "ok\n");
  EXPECT_EQ(lisim.run().end(0), 0);
}

TEST(Process, ReplacesOnlyADeadSocket) {
  LisimProcess lisim;
  LisimRun second({"--device", lisim.device()});
  EXPECT_EQ(second.end(0), 1);
  EXPECT_THAT(second.line(), HasSubstr("another process listens there"));
  EXPECT_EQ(LisimClient(lisim.device()).open(O_RDONLY), 0U);

  lisim.run().end(SIGKILL);
  ASSERT_TRUE(std::filesystem::exists(lisim.device()));
  LisimRun third({"--device", lisim.device()});
  EXPECT_THAT(third.line(), StartsWith("lisim: ready"));

  LisimScratch scratch;
  LisimRun onFile({"--device", scratch.write("precious", "text")});
  EXPECT_EQ(onFile.end(0), 1);
  EXPECT_EQ(std::filesystem::file_size(scratch.file("precious")), 4U);
}

TEST(Process, WrongOptionsEndIt) {
  struct Case {
    std::vector<std::string> arguments;
    const char* words;
  };
  const Case cases[] = {
      {{}, "--device is missing"},
      {{"--device"}, "--device wants a path"},
      {{"--device", "/nowhere/li", "--boards", "9"}, "--boards wants a number from 0 to 8"},
      {{"--device", "/nowhere/li", "--boards", "2x"}, "--boards wants a number from 0 to 8"},
      {{"--device", "/nowhere/li", "--seed", "-1"}, "--seed wants"},
      {{"--device", "/nowhere/li", "--scenario", "/nowhere/s"}, "/nowhere/s: No such file"},
      {{"--device", "/nowhere/li", "--scenario", "/"}, "/: cannot be read"},
      {{"--verbose"}, "unknown option '--verbose'"},
  };
  for (const Case& one : cases) {
    LisimRun run(one.arguments);
    EXPECT_EQ(run.end(0), 2) << one.words;
    EXPECT_THAT(run.line(), HasSubstr(one.words));
  }
  LisimRun help({"--help"});
  EXPECT_EQ(help.end(0), 0);
  EXPECT_THAT(help.line(), StartsWith("usage: lisim"));
}

TEST(Process, ScenarioErrorsNameTheirLine) {
  struct Case {
    const char* line;
    const char* words;
  };
  const Case cases[] = {
      {"bord 1 present", "unknown command 'bord'"},
      {"board 0 present", "expected a board number from 1 to 8, not '0'"},
      {"board 1 link sideways", "expected one of down, up, not 'sideways'"},
      {"board 1 link", "expected one of down, up at the end"},
      {"board 1 link up now", "'now' is too much here"},
      {"board 1 mac 02:4C:49:00:01", "expected a MAC address"},
      {"board 1 mac 02:4C:49:00:01-00", "expected a MAC address"},
      {"board 1 vcs 65535", "expected a number of rows"},
      {"board 1 alarm red on", "expected one of los, lof"},
      {"fault 1 4 page 0 code 1", "expected a number from 1, not '0'"},
      {"fault 1 4 errno EFOO", "expected one of EPERM"},
      {"fault 1 4", "the line ends too soon"},
      {"at 5m show", "expected a time"},
      {"at 5s", "no command behind 'at'"},
      {"board 1 les 16 on", "expected a client's or server's number"},
      {"board 1 les 1 on type atm", "expected one of ethernet, token-ring"},
      {"board 1 ip connect 10.0.0.256", "expected an IP address"},
      {"board 1 prefix 4700", "expected a network prefix"},
      {"at 5s bord", "unknown command 'bord'"},
      {"at 5s at 6s show", "unknown command 'at'"},
      {"switch 1", "the board has no link to switch"},
  };
  LisimScratch scratch;
  for (const Case& one : cases) {
    const std::string file =
        scratch.write("scenario", std::string("# two lines\n\n") + one.line + " # comment\n");
    LisimRun run({"--device", scratch.file("li"), "--scenario", file});
    EXPECT_EQ(run.end(0), 2) << one.line;
    EXPECT_THAT(run.line(), StartsWith("lisim: " + file + ":3: " + one.words));
  }
}

// Every state of the sample that the applet's table has a colour for.
TEST(Process, SampleScenario) {
  LisimScratch scratch;
  LisimRun run(
      {"--device", scratch.file("li"), "--scenario", ONDRELLE_SOURCE_DIR "/data/demo.scenario"});
  ASSERT_THAT(run.line(), StartsWith("lisim: ready"));
  LisimClient client(scratch.file("li"), O_RDONLY);
  const auto boards = client.query(primAalQuery, aalBoardState, 0, 16).as<board_state>();
  EXPECT_EQ(boards.numBoards, 6);
  EXPECT_EQ(boards.boardMask, 0x3F);
  const rls_status states[] = {{0, 0}, {1, 2}, {0, 1}, {2, -1}, {9, -1}};
  for (std::uint8_t link = 0; link < 5; ++link) {
    const auto status = client.query(primAalQuery, aalRlsStatus, link, 4).as<rls_status>();
    EXPECT_EQ(status.linkState, states[link].linkState) << +link;
    EXPECT_EQ(status.activeLink, states[link].activeLink) << +link;
    EXPECT_GT(client.query(primVccQuery, vccNRows, link).head.NRow, 0);
  }
  EXPECT_NE(client.query(primAalQuery, aalRlsStatus, 5, 4).head.Resp, 0);
}

TEST(Process, CountersGrowAsTimePasses) {
  LisimProcess lisim("board 1 vcs 1\nboard 1 rate vc-in 100000\nboard 1 rate packets-out 50000\n");
  LisimClient client(lisim.device(), O_RDONLY);
  const auto packets = [&] {
    return client.query(primAalQuery, aalStats, 0, 100).as<aal_stats>().txPackets;
  };
  const auto cells = [&] {
    req_param_t head = LisimClient::lisimHead(primVccQuery, vccTable, 0, 36, 16);
    head.NRow = 1;
    return client.exchange(head, LisimBytes(20)).as<vc_tbl>().counterIn;
  };
  const auto firstPackets = packets();
  const auto firstCells = cells();
  EXPECT_TRUE(lisimWaitFor([&] { return packets() > firstPackets && cells() > firstCells; }));
}

TEST(Process, ControlSocketAnswersEachLine) {
  LisimProcess lisim;
  EXPECT_EQ(lisim.command("board 1 medium utp\n\nboard 9 absent\nboard 2 link down"),
            "ok\nok\nerror: expected a board number from 1 to 8, not '9'\nok\n");
  EXPECT_THAT(lisim.command("show"), MatchesRegex("number 2 mask 3 .*medium utp.*board 2 present"
                                                  ".* state 2 .*board 8 absent\nok\n"));
  EXPECT_EQ(lisim.command("fault 1 * board 2 page 3 delay 1s times 4\nshow").substr(0, 3), "ok\n");
  EXPECT_THAT(lisim.command("show"), EndsWith("fault 1 * board 2 page 3 delay 1000 times 4\nok\n"));
  EXPECT_EQ(lisim.command(std::string(5000, 'x')), "error: the line is too long\n");
  EXPECT_THAT(lisim.command("show"), EndsWith("ok\n"));
}

TEST(Process, TimedCommandsWaitForTheirTime) {
  LisimProcess lisim("at 60s quit\nat 50ms board 1 link down\n");
  EXPECT_EQ(lisim.command("at 1ms board 2 link down"), "ok\n");
  const auto down = [&](const std::string& board) {
    return testing::Value(lisim.command("show"),
                          MatchesRegex(".*board " + board + " present [^\n]* link down.*"));
  };
  EXPECT_TRUE(lisimWaitFor([&] { return down("1") && down("2"); }));
  EXPECT_EQ(lisim.command("at 1ms switch 1"), "ok\n");
  EXPECT_EQ(lisim.run().line(), "lisim: control: the board has no link to switch");
}

TEST(Process, CommandsAreDoneAgainAndAgain) {
  LisimProcess lisim("every 40ms board 1 counter cells-in 7\nat 20ms every 40ms switch 1\n");
  for (int i = 0; i < 3; ++i)
    EXPECT_THAT(lisim.run().line(), testing::EndsWith("the board has no link to switch"));
  EXPECT_THAT(lisim.command("every"), StartsWith("error: expected a time"));
  EXPECT_THAT(lisim.command("every 0 show"), StartsWith("error: expected a time"));
  EXPECT_THAT(lisim.command("at 1s every 1s"), StartsWith("error: no command behind 'every'"));
}

TEST(Process, TraceHasALineForEverything) {
  LisimProcess lisim("fault 129 16 silence\n");
  {
    LisimClient client(lisim.device(), O_RDWR);
    client.request(primPhyControl, phySetVpi, 1, {7, 0, 0, 0});
    client.sendMessage({9, 2, 0, 0, 1}, {0xAB});
    client.receive();
    client.post({primAalQuery, aalRlsStatus, 0, 0, 20, 16, 1, 0, respUntouched}, LisimBytes(4));
  }
  ASSERT_TRUE(lisimWaitFor([&] { return lisim.trace().size() == 5; }));
  const std::vector<std::string> lines = lisim.trace();
  const std::string start = "time=[0-9]+ session=1 event=";
  const std::string uid = std::to_string(getuid());
  EXPECT_THAT(lines[0], MatchesRegex(start + "open flags=2 uid=" + uid + " errno=0"));
  EXPECT_THAT(lines[1],
              MatchesRegex(start + "request serial=1 cmd=19456 timeout=0 length=20 prim=130 type=2 "
                                   "link=1 unit=0 size=20 szio=20 rowm=1 nrow=0 resp=57005 "
                                   "in=07000000 -> after=0 errno=0 prim=130 type=2 link=1 unit=0 "
                                   "size=20 szio=20 rowm=1 nrow=0 resp=0 out=07000000 "
                                   "answer=\"done\""));
  EXPECT_THAT(lines[2], MatchesRegex(start + "malformed why=\"unknown kind\" bytes=0900.*ab "
                                             "errno=22"));
  EXPECT_THAT(lines[3], MatchesRegex(start + "request .* in=- -> silence"));
  EXPECT_THAT(lines[4], MatchesRegex(start + "close why=\"closed by the peer\""));
}

}  // namespace
