// When the main dialog offers a switch of the selected adapter's link, and which board it asks.
#include "tests/apply/setup_stage.h"

namespace {

// A board of the table: type and backup as configured, link state and active link as reported.
struct Link {
  int primary, backup, state, active;
};
constexpr Link alone{1, -1, 0, -1};

struct SwitchCase {
  const char* name;
  Link mine, other;    // the selected board, number 1, and board 2
  std::string button;  // what the log says of it
  std::string click;   // the request, or the refusal
};

const std::string hidden = "ActivateBTN: hide.";
const std::string toActivate = "ActivateBTN: show: Activate";
const std::string toDeactivate = "ActivateBTN: show: De-Activate";

const SwitchCase switchCases[] = {
    {"primary without backup", {1, -1, 0, 1}, alone, hidden, "Backup not specified, or bad (-1)."},
    {"primary whose backup is no board", {1, 3, 0, 1}, alone, hidden, "130/4/1/0"},
    {"primary that backs itself up", {1, 1, 0, 1}, alone, hidden, "130/4/1/0"},
    {"backup out of range", {1, 8, 0, 1}, alone, hidden, "Backup not specified, or bad (8)."},
    {"primary down", {1, 2, 2, 2}, {0, -1, 0, 1}, hidden, "130/4/2/0"},
    {"primary active", {1, 2, 0, 1}, {0, -1, 1, -1}, toDeactivate, "130/4/1/0"},
    {"primary inactive", {1, 2, 1, 2}, {0, -1, 0, 1}, toActivate, "130/4/2/0"},
    {"primary inactive, of nobody",
     {1, 2, 1, -1},
     {0, -1, 0, 1},
     toActivate,
     "Backup not found, or bad (-1)."},
    {"primary inactive, of a primary",
     {1, 2, 1, 2},
     alone,
     toActivate,
     "Backup not found, or bad (2)."},
    {"backup active", {0, -1, 0, 2}, {1, 1, 1, 1}, toDeactivate, "130/4/1/0"},
    {"backup active, primary down", {0, -1, 0, 2}, {1, 1, 2, 1}, hidden, "130/4/1/0"},
    {"backup available", {0, -1, 1, -1}, {1, 1, 0, 2}, hidden, "Primary not found, or bad (-1)."},
    {"backup inactive with a primary", {0, -1, 1, 2}, {1, 1, 1, 1}, hidden, "130/4/1/0"},
    {"backup active for itself", {0, -1, 0, 1}, alone, hidden, "Primary not found, or bad (1)."},
    {"backup active for board 9", {0, -1, 0, 8}, alone, hidden, "Primary not found, or bad (8)."},
};

void put(const Link& link, AtmPhy& phy) {
  phy.cfgRLPrimary = link.primary;
  phy.cfgRLBackup = link.backup;
  phy.setLink(static_cast<std::uint16_t>(link.state), static_cast<std::int16_t>(link.active));
}

TEST(LinkSwitch, ButtonAndTargetFollowTheRecords) {
  Stage stage("boards 3\n");
  for (const SwitchCase& c : switchCases) {
    SCOPED_TRACE(c.name);
    put(c.mine, atmDevices.phy[1]);
    put(c.other, atmDevices.phy[2]);
    const LogText log;
    const std::size_t before = stage.driver.trace().size();
    stage.main->UpdateActivateBTN();
    stage.main->clickedActivateBTN(nullptr);
    EXPECT_EQ(log.startingWith("ActivateBTN: "), Lines{c.button});
    const std::string sent = stage.requestsSince(before);
    EXPECT_EQ(sent.empty() ? log.lines().back() : sent, c.click);
  }
}

// A board that gives no answer ends the round; the next one starts at the first board again.
TEST(LinkSwitch, APollStopsAtTheFirstBoardWithoutAnswer) {
  Stage stage("boards 4\n");
  const std::string all = "129/16/0/0 129/16/1/0 129/16/2/0 129/16/3/0";
  std::size_t before = stage.driver.trace().size();
  stage.driver.command("fault 129 16 board 3 code 9 times 1");
  EXPECT_EQ(stage.main->UpdateDisplay(), 0);
  EXPECT_EQ(stage.requestsSince(before), "129/16/0/0 129/16/1/0 129/16/2/0");
  before = stage.driver.trace().size();
  EXPECT_EQ(stage.main->UpdateDisplay(), 1);
  EXPECT_EQ(stage.requestsSince(before), all);
}

}  // namespace
