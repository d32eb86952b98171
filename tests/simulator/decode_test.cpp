// A trace as a person reads it.
#include <gtest/gtest.h>

#include <sstream>

#include "driver/board_records.h"
#include "driver/control_records.h"
#include "driver/service_records.h"
#include "simulator/decode.h"
#include "simulator/record_text.h"
#include "tests/support/lisim_client.h"

namespace {

using lisim::decodeLine;

template <class Record>
std::string hexOf(const Record& record) {
  return lisim::hexText(lisimBytesOf(record));
}

// A request of adapter 2 with an answer, as a trace has it.
std::string traced(const std::string& head, const std::string& input, const std::string& answer) {
  return "time=1041 session=2 event=request serial=1 cmd=19456 timeout=0 length=16 " + head +
         " in=" + input + " ->" + answer;
}

const std::string done = " after=0 errno=0 resp=0 nrow=0 out=- answer=\"done\"";
const std::string sigHead(16, '0');

TEST(Decode, EveryControlRequest) {
  lecReqStruct lec;
  lec.lecs = 1;
  lec.address[0] = 0x47;
  lec.mfs = 2;
  std::memcpy(lec.elanName, "e\"\xfc", 3);
  lec.elanType = 1;
  lec.l3Mtu = 1500;
  lec.defaultPcr = 353207;
  bdgPvcReqStruct bridged;
  bridged.macAddress[5] = 0xaa;
  bridged.vcIndex = 102;
  bridged.encapsulation = 1;
  bridged.reserved[1] = 7;
  lesReqStruct les;
  les.mfs = 9;
  les.elanType = 2;
  lecs_req lecs;
  lecs.esiSelector[6] = 3;
  lecs.index = 1;
  ip1577ReqStruct ip;
  ip.ipAddress = 0x0a010203;
  ip_pvc routed;
  routed.ipAddress[0] = 10;
  routed.vcIndex = 5;
  const std::string zeroAddress = ":00:00:00:00:00:00:00:00:00:00:00:00:00:00:00:00:00:00:00";
  struct Case {
    std::string head, input, text;
  };
  const Case cases[] = {
      {"prim=17 type=1 link=2 unit=1", hexOf(lec),
       "LEC 1, enable: LECS on, address 47" + zeroAddress +
           ", MTU 4544, ELAN \"e\\x22\\xfc\", ELAN type Token Ring, PVC only off, layer 3 MTU "
           "1500, "
           "default PCR 353207"},
      {"prim=17 type=2 link=2 unit=1", "-", "LEC 1, disable"},
      {"prim=17 type=3 link=2 unit=1", hexOf(bridged),
       std::string("LEC 1, add PVC: MAC 00:00:00:00:00:aa, VC 102, encapsulation LLC_SNAP, ") +
           "broadcast off, "
           "reserved at 10: 0007" +
           std::string(96, '0')},
      {"prim=17 type=5 link=2 unit=0", "00", "LEC 0, delete PVC: cut short at 1 bytes"},
      {"prim=17 type=7 link=2 unit=1", "01000000", "LEC 1, set enhanced VC: enhanced VC on"},
      {"prim=18 type=1 link=2 unit=15", hexOf(les),
       "LES 15, enable: ELAN \"\", name strict off, MTU 9, MTU strict off, ELAN type Token Ring"},
      {"prim=18 type=2 link=2 unit=15", "-", "LES 15, disable"},
      {"prim=19 type=1 link=2 unit=0", hexOf(lecs),
       "LECS, enable: address 00" + zeroAddress +
           ", ELAN type 0, Ethernet MTU 0, Token Ring MTU 0, ESI/selector 00:00:00:00:00:00-03, "
           "index 1"},
      {"prim=19 type=2 link=2 unit=0", "-", "LECS, disable"},
      {"prim=19 type=3 link=2 unit=200", "47", "LECS, add client in row 200: cut short at 1 bytes"},
      {"prim=19 type=4 link=2 unit=1", "47", "LECS, delete client in row 1: cut short at 1 bytes"},
      {"prim=19 type=5 link=2 unit=0", "0102", "LECS, go: and behind it 0102"},
      {"prim=65 type=1 link=2 unit=0", hexOf(ip),
       "IP, enable: ARP server 0.0.0.0, mask 0.0.0.0, IP 10.1.2.3, ARP server address 00" +
           zeroAddress + ", PVC only off"},
      {"prim=65 type=2 link=2 unit=0", "-", "IP, disable"},
      {"prim=65 type=4 link=2 unit=0", hexOf(routed),
       "IP, add PVC: IP 10.0.0.0, VC 5, encapsulation NULL"},
      {"prim=65 type=5 link=2 unit=0", hexOf(routed),
       "IP, delete PVC: IP 10.0.0.0, VC 5, encapsulation NULL"},
      {"prim=34 type=3 link=2 unit=0", sigHead + "000401",
       "signalling, debug trace: trace ILMI, state on"},
      {"prim=34 type=5 link=2 unit=0", sigHead + "010202",
       "signalling, port: run 1, port 2, state disabled"},
      {"prim=130 type=1 link=2 unit=0", "01000000", "physical layer, set framing: framing SDH"},
      {"prim=130 type=2 link=2 unit=0", "ff000000", "physical layer, set VPI: VPI 255"},
      {"prim=130 type=3 link=2 unit=0", "01000000ffffffff01000000",
       "physical layer, set redundant link: board type primary, backup -1, auto-switch on"},
      {"prim=130 type=4 link=2 unit=0", "-", "physical layer, switch link"},
      {"prim=77 type=9 link=2 unit=0", "00ff", "primitive 77 type 9, 2 bytes: 00ff"},
  };
  for (const Case& c : cases)
    EXPECT_EQ(decodeLine(traced(c.head, c.input, done)),
              "1.041 s  session 2  adapter 2, " + c.text + " -> done");

  sigPortCfg_s cfg;
  const auto update =
      decodeLine(traced("prim=34 type=2 link=2 unit=0", sigHead + hexOf(cfg), done)).value_or("");
  for (const char* part :
       {"update configuration: run flag 1, ", ", UNI 3.0, SvcRangeStartVci 32, ", ", timer 40 10, ",
        ", signalling VC limits 65535 65536, ", ", address head 1000, ",
        ", NetPrefix 47:00:00:00:00:00:00:00:00:00:00:00:00, ", ", ILMI VC limits 65535 65536 -> "})
    EXPECT_NE(update.find(part), std::string::npos) << part << '\n' << update;
}

TEST(Decode, QueriesAndTheirAnswers) {
  const std::string start = "0.000 s  session 1  adapter 0, ";
  const auto decoded = [](const std::string& head, const std::string& answer) {
    return decodeLine("time=0 session=1 event=request " + head + " in=- -> " + answer).value_or("");
  };
  EXPECT_EQ(decoded("prim=129 type=16 link=0 unit=0", "errno=0 resp=0 nrow=0 out=0100ffff"),
            start + "board, link status -> done: link state Inactive, active link -1");
  EXPECT_EQ(decoded("prim=20 type=3 link=0 unit=7", "errno=0 resp=0 nrow=2 out=-"),
            start + "LEC 7, table rows -> done: 2 rows");
  vc_tbl row{};
  row.vci = 5;
  row.counterIn = 7;
  const std::string table = "prim=1 type=4 link=0 unit=0 rowm=3 nrow=50";
  EXPECT_EQ(decoded(table, "errno=0 resp=0 nrow=1 out=" + hexOf(row)),
            start + "circuits, table, 50 rows from 3 -> done: 1 row\n    VCI 5, out 0, in 7");
  EXPECT_EQ(decoded(table, "errno=0 resp=0 nrow=60000 out=" + hexOf(row)),
            start +
                "circuits, table, 50 rows from 3 -> done: 60000 rows\n    VCI 5, out 0, in 7\n"
                "    no bytes of more rows");
  EXPECT_EQ(
      decoded("prim=33 type=1 link=0 unit=0", "errno=0 resp=0 nrow=0 out=" + sigHead +
                                                  hexOf(sig_link_state{{}, 2, 9, 1, {}, {}, {}})),
      start +
          "signalling, link state -> done: ILMI 2, QSAAL 9, signalling 1, address "
          "00:00:00:00:00:00:00:00:00:00:00:00:00:00:00:00:00:00:00:00");
}

TEST(Decode, EveryWayToEnd) {
  const std::pair<std::string, std::string> cases[] = {
      {" after=0 errno=0 resp=9 nrow=0 out=- answer=\"value out of range\"",
       "code 9: value out of range"},
      {" after=0 errno=16 resp=57005 nrow=0 out=- answer=\"Device busy\"", "errno 16: Device busy"},
      {" after=0 errno=0 resp=57005 nrow=0 out=- answer=\"untouched\"", "untouched"},
      {" after=250 errno=0 resp=0 nrow=0 out=- answer=\"done\"", "done after 250 ms"},
      {" silence", "silence"},
      {" hangup", "hangup"},
  };
  for (const auto& [answer, text] : cases)
    EXPECT_EQ(decodeLine(traced("prim=17 type=2 link=0 unit=0", "-", answer)),
              "1.041 s  session 2  adapter 0, LEC 0, disable -> " + text);
  EXPECT_EQ(decodeLine("time=5 session=3 event=open flags=2 uid=65534 errno=13"),
            "0.005 s  session 3  open with flags 2 by user 65534 -> errno 13");
  EXPECT_EQ(decodeLine("time=5 session=3 event=close why=\"closed by the peer\""),
            "0.005 s  session 3  close: closed by the peer");
  EXPECT_EQ(
      decodeLine("time=5 session=3 event=request serial=1 in=- -> errno=22 out=- answer=\"x\""),
      "0.005 s  session 3  a frame without a whole head -> errno 22: x");
}

TEST(Decode, NamesLinesThatAreNone) {
  const std::string good = "time=5 session=3 event=close why=\"x\"\n";
  std::istringstream in(good + "rubbish\n\n" + good +
                        "time=5 session=3 event=request prim=17 type=1 in=4\ntime=5x session=3 "
                        "event=close\ntime=5 session=3 event=party\ntime=5 session=3 event=close "
                        "why=\"\x1b[2J\"\ntime=5 session=3 event=close");
  std::ostringstream out, errors;
  EXPECT_FALSE(lisim::decodeTrace(in, out, errors));
  std::string named;
  for (const int line : {2, 3, 5, 6, 7, 8})
    named += "lisim: line " + std::to_string(line) + " is no line of a trace\n";
  EXPECT_EQ(errors.str(), named);
  EXPECT_EQ(out.str(),
            "0.005 s  session 3  close: x\n0.005 s  session 3  close: x\n"
            "0.005 s  session 3  close: \n");
}

// What the simulator has really written.
TEST(Decode, ATraceOfTheSimulator) {
  LisimProcess lisim("boards 1\nboard 1 vcs 3\n");
  {
    LisimClient client(lisim.device(), 0);
    client.query(primVccQuery, 4, 0, 0);
    client.query(primAalQuery, 1, 0, 16);
    client.request(primPhyControl, 1, 0, {0, 0, 0, 0});
  }
  ASSERT_TRUE(lisimWaitFor([&] { return lisim.trace().size() == 5; }));
  std::string text;
  for (const std::string& line : lisim.trace()) {
    const auto decoded = decodeLine(line);
    ASSERT_TRUE(decoded) << line;
    text += decoded->substr(decoded->find("session")) + "\n";
  }
  EXPECT_EQ(text,
            "session 1  open with flags 0 by user " + std::to_string(getuid()) +
                " -> done\n"
                "session 1  adapter 0, circuits, table, 0 rows from 1 -> done: 0 rows\n"
                "session 1  adapter 0, board, state -> done: boards 1, mask 1\n"
                "session 1  adapter 0, physical layer, set framing: framing SONET -> errno 13: "
                "Permission denied\n"
                "session 1  close: closed by the peer\n");
}

}  // namespace
