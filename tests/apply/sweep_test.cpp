// Every request of an accepted Setup fails once, in every way: the others go out all the same and
// in order, everything is kept, the log tells, and the applet goes on.
#include "tests/apply/setup_stage.h"

#include <map>

#include "platform/driver_socket.h"

namespace {

struct FaultCase {
  const char* words;
  int code;  // what Resp then holds
  bool isSilent;
  bool hangsUp;  // so that nothing behind it reaches the driver
};

constexpr FaultCase faultCases[] = {
    {"code 9", 9, false, false},        {"errno EBUSY", 202, false, false},
    {"untouched", 57005, false, false}, {"silence", 207, true, false},
    {"hangup", 201, false, true},
};

constexpr char configServerStart[] = "19/1/1/0";
constexpr char configServerGo[] = "19/5/1/0";

// Of the requests that have one: the line that names the failure.
const std::map<std::string, std::string> failureNames{
    {"17/1/1/3", "LEC:Enable"},      {"17/3/1/3", "LEC:Add PVC"},
    {"19/3/1/0", "LECS:Add Client"}, {"19/3/1/1", "LECS:Add Client"},
    {"65/4/1/0", "IP1577:Add PVC"},  {"34/2/1/0", "Signalling:Update Config"},
};

std::string nameOf(int round) {
  return "sweep" + std::to_string(round);
}

// Of each service something that is new in every round.
void changeEverything(int round) {
  const auto toggle = static_cast<std::int16_t>(round % 2);
  xferBuffer[3].ElanName = nameOf(round);
  xferBuffer[3].EnhancedVC = toggle;
  xferBuffer[4].L3Mtu = static_cast<std::int16_t>(1000 + round);
  lesXferBuffer[2].ElanName = nameOf(round);
  lecsXferBuffer.EtherMfs = toggle;
  ip1577XferBuffer.IPAddress = "10.0.1." + std::to_string(round);
  sigXferBuffer.RegDiffNetPrefix = toggle;
  phyXferBuffer.Framing = toggle;
  phyXferBuffer.VPI = round;
  phyXferBuffer.RLAutoSwitch = toggle;
}

int occurrences(const std::string& text, const std::string& part) {
  int count = 0;
  for (std::size_t at = 0; (at = text.find(part, at)) != std::string::npos; ++at) ++count;
  return count;
}

std::string numberBehind(const std::string& line, const char* label) {
  const std::size_t start = line.find(label) + std::strlen(label);
  return line.substr(start, line.find(' ', start) - start);
}

// The requests that were tried, out of the log.
Lines attempts(const LogText& log) {
  Lines found;
  for (const std::string& line : log.startingWith("-> ")) {
    found.push_back(numberBehind(line, "Prim:") + "/" + numberBehind(line, "Type:") + "/" +
                    numberBehind(line, "Link:") + "/" + numberBehind(line, "Unit:"));
  }
  return found;
}

std::string joined(const Lines& lines, std::size_t count) {
  std::string text;
  for (std::size_t i = 0; i < std::min(count, lines.size()); ++i) text += (i ? " " : "") + lines[i];
  return text;
}

// The one request that waits for another: a server that was not set up is not set going.
bool startsConfigServer(const LogText& log, const Lines& clean) {
  const auto place = std::find(clean.begin(), clean.end(), configServerStart) - clean.begin();
  return log.startingWith("<- ").at(static_cast<std::size_t>(place)).ends_with(" Resp:0");
}

class Sweep : public testing::Test {
 protected:
  Sweep() : stage_("boards 3\npair 2 3 manual\njoin-delay 0\n") {
    configureServices(Stage::adapter);
  }
  ~Sweep() override { defaultLimit = limit_; }

  void applyRound(int round) {
    stage_.main->MapDataToXferBuffer(Stage::adapter);
    changeEverything(round);
    stage_.main->keepSetup(Stage::adapter);
  }

  void expectKept(int round) {
    EXPECT_EQ(atmDevices.lec[1][3].ElanName, nameOf(round));
    EXPECT_EQ(atmDevices.lecs[1].EtherMfs, round % 2 + 1);
    EXPECT_EQ(atmDevices.phy[1].VPI, round);
    const std::string file = fileText("etc/atm/odconf");
    EXPECT_EQ(occurrences(file, "= " + nameOf(round) + "\n"), 2);
    EXPECT_EQ(occurrences(file, "= 10.0.1." + std::to_string(round) + "\n"), 1);
    EXPECT_EQ(stage_.main->UpdateDisplay(), 1);
  }

  // One round in which request `k` of `clean` fails.
  void expectOnlyOneToFail(const FaultCase& fault, std::size_t k, const Lines& clean, int round) {
    const std::size_t before = stage_.driver.trace().size();
    stage_.driver.command("fault clear");
    stage_.driver.command("fault * * after " + std::to_string(k) + " " + fault.words + " times 1");
    Lines expected = clean;
    {
      const LogText log;
      if (fault.isSilent) defaultLimit = std::chrono::milliseconds(400);
      applyRound(round);
      defaultLimit = limit_;
      if (!startsConfigServer(log, clean)) std::erase(expected, configServerGo);
      EXPECT_EQ(attempts(log), expected);
      EXPECT_TRUE(log.startingWith("<- ").at(k).ends_with(" Resp:" + std::to_string(fault.code)));
      EXPECT_FALSE(log.startingWith("Dai Request Failure").empty());
      const auto name = failureNames.find(clean[k]);
      if (name != failureNames.end()) {
        EXPECT_FALSE(log.startingWith(name->second + " - DAI returned error(" +
                                      std::to_string(fault.code) + ").")
                         .empty());
      }
    }
    EXPECT_EQ(stage_.requestsSince(before),
              joined(expected, fault.hangsUp ? k + 1 : expected.size()));
    expectKept(round);
  }

  void expectUsable() {
    ASSERT_TRUE(x_driver::show(*stage_.main));
    for (const auto& [row, adapter] : {std::pair{0, 0}, {1, 1}}) {
      x_driver::outwaitDoubleClick();
      x_driver::click(*stage_.main, {18, 73 + 18 * row});
      EXPECT_TRUE(x_driver::waitUntil([&] { return currentAdapter == adapter; }));
    }
  }

  Stage stage_;

 private:
  const std::chrono::milliseconds limit_ = defaultLimit;
};

TEST_F(Sweep, EachRequestFailsInEachWay) {
  int round = 1;
  Lines clean;
  {
    const LogText log;
    applyRound(round);
    clean = attempts(log);
    EXPECT_EQ(log.startingWith("Dai Request Failure"), Lines());
  }
  expectKept(round);
  ASSERT_EQ(clean.size(), 22U) << joined(clean, 99);
  for (const FaultCase& fault : faultCases) {
    for (std::size_t k = 0; k < clean.size(); ++k) {
      SCOPED_TRACE(std::string(fault.words) + ", request " + std::to_string(k) + ": " + clean[k]);
      expectOnlyOneToFail(fault, k, clean, ++round);
    }
    expectUsable();
  }
  std::printf("%d faults in %zu ways, of %zu requests each\n", round - 1, std::size(faultCases),
              clean.size());
}

}  // namespace
