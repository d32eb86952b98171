#include "driver/request.h"

#include <cerrno>

#include "driver/board_records.h"
#include "driver/control_records.h"
#include "driver/service_records.h"
#include "tests/driver/frame_driver.h"

namespace {

struct RequestTest : FrameDriverTest {};

TEST_F(RequestTest, ErrorNumbersBecomeDaiCodes) {
  const struct {
    int error;
    int code;
  } cases[] = {{ENOENT, 201},  {ENXIO, 201}, {ENODEV, 201}, {EACCES, 203}, {EINVAL, 206},
               {ENOBUFS, 205}, {EBUSY, 202}, {EIO, 207},    {ETIME, 207},  {0, 207}};
  for (const auto& c : cases) EXPECT_EQ(dai_syserr(c.error), c.code) << c.error;
}

TEST_F(RequestTest, OpenStoresWhateverOpenGave) {
  int descriptor = 77;
  EXPECT_EQ(dai_open(0, 0, &descriptor), -1);
  EXPECT_EQ(descriptor, -1);
  const ScriptedDriver refusing("li", {}, EACCES);
  EXPECT_EQ(dai_open(0, 2, &descriptor), -1);
  EXPECT_EQ(errno, EACCES);
  EXPECT_EQ(dai_close(0, descriptor), 0);
}

TEST_F(RequestTest, ResultsFollowTheExchangeAndResp) {
  int error = 0;
  std::uint16_t resp = 0;
  startDriver([&](req_param_t& head, Payload&) {
    head.Resp = resp;
    return error;
  });
  const struct {
    int error;
    std::uint16_t resp;
    int result;
    std::uint16_t respAfter;
  } cases[] = {
      {0, 0, 0, 0},      {0, respUntouched, -1, respUntouched}, {0, 5, -1, 5}, {EBUSY, 0, -1, 202},
      {EIO, 9, -1, 207},
  };
  reqParam request(session_, 129, 1, 3, 4, 16, 16, 1, 0, respUntouched);
  for (const auto& c : cases) {
    error = c.error;
    resp = c.resp;
    EXPECT_EQ(request.daiRequest(), c.result);
    EXPECT_EQ(request.lastResult(), c.result);
    EXPECT_EQ(request.header().Resp, c.respAfter);
  }
  for (const Frame& frame : frames()) EXPECT_EQ(frame.head.Resp, respUntouched);
}

TEST_F(RequestTest, FramesWithoutAHeadAreNotSent) {
  startDriver([](req_param_t& head, Payload&) { return head.Resp = 0; });
  EXPECT_EQ(dai_req(session_, nullptr, 0), -1);
  req_param_t head{129, 1, 0, 0, 15, 15, 1, 0, 0};
  EXPECT_EQ(dai_req(session_, &head, 0), -1);
  EXPECT_EQ(head.Resp, 206);
  EXPECT_TRUE(frames().empty());
}

TEST_F(RequestTest, LogsEachRequestWithBothHeads) {
  startDriver([](req_param_t& head, Payload&) {
    head.NRow = 9;
    return EIO;
  });
  captureLog();
  reqParam request(session_, 20, 4, 7, 15, 100, 16, 1, 2, respUntouched);
  request.daiRequest();
  EXPECT_EQ(log(),
            "Realloc:Old Size-     0 NewSize-   100\n"
            "-> Prim:20 Type:4 Link:7 Unit:15 Size:100 SzIO:16 RowM:1 NRow:2 Resp:57005\n"
            "<- Prim:20 Type:4 Link:7 Unit:15 Size:100 SzIO:16 RowM:1 NRow:9 Resp:207\n"
            "Dai Request Failure\n");
}

TEST_F(RequestTest, PrepareMsgGrowsTheFrameAndKeepsItsHeadOnly) {
  InfoMsgHandler query(session_, 20, 4, 1, 2, 32, 32, 3, 4, respUntouched);
  query.data()[0] = 0xAB;
  query.prepareMsg(8);  // fits: nothing moves
  EXPECT_EQ(query.data()[0], 0xAB);
  EXPECT_EQ(query.capacity(), 32);
  EXPECT_EQ(query.header().Size, 24);
  EXPECT_EQ(query.header().SzIO, 16);

  query.prepareMsg(100);
  const req_param_t& head = query.header();
  EXPECT_EQ(query.capacity(), 116);
  EXPECT_EQ(std::vector<int>({head.Prim, head.Type, head.Link, head.Unit, head.Size, head.SzIO,
                              head.RowM, head.NRow, head.Resp}),
            std::vector<int>({20, 4, 1, 2, 116, 16, 3, 4, respUntouched}));
  EXPECT_EQ(Payload(query.data(), query.data() + 100), Payload(100));

  query.prepareMsg(65530);  // wraps to less than a head
  EXPECT_EQ(head.Size, 10);
  EXPECT_EQ(query.capacity(), 116);
  EXPECT_EQ(query.daiRequest(), -1);
}

TEST_F(RequestTest, CountsRowsWithAFrameOfTheHeadAlone) {
  startDriver([](req_param_t& head, Payload&) {
    head.NRow = 40000;
    return head.Resp = 0;
  });
  InfoMsgHandler query(session_, 20, 1, 0, 0, 400, 400, 1, 7, respUntouched);
  EXPECT_EQ(query.GetNumRows(3), 40000);
  const req_param_t sent = frames().at(0).head;
  EXPECT_EQ(sent.Type, 3);
  EXPECT_EQ(sent.NRow, 0);
  EXPECT_EQ(sent.Size, 16);
  driver_.reset();
  EXPECT_EQ(query.GetNumRows(3), 0);
  EXPECT_EQ(query.header().Resp, 201);
}

TEST_F(RequestTest, ASizeTheDriverMadeUpNeverLeavesTheFrame) {
  startDriver([](req_param_t& head, Payload&) {
    head.Size = 65535;
    return head.Resp = 0;
  });
  reqParam request(session_, 129, 1, 0, 0, 36, 16, 1, 0, respUntouched);
  EXPECT_EQ(request.daiRequest(), 0);
  EXPECT_EQ(request.daiRequest(), 0);
  EXPECT_EQ(frames().at(1).payload, Payload(20));
}

TEST_F(RequestTest, EnablesAndDisablesWithTheServicesSizes) {
  startDriver([](req_param_t& head, Payload&) { return head.Resp = 0; });
  reqParam request(session_, 21, 9, 1, 2, 20, 20, 0, 0, respUntouched);
  Enabler enabler(request, 4, 5, 20);
  request.data()[3] = 0x77;
  EXPECT_EQ(enabler.Enable(), 0);
  EXPECT_EQ(enabler.Disable(), 0);
  const std::uint8_t pvc[] = {1, 2, 3};
  request.setInput(6, 24, pvc, sizeof pvc);  // outgrows the frame
  EXPECT_EQ(request.daiRequest(), 0);

  const auto sent = frames();
  const struct {
    int type;
    int size;
    Payload payload;
  } expected[] = {{4, 20, {0, 0, 0, 0x77}}, {5, 16, {}}, {6, 24, {1, 2, 3, 0, 0, 0, 0, 0}}};
  for (std::size_t i = 0; i < std::size(expected); ++i) {
    EXPECT_EQ(sent.at(i).head.Type, expected[i].type);
    EXPECT_EQ(sent[i].head.Size, expected[i].size);
    EXPECT_EQ(sent[i].head.SzIO, expected[i].size);
    EXPECT_EQ(sent[i].head.Unit, 2);
    EXPECT_EQ(sent[i].payload, expected[i].payload);
  }
}

TEST_F(RequestTest, DumpsRecordsInHexadecimal) {
  ip_pvc pvc{{192, 168, 0, 1}, 0x1234, 2, {}};
  std::ostringstream text;
  text << pvc << 255;
  const std::string blank = "  0  0  0  0  0  0  0  0  0  0\n";
  EXPECT_EQ(text.str(), " c0 a8  0  1 34 12  2  0  0  0\n" + blank + blank + blank + blank +
                            "  0  0  0  0  0  0255");
  std::ostringstream row;
  row << vc_tbl{-1, {}, 7, 4294967295U};
  EXPECT_EQ(row.str(), "-1 7 4294967295");
}

}  // namespace
