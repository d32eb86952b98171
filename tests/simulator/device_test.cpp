// The device as its clients meet it, over the real socket of the real program.
#include <fcntl.h>
#include <gtest/gtest.h>

#include <cerrno>
#include <numeric>

#include "driver/board_records.h"
#include "driver/control_types.h"
#include "driver/query_types.h"
#include "simulator/answer_code.h"
#include "tests/support/lisim_client.h"

namespace {

using lisim::Answer;

std::uint16_t resp(Answer answer) {
  return static_cast<std::uint16_t>(answer);
}

template <class... Numbers>
LisimBytes words(Numbers... numbers) {
  LisimBytes bytes;
  for (const std::int32_t number : {static_cast<std::int32_t>(numbers)...}) {
    const LisimBytes word = lisimBytesOf(number);
    bytes.insert(bytes.end(), word.begin(), word.end());
  }
  return bytes;
}

LisimBytes debugTraceInput() {
  LisimBytes input(11);
  input[9] = 2;
  input[10] = 1;
  return input;
}

TEST(Device, BoardRecords) {
  LisimProcess lisim(
      "boards 3\nboard 2 silent\nboard 3 absent\nnumber 5\nrevision " + std::string(50, 'r') +
      "\nboard 1 mac 0A:1b:2C:3D:4E:FF\nboard 1 maxvc 70000\nboard 1 medium oc3-sm\n"
      "board 1 alarm lof on\nboard 1 alarm lop on\nboard 1 interface off\nboard 1 link down\n");
  LisimClient client(lisim.device(), O_RDONLY);

  const auto boards = client.query(primAalQuery, aalBoardState, 0, 16).as<board_state>();
  EXPECT_EQ(boards.numBoards, 5);
  EXPECT_EQ(boards.boardMask, 3);
  EXPECT_EQ(client.query(primAalQuery, aalPackageRev, 0, 40).payload, LisimBytes(40, 'r'));
  EXPECT_EQ(client.query(primVccQuery, vccBoardMaxVC, 0, 4).as<std::uint32_t>(), 70000U);

  const auto line = client.query(primAalQuery, aalSuniStats, 0, 236).as<suni_stats>();
  EXPECT_EQ(line.medium, 3U);
  EXPECT_EQ(line.answers, 0U);
  EXPECT_EQ((std::vector{line.linkUp, line.los, line.lof, line.oof, line.ferf, line.ais, line.lop}),
            (std::vector<std::uint32_t>{0, 1, 1, 0, 0, 0, 1}));

  const LisimBytes expected{0x0A, 0x1B, 0x2C, 0x3D, 0x4E, 0xFF};
  LisimBytes mac = client
                       .request(primAalQuery, aalBoardMacAddress, 0,
                                {1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0})
                       .payload;
  mac.resize(expected.size());
  EXPECT_EQ(mac, expected);
  for (const auto& [number, answer] : {std::pair{2, Answer::boardSilent},
                                       {3, Answer::noBoard},
                                       {0, Answer::badLink},
                                       {9, Answer::badLink}}) {
    LisimBytes input(16);
    input[0] = static_cast<std::uint8_t>(number);
    EXPECT_EQ(client.request(primAalQuery, aalBoardMacAddress, 0, input).head.Resp, resp(answer))
        << number;
  }
}

TEST(Device, IdleServicesAnswerInFull) {
  struct Idle {
    Primitive prim;
    std::uint16_t type;
    std::size_t bytes;
  };
  const Idle records[] = {{primLecQuery, serviceState, 16}, {primLecQuery, serviceStats, 940},
                          {primLesQuery, serviceState, 12}, {primLesQuery, serviceStats, 116},
                          {primLecsQuery, serviceState, 8}, {primLecsQuery, serviceStats, 48},
                          {primIpQuery, serviceState, 16},  {primIpQuery, serviceStats, 160},
                          {primLecQuery, serviceNRows, 0},  {primLesQuery, serviceTable, 64},
                          {primLecsQuery, serviceNRows, 0}, {primIpQuery, serviceTable, 56},
                          {primIpQuery, ipPvcNRows, 0},     {primIpQuery, ipPvcTable, 20}};
  LisimProcess lisim;
  LisimClient client(lisim.device(), O_RDONLY);
  for (const Idle& one : records) {
    const LisimAnswer answer = client.query(one.prim, one.type, 0, one.bytes);
    EXPECT_EQ(answer.head.Resp, 0) << one.prim << ' ' << one.type;
    EXPECT_EQ(answer.head.NRow, 0);
    EXPECT_EQ(answer.payload, LisimBytes(one.bytes));
    if (one.bytes < 8 || one.type >= serviceTable) continue;
    EXPECT_EQ(client.query(one.prim, one.type, 0, one.bytes - 1).head.Resp, resp(Answer::noRoom));
  }
  const LisimAnswer states = client.query(primSigQuery, sigLinkState, 0, 272);
  EXPECT_EQ(states.as<std::uint32_t>(8 + 2), 0x00FFFFFFU);
}

TEST(Device, RightsToWrite) {
  struct Case {
    Primitive prim;
    std::uint16_t type;
    LisimBytes input;
    std::uint32_t readError;
  };
  const Case cases[] = {
      {primPhyControl, phySetFraming, words(1), EACCES},
      {primPhyControl, phySetVpi, words(7), EACCES},
      {primPhyControl, phySetRedundantLink, words(1, 1, 0), EACCES},
      {primPhyControl, phySwitchLink, {}, 0},
      {primSigControl, 3, debugTraceInput(), 0},
      {primSigControl, 2, LisimBytes(272), EACCES},
      {primLecControl, 2, {}, EACCES},
      {primLesControl, 2, {}, EACCES},
      {primLecsControl, 5, {}, EACCES},
      {primIpControl, 2, {}, EACCES},
  };
  LisimProcess lisim;
  LisimClient reader(lisim.device(), O_RDONLY);
  LisimClient writer(lisim.device(), O_RDWR);
  for (const Case& one : cases) {
    const LisimAnswer refused = reader.request(one.prim, one.type, 0, one.input);
    EXPECT_EQ(refused.wire.code, one.readError) << one.prim << ' ' << one.type;
    EXPECT_EQ(refused.payload, one.input);
    EXPECT_EQ(writer.request(one.prim, one.type, 0, one.input).wire.code, 0U);
  }
  const std::string shown = lisim.command("show");
  EXPECT_NE(shown.find("with backup 2 manual link up medium oc3-mm framing sdh vpi 7"),
            std::string::npos)
      << shown;
  EXPECT_NE(shown.find("debug 2 "), std::string::npos) << shown;
}

TEST(Device, OnlyItsOwnUserAndRootMayOpenForWriting) {
  if (getuid() != 0) GTEST_SKIP() << "only root can become somebody else";
  LisimProcess lisim;
  const pid_t other = fork();
  if (other == 0) {
    if (setuid(65534) != 0) _exit(1);
    const bool right = LisimClient(lisim.device()).open(O_RDWR) == EACCES &&
                       LisimClient(lisim.device()).open(O_WRONLY) == EACCES &&
                       LisimClient(lisim.device()).open(O_RDONLY) == 0 &&
                       lisimConnect(lisim.device() + "/../control", SOCK_STREAM) == -1;
    _exit(right ? 0 : 2);
  }
  int status = 0;
  waitpid(other, &status, 0);
  EXPECT_EQ(status, 0);
}

TEST(Device, MalformedMessagesAreAnsweredOrEndTheSession) {
  struct Case {
    const char* name;
    WireHead head;
    std::size_t body;
    std::uint32_t error;
  };
  const Case cases[] = {
      {"unknown kind", {3, 8, 0, 0, 0}, 0, EINVAL},
      {"exchange that says too much", {wireExchange, 8, liCommand, 0, 17}, 16, EINVAL},
      {"exchange that says too little", {wireExchange, 8, liCommand, 0, 15}, 16, EINVAL},
      {"length that wraps", {wireExchange, 8, liCommand, 0, 0xFFFFFFFF}, 16, EINVAL},
      {"unknown command", {wireExchange, 8, liCommand + 1, 0, 16}, 16, EINVAL},
      {"frame without a whole head", {wireExchange, 8, liCommand, 0, 15}, 15, EINVAL},
      {"no frame", {wireExchange, 8, liCommand, 0, 0}, 0, EINVAL},
      {"second open", {wireOpen, 0, 0, 0, 0}, 0, EINVAL},
      {"too long", {wireExchange, 8, liCommand, 0, 65536}, 65536, EMSGSIZE},
      {"much too long", {wireExchange, 8, liCommand, 0, 150000}, 150000, EMSGSIZE},
  };
  LisimProcess lisim;
  LisimClient client(lisim.device(), O_RDONLY);
  for (const Case& one : cases) {
    ASSERT_TRUE(client.sendMessage(one.head, LisimBytes(one.body))) << one.name;
    const auto answer = client.receive();
    ASSERT_TRUE(answer) << one.name;
    EXPECT_EQ(answer->wire.kind, one.head.kind) << one.name;
    EXPECT_EQ(answer->wire.serial, one.head.serial) << one.name;
    EXPECT_EQ(answer->wire.code, one.error) << one.name;
  }
  EXPECT_EQ(client.query(primAalQuery, aalBoardState, 0, 16).head.Resp, 0);

  LisimClient early(lisim.device());
  EXPECT_EQ(early.query(primAalQuery, aalBoardState, 0, 16).wire.code, std::uint32_t{EBADF});
  for (const std::size_t size : {0U, 1U, 19U}) {
    LisimClient brief(lisim.device());
    ASSERT_TRUE(brief.sendRaw(LisimBytes(size))) << size;
    EXPECT_FALSE(brief.receive()) << size;
    EXPECT_TRUE(brief.hungUp()) << size;
  }
  EXPECT_EQ(client.query(primAalQuery, aalBoardState, 0, 16).head.Resp, 0);
}

TEST(Device, MalformedFramesGetACode) {
  struct Case {
    req_param_t head;
    std::size_t payload;
    Answer answer;
  };
  const std::uint16_t raw = respUntouched;
  const Case cases[] = {
      {{primAalQuery, aalStats, 0, 0, 117, 16, 1, 0, raw}, 100, Answer::badSize},
      {{primAalQuery, aalStats, 0, 0, 15, 15, 1, 0, raw}, 0, Answer::badSize},
      {{primAalQuery, aalStats, 0, 0, 116, 117, 1, 0, raw}, 100, Answer::badInput},
      {{primAalQuery, aalStats, 0, 0, 116, 15, 1, 0, raw}, 100, Answer::badInput},
      {{primAalQuery, aalStats, 0, 0, 115, 16, 1, 0, raw}, 99, Answer::noRoom},
      {{primAalQuery, aalStats, 8, 0, 116, 16, 1, 0, raw}, 100, Answer::badLink},
      {{primAalQuery, aalStats, 255, 0, 116, 16, 1, 0, raw}, 100, Answer::badLink},
      {{primAalQuery, aalStats, 2, 0, 116, 16, 1, 0, raw}, 100, Answer::noBoard},
      {{primAalQuery, aalStats, 0, 16, 116, 16, 1, 0, raw}, 100, Answer::badUnit},
      {{primAalQuery, 99, 0, 0, 116, 16, 1, 0, raw}, 100, Answer::unknownType},
      {{primAalQuery, aalBoardMacAddress, 0, 0, 32, 16, 1, 0, raw}, 16, Answer::badInput},
      {{77, 1, 0, 0, 116, 16, 1, 0, raw}, 100, Answer::unknownPrimitive},
      {{primVccQuery, vccTable, 0, 0, 36, 16, 0, 1, raw}, 20, Answer::badRow},
      {{primPhyControl, phySetFraming, 0, 0, 16, 16, 1, 0, raw}, 0, Answer::badInput},
      {{primPhyControl, phySetVpi, 0, 0, 20, 16, 1, 0, raw}, 4, Answer::badInput},
      {{primPhyControl, phySwitchLink, 0, 0, 16, 16, 1, 0, raw}, 0, Answer::nothingToSwitch},
  };
  LisimProcess lisim;
  LisimClient client(lisim.device(), O_RDWR);
  for (const Case& one : cases) {
    const LisimAnswer answer = client.exchange(one.head, LisimBytes(one.payload, 0xA5));
    EXPECT_EQ(answer.wire.code, 0U);
    EXPECT_EQ(answer.head.Resp, resp(one.answer)) << one.head.Prim << ' ' << one.head.Type;
    EXPECT_EQ(answer.payload, LisimBytes(one.payload, 0xA5));
  }
  for (const LisimBytes& input : {words(1, 0, 0), words(1, 8, 0)})
    EXPECT_EQ(client.request(primPhyControl, phySetRedundantLink, 0, input).head.Resp,
              resp(Answer::badValue));
  EXPECT_EQ(client.request(primPhyControl, phySetVpi, 0, words(256)).head.Resp,
            resp(Answer::badValue));
}

// Reads a table as the applet does: the frame goes back as it came.
std::vector<int> readPages(LisimClient& client, std::uint16_t page, std::size_t pages,
                           std::size_t room) {
  std::vector<int> vcis;
  client.query(primVccQuery, vccNRows, 0);
  LisimAnswer answer;
  answer.head = LisimClient::lisimHead(primVccQuery, vccTable, 0, 16 + room, 16);
  answer.head.NRow = page;
  answer.payload.resize(room);
  for (std::size_t i = 0; i < pages; ++i) {
    answer.head.Resp = respUntouched;
    answer = client.exchange(answer.head, answer.payload);
    if (answer.head.Resp != 0) continue;
    for (std::size_t row = 0; row < answer.head.NRow; ++row)
      vcis.push_back(answer.as<vc_tbl>(row * sizeof(vc_tbl)).vci);
  }
  return vcis;
}

TEST(Device, TablesComeInPages) {
  LisimProcess lisim("board 1 vcs 120\n");
  LisimClient client(lisim.device(), O_RDONLY);
  EXPECT_EQ(client.query(primVccQuery, vccNRows, 0).head.NRow, 120);
  std::vector<int> all(120);
  std::iota(all.begin(), all.end(), 31);
  all[0] = 5;
  all[1] = 16;
  EXPECT_EQ(readPages(client, 50, 3, 1000), all);
  EXPECT_EQ(readPages(client, 50, 5, 1000), all) << "reads behind the end bring nothing";
  EXPECT_EQ(readPages(client, 50, 12, 219), all) << "ten rows have room";
  EXPECT_EQ(readPages(client, 200, 1, 2400), all);
  EXPECT_EQ(readPages(client, 50, 1, 19).size(), 0U) << "no room for one row";

  EXPECT_EQ(lisim.command("board 1 vcs 65534"), "ok\n");
  const std::vector<int> most = readPages(client, 3000, 22, 60000);
  EXPECT_EQ(most.size(), 65534U);
}

TEST(Device, FaultsSpoilWhatTheyName) {
  LisimProcess lisim("board 1 vcs 120\n");
  LisimClient client(lisim.device(), O_RDONLY);
  const auto state = [&] { return client.query(primAalQuery, aalRlsStatus, 1, 4); };
  const auto fault = [&](const std::string& words) {
    EXPECT_EQ(lisim.command("fault " + words), "ok\n") << words;
  };
  fault("129 16 board 2 code 77 times 2");
  EXPECT_EQ(client.query(primAalQuery, aalRlsStatus, 0, 4).head.Resp, 0);
  EXPECT_EQ(state().head.Resp, 77);
  EXPECT_EQ(state().head.Resp, 77);
  EXPECT_EQ(state().head.Resp, 0);
  fault("129 16 after 2 code 78 times 1");
  for (const int resp : {0, 0, 78, 0}) EXPECT_EQ(state().head.Resp, resp);
  fault("129 * errno EBUSY times 1");
  EXPECT_EQ(state().wire.code, std::uint32_t{EBUSY});
  fault("* 16 untouched times 1");
  EXPECT_EQ(state().head.Resp, respUntouched);
  EXPECT_EQ(state().head.Resp, 0);

  fault("1 4 rows 7");
  EXPECT_EQ(readPages(client, 50, 3, 1000).size(), 21U);
  EXPECT_EQ(lisim.command("fault clear"), "ok\n");
  fault("1 4 page 2 code 9");
  EXPECT_EQ(readPages(client, 50, 3, 1000).size(), 100U) << "a refused page moves nothing on";
  EXPECT_EQ(readPages(client, 50, 3, 1000).size(), 100U) << "pages count anew";
  EXPECT_EQ(lisim.command("fault clear"), "ok\n");

  fault("129 1 delay 80 times 1");
  fault("129 5 silence times 1");
  ASSERT_TRUE(client.post({primAalQuery, aalPackageRev, 0, 0, 56, 16, 1, 0, respUntouched},
                          LisimBytes(40)));
  ASSERT_TRUE(client.post({primAalQuery, aalBoardState, 0, 0, 32, 16, 1, 0, respUntouched},
                          LisimBytes(16)));
  EXPECT_EQ(state().head.Type, aalRlsStatus) << "the late one does not hold up others";
  EXPECT_EQ(client.receive().value_or(LisimAnswer{}).head.Type, aalBoardState);
  EXPECT_FALSE(client.receive(0)) << "the silent one never comes";

  fault("129 16 hangup times 1");
  EXPECT_EQ(state().wire.code, 9999U);
  EXPECT_TRUE(client.hungUp());
  EXPECT_EQ(LisimClient(lisim.device()).open(O_RDONLY), 0U);
}

TEST(Device, ClientsThatDoNotReadOrGoAreLetGo) {
  LisimProcess lisim("board 1 vcs 60\nfault 129 1 delay 30ms\n");
  LisimClient lazy(lisim.device(), O_RDONLY);
  LisimClient other(lisim.device(), O_RDONLY);
  const req_param_t head{primAalQuery, aalStats, 0, 0, 65000, 16, 1, 0, respUntouched};
  EXPECT_TRUE(lisimWaitFor([&] {
    lazy.post(head, LisimBytes(65000 - 16));
    return lisim.trace().back().find("event=close") != std::string::npos;
  }));
  EXPECT_EQ(other.query(primAalQuery, aalStats, 0, 100).head.Resp, 0);
  {
    LisimClient gone(lisim.device(), O_RDONLY);
    gone.post({primAalQuery, aalBoardState, 0, 0, 32, 16, 1, 0, respUntouched}, LisimBytes(16));
  }
  EXPECT_EQ(other.query(primAalQuery, aalBoardState, 0, 16).head.Resp, 0);
}

}  // namespace
