// What the table and the status line say about an adapter in every state that the records can hold.
#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "foundation/odlog.h"
#include "shell/adapter_status.h"

namespace {

// The part of a board's record that its row is made of.
struct Board {
  std::int32_t primary;
  std::int32_t backup;
  std::int32_t autoSwitch;
  std::uint16_t state;
  std::int16_t active;
};

constexpr std::uint16_t unknownState = 3;

struct Case {
  std::vector<Board> boards;
  int adapter;
  const char* type;
  const char* dataLink;
  const char* mac;
  const char* status;
  const char* switchConfig;
  zColor color;
  const char* sentence;
};

// The address of board N reads "macN".
AtmDevices devicesOf(const std::vector<Board>& boards) {
  AtmDevices devices;
  devices.numAdapters = static_cast<std::uint32_t>(boards.size());
  for (int i = 0; i < maxAdapters; ++i) {
    devices.phy[i].boardText1 = "mac" + std::to_string(i);
    if (static_cast<std::size_t>(i) >= boards.size()) continue;
    const Board& board = boards[static_cast<std::size_t>(i)];
    devices.phy[i].cfgRLPrimary = board.primary;
    devices.phy[i].cfgRLBackup = board.backup;
    devices.phy[i].cfgRLAutoSwitch = board.autoSwitch;
    devices.phy[i].setLink(board.state, board.active);
  }
  return devices;
}

constexpr Board free{0, -1, 0, linkInactive, -1};  // a backup that carries nothing
constexpr Board serves0{0, -1, 0, linkActive, 0};  // a backup that carries adapter 0's link
constexpr Board serves2{0, -1, 0, linkActive, 2};  // a backup that carries adapter 2's link
constexpr Board deadBackup{0, -1, 0, linkDown, -1};
constexpr Board alone{1, -1, 0, linkActive, -1};  // a primary without a backup

const Case cases[] = {
    // Active primaries.
    {{alone}, 0, "Primary", "1", "mac0", "Active", "", rowGreen, "Active, no backup."},
    {{{1, 1, 1, linkActive, 1}, free},
     0,
     "Primary",
     "1",
     "mac0",
     "Active",
     "Auto",
     rowGreen,
     "Active, backup is adapter 2"},
    {{alone, free, {1, 1, 0, linkActive, -1}},
     2,
     "Primary",
     "3",
     "mac2",
     "Active",
     "Manual",
     rowGreen,
     "Active, backup is adapter 2"},
    {{{1, 9, 0, linkActive, -1}},
     0,
     "Primary",
     "1",
     "mac0",
     "Active",
     "Manual",
     rowGreen,
     "Active, backup is adapter 10"},
    // Inactive primaries: the backup is the active link, or else the one in the file, or none.
    {{{1, -1, 1, linkInactive, -1}},
     0,
     "Primary",
     " ",
     "-",
     "Inactive",
     "",
     rowYellow,
     "Inactive, not backed up."},
    {{{1, 8, 0, linkInactive, 8}},
     0,
     "Primary",
     " ",
     "-",
     "Inactive",
     "Manual",
     rowYellow,
     "Inactive, not backed up."},
    {{{1, 1, 0, linkInactive, 1}, serves0},
     0,
     "Primary",
     " ",
     "-",
     "Inactive",
     "Manual",
     rowYellow,
     "Inactive, backed up by adapter 2"},
    {{{1, -1, 0, linkInactive, 1}, serves0},
     0,
     "Primary",
     " ",
     "-",
     "Inactive",
     "",
     rowYellow,
     "Inactive, backed up by adapter 2"},
    {{{1, 2, 0, linkInactive, 1}, serves0, free},
     0,
     "Primary",
     " ",
     "-",
     "Inactive",
     "Manual",
     rowYellow,
     "Inactive, backed up by adapter 2"},
    {{{1, 1, 0, linkInactive, 8}, serves2},
     0,
     "Primary",
     " ",
     "-",
     "Inactive",
     "Manual",
     rowYellow,
     "Inactive, Backup adapter 2 is Active for adapter 3"},
    {{{1, 1, 0, linkInactive, -1}, free},
     0,
     "Primary",
     " ",
     "-",
     "Inactive",
     "Manual",
     rowYellow,
     "Inactive, Backup adapter 2 is Inactive."},
    {{{1, 1, 0, linkInactive, 1}, deadBackup},
     0,
     "Primary",
     " ",
     "-",
     "Inactive",
     "Manual",
     rowYellow,
     "Inactive, Backup adapter 2 is Down."},
    {{{1, 1, 0, linkInactive, 1}, {0, -1, 0, unknownState, 0}},
     0,
     "Primary",
     " ",
     "-",
     "Inactive",
     "Manual",
     rowYellow,
     "Inactive, Backup adapter 2 is Down."},
    // Primaries that are down: only the active link tells of the backup.
    {{{1, -1, 0, linkDown, -1}}, 0, "Primary", " ", "-", "Down", "", rowRed, "Down"},
    {{{1, -1, 0, linkDown, 1}, serves0}, 0, "Primary", " ", "-", "Down", "", rowRed, "Down"},
    {{{1, 1, 1, linkDown, -1}, serves0}, 0, "Primary", " ", "-", "Down", "Auto", rowRed, "Down"},
    {{{1, 1, 1, linkDown, 1}, serves0},
     0,
     "Primary",
     " ",
     "-",
     "Down",
     "Auto",
     rowRed,
     "Down, Backed Up by 2"},
    {{{1, 1, 0, linkDown, 1}, deadBackup},
     0,
     "Primary",
     " ",
     "-",
     "Down",
     "Manual",
     rowRed,
     "Down, Backup Adapter 2 is Down."},
    {{{1, 1, 0, linkDown, 1}, free},
     0,
     "Primary",
     " ",
     "-",
     "Down",
     "Manual",
     rowRed,
     "Down, Backup Adapter 2 is Inactive."},
    {{{1, 1, 0, linkDown, 1}, {0, -1, 0, unknownState, 0}},
     0,
     "Primary",
     " ",
     "-",
     "Down",
     "Manual",
     rowRed,
     "Down, Backup Adapter 2 is Inactive."},
    {{{1, 1, 0, linkDown, 1000}}, 0, "Primary", " ", "-", "Down", "Manual", rowRed, "Down"},
    // States that no table knows.
    {{alone, {1, 0, 1, unknownState, -1}}, 1, "Primary", "2", "-", "?", "Auto", rowGrey, ""},
    {{alone, {0, 0, 1, 65535, 0}}, 1, "Backup", " ", "-", "?", " ", rowGrey, ""},
    // Backups that carry a link show the address that goes with it.
    {{serves0}, 0, "Backup", "1", "mac0", "Active", " ", rowGreen, "Active, for Adapter 1"},
    {{alone, serves2, alone},
     1,
     "Backup",
     "3",
     "mac2",
     "Active",
     " ",
     rowGreen,
     "Active, for Adapter 3"},
    {{alone, {0, -1, 0, linkActive, 7}},
     1,
     "Backup",
     "8",
     "mac7",
     "Active",
     " ",
     rowGreen,
     "Active, for Adapter 8"},
    {{alone, {0, -1, 0, linkActive, 8}},
     1,
     "Backup",
     "?",
     "mac1 ?",
     "Active",
     " ",
     rowGreen,
     "Active, for Adapter 9"},
    {{alone, {0, -1, 0, linkActive, -1}},
     1,
     "Backup",
     "?",
     "mac1 ?",
     "Active",
     " ",
     rowGreen,
     "Active, for Adapter 0"},
    // Backups that stand by, for primaries within the number of boards only.
    {{alone, free}, 1, "Backup", " ", "-", "Available", " ", rowYellow, "Available"},
    {{{1, 1, 0, 0, -1}, free, {0, 1, 0, 1, -1}, {1, 1, 0, 0, -1}, {1, 0, 0, 0, -1}},
     1,
     "Backup",
     " ",
     "-",
     "Available",
     " ",
     rowYellow,
     "Available, for adapter 1, 4"},
    // Backups that are down.
    {{alone, deadBackup}, 1, "Backup", " ", "-", "Down", " ", rowRed, "Down"},
    {{alone, {0, 2, 0, linkDown, -1}}, 1, "Backup", " ", "-", "Down", " ", rowRed, "Down"},
    {{alone, {0, 2, 1, linkDown, 2}}, 1, "Backup", " ", "-", "Down", " ", rowRed, "Backed Up by 3"},
};

TEST(AdapterStatus, NamesEveryState) {
  for (const Case& c : cases) {
    SCOPED_TRACE(testing::Message() << "case " << &c - cases << ": " << c.sentence);
    const AdapterStatus row = describeAdapter(devicesOf(c.boards), c.adapter);
    EXPECT_STREQ(row.type, c.type);
    EXPECT_EQ(row.dataLink, c.dataLink);
    EXPECT_EQ(row.macAddress, c.mac);
    EXPECT_STREQ(row.status, c.status);
    EXPECT_STREQ(row.switchConfig, c.switchConfig);
    EXPECT_TRUE(row.color == c.color);
    EXPECT_EQ(row.sentence, "Adapter " + std::to_string(c.adapter + 1) + ": " + c.sentence);
  }
}

TEST(AdapterStatus, OddStatesAreLogged) {
  struct Odd {
    Board board;
    const char* line;
  };
  const Odd odd[] = {
      {{0, -1, 0, linkActive, 8}, "Backup switch_link == 8\n"},
      {{0, 2, 0, linkDown, 2}, "*** Backup has a Backup !!! ***\n"},
      {{1, -1, 0, unknownState, -1}, "Bad Board status: 3\n"},
      {{0, -1, 0, 65535, -1}, "Bad Board status: 65535\n"},
      {{1, 1, 0, linkDown, 1}, ""},
  };
  odlog.attach(2);
  for (const Odd& o : odd) {
    testing::internal::CaptureStderr();
    describeAdapter(devicesOf({o.board, free}), 0);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), o.line);
  }
}

TEST(AdapterStatus, RowsFollowTheDriversNumberUpToTheSlots) {
  AtmDevices devices;
  const std::pair<std::uint32_t, int> numbers[] = {{0, 0}, {3, 3}, {8, 8}, {9, 8}, {65535, 8}};
  for (const auto& [boards, rows] : numbers) {
    devices.numAdapters = boards;
    EXPECT_EQ(adapterRows(devices), rows) << boards;
  }
}

}  // namespace
