// The control requests as frames: every byte at its documented place.
#include <array>

#include "atm/ip1577_record.h"
#include "atm/lec_record.h"
#include "atm/pvc_records.h"
#include "driver/ip1577_request.h"
#include "driver/lec_request.h"
#include "driver/lecs_request.h"
#include "driver/les_request.h"
#include "driver/phy_request.h"
#include "driver/sig_request.h"
#include "tests/driver/frame_driver.h"

namespace {

// A payload put together by offsets.
struct Expected {
  explicit Expected(std::size_t size) : bytes(size) {}
  Expected& number(std::size_t offset, std::uint32_t value, std::size_t size = 4) {
    for (; size > 0; --size, value >>= 8) bytes[offset++] = static_cast<std::uint8_t>(value);
    return *this;
  }
  Expected& text(std::size_t offset, const std::string& value) {
    std::copy(value.begin(), value.end(), bytes.begin() + static_cast<std::ptrdiff_t>(offset));
    return *this;
  }
  // Bytes counting up from `first`.
  Expected& run(std::size_t offset, std::size_t count, std::uint8_t first) {
    for (; count > 0; --count) bytes[offset++] = first++;
    return *this;
  }
  Payload bytes;
};

// An address whose bytes count up from 1.
atmAddress countingAddress() {
  unsigned char bytes[atmAddressBytes];
  for (unsigned char i = 0; i < atmAddressBytes; ++i) bytes[i] = static_cast<unsigned char>(i + 1);
  atmAddress address = dfltAtmAddress;
  address.fromHex(bytes);
  return address;
}

const std::string fullName(32, 'n');

AtmLEC someClient() {
  AtmLEC lec;
  lec.Lecs = 1;
  lec.Mfs = 3;
  lec.ElanType = 1;
  lec.Config = 1;
  lec.L3Mtu = 1500;
  lec.defaultPcr = {353207, 150, megabitsPerSecond};
  lec.address = countingAddress();
  fullName.copy(lec.ElanName, sizeof lec.ElanName);
  return lec;
}

AtmLES someServer() {
  AtmLES les;
  les.ElanNameStrict = 1;
  les.Mfs = 2;
  les.MfsStrict = 1;
  les.ElanType = 2;
  std::strcpy(les.ElanName, "eng");
  return les;
}

AtmIP1577 someIp() {
  AtmIP1577 ip;
  ip.Config = 1;
  std::strcpy(ip.ServerIPAddress, "010.1.2.3");
  std::strcpy(ip.ServerIPMask, "255.255.255.255");
  ip.address = countingAddress();
  return ip;
}

lecs_req someConfigServer() {
  AtmLECS lecs;
  lecs.ElanType = 2;
  lecs.EtherMfs = 1;
  lecs.TRMfs = 3;
  lecs.address = countingAddress();
  return payloadOf<lecs_req>(lecs);
}

const AtmBridgedPvc bridged{{{2, 3, 4, 5, 6, 7}}, 0x1234, 1, 1, 9};
const AtmRoutedPvc routed{{{10, 20, 30, 40}}, 0x1234, 1, 1, 9};

struct ControlTest : FrameDriverTest {
  void serve() {
    startDriver([this](req_param_t& head, Payload&) {
      head.Resp = head.Type == refusedType ? 9 : 0;
      return 0;
    });
    captureLog();
  }
  std::uint16_t refusedType = 0;
};

TEST_F(ControlTest, FramesAreExactToTheByte) {
  const Expected lecStart = Expected(76)
                                .number(0, 1)
                                .run(4, 20, 1)
                                .number(24, 3)
                                .text(28, fullName)
                                .number(60, 1)
                                .number(64, 1)
                                .number(68, 1500)
                                .number(72, 353207);
  const Expected lesStart =
      Expected(52).text(0, "eng").number(32, 1).number(36, 2).number(40, 1).number(44, 2);
  const Expected ipStart =
      Expected(40).number(4, 0x0a010203).number(8, 0xffffffff).run(16, 20, 1).number(36, 1);
  const Expected server =
      Expected(44).run(0, 20, 1).number(20, 2).number(24, 1).number(28, 3).run(32, 7, 14);
  const Expected bridge =
      Expected(60).run(0, 6, 2).number(6, 0x1234, 2).number(8, 1, 1).number(9, 1, 1);
  const Expected route = Expected(56)
                             .number(0, 10 | 20 << 8 | 30 << 16 | 40U << 24)
                             .number(4, 0x1234, 2)
                             .number(6, 1, 1);
  const rls_req pair{1, -1, 1};
  struct Case {
    const char* name;
    std::function<int(int session)> send;
    req_param_t head;
    Payload payload;
    const char* line;
  };
  const auto head = [](Primitive prim, std::uint16_t type, std::uint8_t unit, std::uint16_t size) {
    return req_param_t{prim, type, 5, unit, size, size, 0, 0, respUntouched};
  };
  const Case cases[] = {
      {"LEC enable",
       [](int s) { return lecRequest(s, 5, 7).enable(payloadOf<lecReqStruct>(someClient())); },
       head(primLecControl, 1, 7, 92), lecStart.bytes, "LEC_INIT\n"},
      {"LEC disable",
       [](int s) { return lecRequest(s, 5, 7).disable(); },
       head(primLecControl, 2, 7, 16),
       {},
       "LEC_DISABLE\n"},
      {"LEC base disable",
       [](int s) { return lecRequest(s, 5, 7).Disable(); },
       head(primLecControl, 2, 7, 16),
       {},
       "-> "},
      {"bridged PVC",
       [](int s) { return lecRequest(s, 5, 7).addPvc(payloadOf<bdgPvcReqStruct>(bridged)); },
       head(primLecControl, 3, 7, 76), bridge.bytes, "BRDG_PVCADD\n"},
      {"enhanced VC", [](int s) { return lecRequest(s, 5, 7).setEnhancedVC(1); },
       head(primLecControl, 7, 7, 20), Expected(4).number(0, 1).bytes, "set_ENHANCED: 1\n"},
      {"LES enable",
       [](int s) { return lesRequest(s, 5, 15).enable(payloadOf<lesReqStruct>(someServer())); },
       head(primLesControl, 1, 15, 68), lesStart.bytes, "LES_ENABLE\n"},
      {"LES disable",
       [](int s) { return lesRequest(s, 5, 15).disable(); },
       head(primLesControl, 2, 15, 16),
       {},
       "LES_DISABLE\n"},
      {"LECS go",
       [](int s) { return lecsRequest(s, 5, 0).go(); },
       head(primLecsControl, 5, 0, 16),
       {},
       "LECS_GO\n"},
      {"LECS restart",
       [](int s) { return lecsRequest(s, 0, 3).restart(5, 0); },
       head(primLecsControl, 5, 0, 16),
       {},
       "LECS_GO\n"},
      {"LECS client",
       [](int s) { return lecsRequest(s, 0, 0).addClient(someConfigServer(), 5, 200); },
       head(primLecsControl, 3, 200, 60), server.bytes,
       "LECS_SET_ADDR\n  1  2  3  4  5  6  7  8  9  a\n"},
      {"LECS client gone",
       [](int s) { return lecsRequest(s, 5, 0).delClient(someConfigServer(), 5, 200); },
       head(primLecsControl, 4, 200, 60), server.bytes, "LECS_DEL_ADDR\n  1  2"},
      {"IP enable",
       [](int s) { return ip1577Request(s, 5, 0).enable(payloadOf<ip1577ReqStruct>(someIp())); },
       head(primIpControl, 1, 0, 56), ipStart.bytes, "IPATM_INIT\n"},
      {"IP disable",
       [](int s) { return ip1577Request(s, 5, 0).disable(); },
       head(primIpControl, 2, 0, 16),
       {},
       "IPATM_DISABLE\n"},
      {"routed PVC",
       [](int s) {
         return ip1577Request(s, 5, 0).addPvcDumped(payloadOf<rtdPvcReqStruct>(routed));
       },
       head(primIpControl, 4, 0, 72), route.bytes, "IPATM_PVCADD\n  a 14 1e 28 34 12  1"},
      {"port", [](int s) { return sigRequest(s, 5, 0).PortEnableDisable(2); },
       head(primSigControl, 5, 0, 27),
       Expected(11).number(8, 1, 1).number(9, 5, 1).number(10, 2, 1).bytes,
       "DaiSigPortDisableEnable\2\n"},
      {"framing", [](int s) { return phyRequest(s, 5, 0).set_Framing(1); },
       head(primPhyControl, 1, 0, 20), Expected(4).number(0, 1).bytes,
       "DAI: SET_SUNI_FRAMING : 1\n"},
      {"VPI", [](int s) { return phyRequest(s, 5, 0).setVpi(255); }, head(primPhyControl, 2, 0, 20),
       Expected(4).number(0, 255).bytes, "DAI: SET_VPI : 255\n"},
      {"redundant link", [&](int s) { return phyRequest(s, 5, 0).setRLS(&pair); },
       head(primPhyControl, 3, 0, 28),
       Expected(12).number(0, 1).number(4, 0xffffffff).number(8, 1).bytes,
       "DAI: SET_RLS : autoswitch: 1\n"},
      {"switch",
       [](int s) { return phyRequest(s, 1, 0).do_RLS_Switch(0x105); },
       head(primPhyControl, 4, 0, 16),
       {},
       "DAI: RLS_SWITCH (261)\n"},
  };
  serve();
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    EXPECT_EQ(c.send(session_), 0);
    const Frame frame = frames().back();
    EXPECT_EQ(std::memcmp(&frame.head, &c.head, sizeof c.head), 0);
    EXPECT_EQ(frame.payload, c.payload);
    EXPECT_NE(log().find(c.line), std::string::npos) << log();
  }
}

// The record goes out behind eight zero bytes, marked and with the port of the request; the
// caller's stays as it is.
TEST_F(ControlTest, SignallingRecord) {
  serve();
  sigPortCfg_s cfg;
  cfg.port = 77;
  cfg.DaiAdminStatus = 6;
  cfg.UniRevision = uniCode40;
  cfg.SigTmrT331 = 0x01020304;
  cfg.QSaalTmrIdle = 150;
  cfg.IlmiEnableAutoConfig = 0;
  cfg.NetPrefix[12] = 0xd8;
  const sigPortCfg_s before = cfg;
  sigRequest request(session_, 5, 0);
  EXPECT_EQ(request.UpdateCfg(cfg), 0);
  EXPECT_EQ(request.setDebugTrace(4, 1), 0);
  EXPECT_EQ(std::memcmp(&cfg, &before, sizeof cfg), 0);

  const Frame update = frames().at(0);
  EXPECT_EQ(update.head.Type, 2);
  EXPECT_EQ(update.head.SzIO, 288);
  ASSERT_EQ(update.payload.size(), 272U);
  EXPECT_EQ(Payload(update.payload.begin(), update.payload.begin() + 12),
            (Payload{0, 0, 0, 0, 0, 0, 0, 0, 1, 1, 5, 6}));
  const std::pair<std::size_t, std::uint8_t> places[] = {
      {8, 4},    {92, 4},   {95, 1},     {160, 150},  {164, 1}, {167, 0}, {168, 5},
      {188, 16}, {191, 13}, {192, 0x47}, {204, 0xd8}, {205, 0}, {212, 6}, {263, 0}};
  for (const auto& [offset, byte] : places) EXPECT_EQ(update.payload[8 + offset], byte) << offset;

  const Frame trace = frames().at(1);
  EXPECT_EQ(trace.head.Type, 3);
  EXPECT_EQ(trace.head.Size, 288);
  EXPECT_EQ(trace.head.SzIO, 27);
  EXPECT_EQ(Payload(trace.payload.begin() + 8, trace.payload.begin() + 11), (Payload{0, 4, 1}));
  EXPECT_NE(log().find("DaiSigDbgTrace\n"), std::string::npos);

  refusedType = 5;
  EXPECT_EQ(request.PortEnableDisable(1), -1);
  EXPECT_NE(log().find("PortDisableEnable, dai_req() system err: -1, internal err: 9\n"),
            std::string::npos);
}

TEST_F(ControlTest, TheConfigurationServerIsStoppedSetUpAndSetGoing) {
  serve();
  struct Case {
    std::uint16_t refused;
    int result;
    std::vector<int> types;
  };
  const Case cases[] = {{0, 0, {2, 1, 5}}, {2, 0, {2, 1, 5}}, {1, -1, {2, 1}}, {5, -1, {2, 1, 5}}};
  for (const Case& c : cases) {
    refusedType = c.refused;
    const std::size_t before = frames().size();
    lecsRequest request(session_, 5, 0);
    EXPECT_EQ(request.enable(someConfigServer()), c.result) << c.refused;
    std::vector<int> types;
    for (std::size_t i = before; i < frames().size(); ++i) types.push_back(frames()[i].head.Type);
    EXPECT_EQ(types, c.types);
  }
  EXPECT_NE(log().find("LECS_DISABLE\n"), std::string::npos);
  EXPECT_NE(log().find("LECS_ENABLE\n"), std::string::npos);
}

// A longer payload leaves nothing behind it in the frames that follow, and a switch its board.
TEST_F(ControlTest, AnObjectServesRequestsOfAllSizes) {
  serve();
  lecRequest lec(session_, 5, 7);
  lec.enable(payloadOf<lecReqStruct>(someClient()));
  lec.addPvc(payloadOf<bdgPvcReqStruct>(AtmBridgedPvc{}));
  EXPECT_EQ(frames().at(1).payload, Payload(60));
  lec.setEnhancedVC(0);
  EXPECT_EQ(frames().at(2).payload, Payload(4));

  phyRequest phy(session_, 5, 0);
  phy.do_RLS_Switch(3);
  phy.setVpi(1);
  EXPECT_EQ(frames().back().head.Link, 3);
}

}  // namespace
