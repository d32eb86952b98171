// What the table and the status line say about an adapter in every state that the records can hold.
#include <gtest/gtest.h>

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
constexpr Board serves2{0, -1, 0, linkActive, 2};
constexpr Board deadBackup{0, -1, 0, linkDown, -1};
constexpr Board oddBackup{0, -1, 0, unknownState, 0};
constexpr Board alone{1, -1, 0, linkActive, -1};  // a primary without a backup

// Rows of the primary that is board 0.
struct PrimaryCase {
  Board board;
  Board other;  // board 1
  const char* dataLink;
  const char* mac;
  const char* status;
  const char* switchConfig;
  zColor color;
  const char* sentence;
};
// clang-format off
const PrimaryCase primaries[] = {
    {alone, free, "1", "mac0", "Active", "", rowGreen, "Active, no backup."},
    {{1, 1, 1, 0, 1}, free, "1", "mac0", "Active", "Auto", rowGreen, "Active, backup is adapter 2"},
    {{1, 9, 0, 0, 1}, free, "1", "mac0", "Active", "Manual", rowGreen, "Active, backup is adapter 10"},
    // Inactive: the backup is the active link, or else the one in the file, or none.
    {{1, -1, 1, 1, -1}, free, " ", "-", "Inactive", "", rowYellow, "Inactive, not backed up."},
    {{1, 8, 0, 1, 8}, free, " ", "-", "Inactive", "Manual", rowYellow, "Inactive, not backed up."},
    {{1, 1, 0, 1, 1}, serves0, " ", "-", "Inactive", "Manual", rowYellow, "Inactive, backed up by adapter 2"},
    {{1, 2, 0, 1, 1}, serves0, " ", "-", "Inactive", "Manual", rowYellow, "Inactive, backed up by adapter 2"},
    {{1, 1, 0, 1, 8}, serves2, " ", "-", "Inactive", "Manual", rowYellow, "Inactive, Backup adapter 2 is Active for adapter 3"},
    {{1, 1, 0, 1, -1}, free, " ", "-", "Inactive", "Manual", rowYellow, "Inactive, Backup adapter 2 is Inactive."},
    {{1, 1, 0, 1, 1}, deadBackup, " ", "-", "Inactive", "Manual", rowYellow, "Inactive, Backup adapter 2 is Down."},
    {{1, 1, 0, 1, 1}, oddBackup, " ", "-", "Inactive", "Manual", rowYellow, "Inactive, Backup adapter 2 is Down."},
    // Down: only the active link tells of the backup.
    {{1, -1, 0, 2, 1}, serves0, " ", "-", "Down", "", rowRed, "Down"},
    {{1, 1, 1, 2, -1}, serves0, " ", "-", "Down", "Auto", rowRed, "Down"},
    {{1, 1, 1, 2, 1000}, serves0, " ", "-", "Down", "Auto", rowRed, "Down"},
    {{1, 1, 1, 2, 1}, serves0, " ", "-", "Down", "Auto", rowRed, "Down, Backed Up by 2"},
    {{1, 1, 0, 2, 1}, deadBackup, " ", "-", "Down", "Manual", rowRed, "Down, Backup Adapter 2 is Down."},
    {{1, 1, 0, 2, 1}, free, " ", "-", "Down", "Manual", rowRed, "Down, Backup Adapter 2 is Inactive."},
    {{1, 1, 0, 2, 1}, oddBackup, " ", "-", "Down", "Manual", rowRed, "Down, Backup Adapter 2 is Inactive."},
    {{1, 1, 1, unknownState, -1}, free, "1", "-", "?", "Auto", rowGrey, ""},
};

// Rows of the backup that is board 1, between two primaries unless others are given.
struct BackupCase {
  std::vector<Board> boards;
  const char* dataLink;
  const char* mac;
  const char* status;
  zColor color;
  const char* sentence;
};
const BackupCase backups[] = {
    {{alone, serves0, alone}, "1", "mac0", "Active", rowGreen, "Active, for Adapter 1"},
    {{alone, serves2, alone}, "3", "mac2", "Active", rowGreen, "Active, for Adapter 3"},
    {{alone, {0, -1, 0, 0, 7}}, "8", "mac7", "Active", rowGreen, "Active, for Adapter 8"},
    {{alone, {0, -1, 0, 0, 8}}, "?", "mac1 ?", "Active", rowGreen, "Active, for Adapter 9"},
    {{alone, {0, -1, 0, 0, -1}}, "?", "mac1 ?", "Active", rowGreen, "Active, for Adapter 0"},
    {{alone, free}, " ", "-", "Available", rowYellow, "Available"},
    {{{1, 1, 0, 0, -1}, free, {0, 1, 0, 1, -1}, {1, 1, 0, 0, -1}, {1, 0, 0, 0, -1}}, " ", "-", "Available", rowYellow, "Available, for adapter 1, 4"},
    {{alone, deadBackup}, " ", "-", "Down", rowRed, "Down"},
    {{alone, {0, 2, 0, 2, -1}}, " ", "-", "Down", rowRed, "Down"},
    {{alone, {0, 2, 1, 2, 2}}, " ", "-", "Down", rowRed, "Backed Up by 3"},
    {{alone, {0, 0, 1, 65535, 0}}, " ", "-", "?", rowGrey, ""},
};
// clang-format on

void expectRow(const AdapterStatus& row, const std::string& type, const std::string& dataLink,
               const std::string& mac, const std::string& status, const std::string& switchConfig,
               const zColor& color, const std::string& sentence) {
  EXPECT_EQ(row.type, type);
  EXPECT_EQ(row.dataLink, dataLink);
  EXPECT_EQ(row.macAddress, mac);
  EXPECT_EQ(row.status, status);
  EXPECT_EQ(row.switchConfig, switchConfig);
  EXPECT_TRUE(row.color == color);
  EXPECT_EQ(row.sentence, sentence);
}

TEST(AdapterStatus, NamesEveryState) {
  for (const PrimaryCase& c : primaries) {
    SCOPED_TRACE(testing::Message() << "primary " << &c - primaries);
    expectRow(describeAdapter(devicesOf({c.board, c.other}), 0), "Primary", c.dataLink, c.mac,
              c.status, c.switchConfig, c.color, std::string("Adapter 1: ") + c.sentence);
  }
  for (const BackupCase& c : backups) {
    SCOPED_TRACE(testing::Message() << "backup " << &c - backups);
    expectRow(describeAdapter(devicesOf(c.boards), 1), "Backup", c.dataLink, c.mac, c.status, " ",
              c.color, std::string("Adapter 2: ") + c.sentence);
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
