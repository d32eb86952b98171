// Every kind of request against every kind of bad reply: the failure is the one that is promised,
// nothing outside the frame is touched, and the next request on the same object succeeds.
#include "driver/ip1577_request.h"
#include "driver/lec_request.h"
#include "driver/lecs_request.h"
#include "driver/les_request.h"
#include "driver/phy_request.h"
#include "driver/queries.h"
#include "driver/sig_request.h"
#include "platform/driver_socket.h"
#include "tests/driver/frame_driver.h"

namespace {

constexpr std::uint16_t servedRows = 2;

struct Subject {
  const char* name;
  std::shared_ptr<reqParam> object;
  std::function<bool()> ask;  // true: an answer came
};

template <class Object, class Ask>
Subject subject(const char* name, int session, Ask ask) {
  auto object = std::make_shared<Object>(session, 0, 0);
  return {name, object, [object, ask] { return static_cast<bool>(ask(*object)); }};
}

// All that is asked in one exchange.
std::vector<Subject> subjects(int s) {
  const auto sent = [](int result) { return result == 0; };
  return {
      subject<aalInfo>("board state", s, [](aalInfo& q) { return q.GetBoardState(); }),
      subject<aalInfo>("AAL", s, [](aalInfo& q) { return q.GetAalStats(); }),
      subject<aalInfo>("SUNI", s, [](aalInfo& q) { return q.GetSuniStats(); }),
      subject<aalInfo>("MAC", s, [](aalInfo& q) { return q.GetBoardMacAddress(1); }),
      subject<aalInfo>("revision", s, [](aalInfo& q) { return q.GetPackageRev(); }),
      subject<aalInfo>("RLS", s, [](aalInfo& q) { return q.GetRLSStatus(0); }),
      subject<vccInfo>("VCs", s, [](vccInfo& q) { return q.GetTable(1, servedRows); }),
      subject<lecInfo>("LEC state", s, [](lecInfo& q) { return q.GetState(); }),
      subject<lecInfo>("LEC statistics", s, [](lecInfo& q) { return q.GetStats(); }),
      subject<lecInfo>("LEC rows", s, [](lecInfo& q) { return q.GetTable(1, servedRows); }),
      subject<lesInfo>("LES state", s, [](lesInfo& q) { return q.GetState(); }),
      subject<lesInfo>("LES statistics", s, [](lesInfo& q) { return q.GetStats(); }),
      subject<lesInfo>("LES rows", s, [](lesInfo& q) { return q.GetTable(1, servedRows); }),
      subject<lecsInfo>("LECS state", s, [](lecsInfo& q) { return q.GetState(); }),
      subject<lecsInfo>("LECS statistics", s, [](lecsInfo& q) { return q.GetStats(); }),
      subject<lecsInfo>("LECS rows", s, [](lecsInfo& q) { return q.GetTable(1, servedRows); }),
      subject<ip1577Info>("IP state", s, [](ip1577Info& q) { return q.GetState(); }),
      subject<ip1577Info>("IP statistics", s, [](ip1577Info& q) { return q.GetStats(); }),
      subject<ip1577Info>("IP rows", s, [](ip1577Info& q) { return q.GetTable(1, servedRows); }),
      subject<ip1577Info>("IP PVCs", s, [](ip1577Info& q) { return q.GetPvcTable(1, servedRows); }),
      subject<sigInfo>("signalling state", s, [](sigInfo& q) { return q.GetLinkState(); }),
      subject<lecRequest>("LEC on", s, [=](lecRequest& r) { return sent(r.enable({})); }),
      subject<lecRequest>("LEC off", s, [=](lecRequest& r) { return sent(r.disable()); }),
      subject<lecRequest>("LEC PVC", s, [=](lecRequest& r) { return sent(r.addPvc({})); }),
      subject<lecRequest>("enhanced", s, [=](lecRequest& r) { return sent(r.setEnhancedVC(1)); }),
      subject<lesRequest>("LES on", s, [=](lesRequest& r) { return sent(r.enable({})); }),
      subject<lesRequest>("LES off", s, [=](lesRequest& r) { return sent(r.disable()); }),
      subject<lecsRequest>("LECS off", s, [=](lecsRequest& r) { return sent(r.disable()); }),
      subject<lecsRequest>("LECS go", s, [=](lecsRequest& r) { return sent(r.go()); }),
      subject<lecsRequest>("client", s, [=](lecsRequest& r) { return sent(r.addClient({})); }),
      subject<lecsRequest>("no client", s, [=](lecsRequest& r) { return sent(r.delClient({})); }),
      subject<ip1577Request>("IP on", s, [=](ip1577Request& r) { return sent(r.enable({})); }),
      subject<ip1577Request>("IP off", s, [=](ip1577Request& r) { return sent(r.disable()); }),
      subject<ip1577Request>("IP PVC", s, [=](ip1577Request& r) { return sent(r.addPvc({})); }),
      subject<sigRequest>("signalling", s, [=](sigRequest& r) { return sent(r.UpdateCfg({})); }),
      subject<sigRequest>("port", s, [=](sigRequest& r) { return sent(r.PortEnableDisable(1)); }),
      subject<sigRequest>("trace", s, [=](sigRequest& r) { return sent(r.setDebugTrace(1, 1)); }),
      subject<phyRequest>("framing", s, [=](phyRequest& r) { return sent(r.set_Framing(1)); }),
      subject<phyRequest>("VPI", s, [=](phyRequest& r) { return sent(r.setVpi(1)); }),
      subject<phyRequest>("RLS pair", s,
                          [=](phyRequest& r) {
                            const rls_req pair;
                            return sent(r.setRLS(&pair));
                          }),
      subject<phyRequest>("switch", s, [=](phyRequest& r) { return sent(r.do_RLS_Switch(0)); }),
  };
}

using Body = std::vector<std::uint8_t>;

// Makes of a frame what the driver answers with: Resp 0, the rows that were asked for.
Body served(Body frame) {
  req_param_t head;
  std::memcpy(&head, frame.data(), sizeof head);
  head.Resp = 0;
  std::memcpy(frame.data(), &head, sizeof head);
  return frame;
}

std::uint32_t lengthOf(const Body& body) {
  return static_cast<std::uint32_t>(body.size());
}

void sendWith(ScriptedDriver& driver, std::uint32_t serial, const Body& body,
              std::uint32_t length) {
  driver.sendHead({wireExchange, serial, 0, 0, length}, body);
}

struct ReplyFault {
  const char* name;
  int resp;  // what the frame has then; 0: the request succeeds
  std::function<void(ScriptedDriver&, const WireMessage&)> answer;
  bool comes = true;  // what can be taken for an answer
};

const ReplyFault replyFaults[] = {
    {"longer than the frame", 0,
     [](ScriptedDriver& driver, const WireMessage& request) {
       Body body = served(request.body);
       body.resize(body.size() + 500, 0xff);
       sendWith(driver, request.head.serial, body, lengthOf(body));
     }},
    {"all that is not Resp at its largest", 0,
     [](ScriptedDriver& driver, const WireMessage& request) {
       Body body(request.body.size(), 0xff);
       sendWith(driver, request.head.serial, served(body), lengthOf(body));
     }},
    {"twice", 0,
     [](ScriptedDriver& driver, const WireMessage& request) {
       const Body body = served(request.body);
       for (int i = 0; i < 2; ++i) sendWith(driver, request.head.serial, body, lengthOf(body));
     }},
    {"refused", 9,
     [](ScriptedDriver& driver, WireMessage request) {
       request.body = served(request.body);
       request.body[offsetof(req_param_t, Resp)] = 9;
       driver.reply(request);
     }},
    {"untouched", respUntouched,
     [](ScriptedDriver& driver, const WireMessage& request) { driver.reply(request); }},
    {"an error number", daiBusy,
     [](ScriptedDriver& driver, WireMessage request) {
       request.body = served(request.body);
       driver.reply(request, EBUSY);
     }},
    {"an error number nobody knows", daiOther,
     [](ScriptedDriver& driver, const WireMessage& request) { driver.reply(request, 0x7fffffff); }},
    {"no whole head", daiOther,
     [](ScriptedDriver& driver, const WireMessage&) { driver.sendRaw(Body(19, 1)); }},
    {"a length that is too large", daiOther,
     [](ScriptedDriver& driver, const WireMessage& request) {
       sendWith(driver, request.head.serial, served(request.body), 65535);
     }},
    {"a length that is too small", daiOther,
     [](ScriptedDriver& driver, const WireMessage& request) {
       sendWith(driver, request.head.serial, served(request.body), 3);
     }},
    {"another kind", daiOther,
     [](ScriptedDriver& driver, WireMessage request) {
       request.head.kind = wireOpen;
       driver.reply(request);
     }},
    {"another's serial", daiOther,
     [](ScriptedDriver& driver, const WireMessage& request) {
       const Body body = served(request.body);
       sendWith(driver, request.head.serial + 7, body, lengthOf(body));
     },
     false},
    {"none", daiOther, [](ScriptedDriver&, const WireMessage&) {}, false},
};

// One bad reply, and honest ones for the rest. A reply that was held back comes before the next.
class HostileReplies : public testing::Test {
 protected:
  ~HostileReplies() override {
    dai_close(0, session_);
    defaultLimit = limit_;
  }

  void serve() {
    driver_ = std::make_unique<ScriptedDriver>(
        "li", [this](ScriptedDriver& driver, const WireMessage& request) {
          const auto fault = std::exchange(fault_, nullptr);
          if (fault) return fault(driver, request);
          if (!late_.body.empty()) driver.reply(std::exchange(late_, {}));
          WireMessage honest = request;
          honest.body = served(request.body);
          driver.reply(honest);
        });
    defaultLimit = brief;  // of the session's first wait, behind which the limit is looked at
    ASSERT_EQ(dai_open(0, 2, &session_), 0);
    defaultLimit = limit_;
  }

  // Asks with this fault. Only where no answer is to come the wait is short, so that a busy machine
  // makes no other request fail.
  bool askWith(const Subject& one, bool comes,
               std::function<void(ScriptedDriver&, const WireMessage&)> fault) {
    fault_ = std::move(fault);
    if (!comes) defaultLimit = brief;
    const bool answered = one.ask();
    defaultLimit = limit_;
    return answered;
  }

  ScratchDirectory scratch_;
  std::function<void(ScriptedDriver&, const WireMessage&)> fault_;
  WireMessage late_;
  std::unique_ptr<ScriptedDriver> driver_;
  int session_ = -1;

 private:
  static constexpr std::chrono::milliseconds brief{15};
  const std::chrono::milliseconds limit_ = defaultLimit;
};

TEST_F(HostileReplies, EveryRequestAgainstEveryFault) {
  serve();
  for (const Subject& one : subjects(session_)) {
    for (const ReplyFault& fault : replyFaults) {
      SCOPED_TRACE(std::string(one.name) + ", " + fault.name);
      EXPECT_EQ(askWith(one, fault.comes, fault.answer), fault.resp == 0);
      EXPECT_EQ(one.object->header().Resp, fault.resp);
      EXPECT_TRUE(one.ask());
    }
  }
}

TEST_F(HostileReplies, EveryLengthOfAReply) {
  serve();
  for (const Subject& one : subjects(session_)) {
    ASSERT_TRUE(one.ask());
    const std::size_t whole = one.object->header().Size;
    for (std::size_t length = 0; length <= whole; ++length) {
      SCOPED_TRACE(std::string(one.name) + ", " + std::to_string(length) + " bytes");
      const auto cut = [length](ScriptedDriver& driver, WireMessage request) {
        request.body = served(request.body);
        request.body.resize(length);
        driver.reply(request);
      };
      // Half of Resp can come: the low byte of 0, in front of the high one of what it was.
      EXPECT_EQ(askWith(one, true, cut), length >= sizeof(req_param_t));
      if (length < sizeof(req_param_t)) {
        EXPECT_EQ(one.object->header().Resp, length == 15 ? 0xde00 : respUntouched);
      }
      EXPECT_TRUE(one.ask());
    }
  }
}

TEST_F(HostileReplies, ALateReplyIsDropped) {
  serve();
  for (const Subject& one : subjects(session_)) {
    SCOPED_TRACE(one.name);
    const auto holdBack = [this](ScriptedDriver&, const WireMessage& request) {
      late_ = request;
      late_.body[offsetof(req_param_t, Resp)] = 1;
    };
    EXPECT_FALSE(askWith(one, false, holdBack));
    EXPECT_TRUE(one.ask()) << "not with the late refusal";
  }
}

// Pages without end: as many requests as the rows that were promised need, and not one more.
TEST_F(HostileReplies, PagingEnds) {
  int requests = 0;
  std::uint16_t perPage = 0;
  driver_ =
      std::make_unique<ScriptedDriver>("li", [&](ScriptedDriver& driver, WireMessage request) {
        ++requests;
        request.body = served(request.body);
        const std::uint16_t rows = request.body[2] == serviceNRows ? 30000 : perPage;
        std::memcpy(request.body.data() + offsetof(req_param_t, NRow), &rows, sizeof rows);
        driver.reply(request);
      });
  ASSERT_EQ(dai_open(0, 0, &session_), 0);
  for (const int rows : {0, 1, 13, 65535}) {
    perPage = static_cast<std::uint16_t>(rows);
    requests = 0;
    lecInfo lec(session_, 0, 0);
    const lec_tbl_t* table = lec.GetEntireTable();
    EXPECT_EQ(requests, 1 + (30000 + 12) / 13) << rows;
    ASSERT_NE(table, nullptr);
    EXPECT_LE(lec.header().NRow * sizeof(lec_tbl_t), lec.capacity() - 16U);
  }
}

}  // namespace
