// Redundant pairs and counters, with time told by the test.
#include "simulator/adapters.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "simulator/command.h"

using namespace lisim;

namespace {

// Runs commands at given times and tells the boards' states, "0/0 1/-1" for link state and active
// link of the first boards.
class Host {
 public:
  explicit Host(int boards) : boards_(boards) { simulator_.adapters.populate(boards); }

  std::string at(Milliseconds now, const std::string& line) {
    std::string error;
    if (const auto command = parseCommand(line, error))
      error = runCommand(simulator_, *command, now).error;
    simulator_.adapters.advance(now);
    return error.empty() ? states() : error;
  }

  std::uint32_t cellsIn(int board, Milliseconds now) {
    simulator_.adapters.advance(now);
    return aalStatsOf(simulator_.adapters.board(board), now, simulator_.adapters.seed).rxCells;
  }

 private:
  std::string states() const {
    std::string text;
    for (int board = 0; board < boards_; ++board) {
      const rls_status status = simulator_.adapters.status(board);
      text += (board ? " " : "") + std::to_string(status.linkState) + "/" +
              std::to_string(status.activeLink);
    }
    return text;
  }

  Simulator simulator_;
  int boards_;
};

struct Step {
  Milliseconds time;
  const char* command;
  const char* states;
};

struct Story {
  const char* name;
  int boards;
  std::vector<Step> steps;
};

const Story stories[] = {
    {"manual pair",
     2,
     {{0, "pair 1 2 manual", "0/0 1/-1"},
      {1000, "board 1 link down", "2/1 0/0"},
      {2000, "switch 1", "the board that would take the link is not well"},
      {3000, "board 1 link up", "1/1 0/0"},
      {60000, "", "1/1 0/0"},
      {61000, "board 2 link down", "1/1 2/0"},
      {62000, "board 2 link up", "1/1 0/0"},
      {63000, "switch 2", "0/0 1/-1"},
      {64000, "switch 2", "the board has no link to switch"},
      {65000, "switch 1", "1/1 0/0"},
      {66000, "switch 1", "0/0 1/-1"},
      {67000, "board 2 link down", "0/0 2/-1"},
      {68000, "switch 1", "the board that would take the link is not well"},
      {69000, "board 1 link down", "2/1 2/-1"},
      {70000, "board 2 link up", "2/1 0/0"},
      {71000, "unpair 1", "2/-1 1/-1"}}},
    {"auto-switch",
     2,
     {{0, "pair 1 2 auto", "0/0 1/-1"},
      {1, "return-delay 5s", "0/0 1/-1"},
      {1000, "board 1 link down", "2/1 0/0"},
      {20000, "board 1 link up", "1/1 0/0"},
      {24999, "", "1/1 0/0"},
      {25000, "", "0/0 1/-1"},
      {30000, "switch 1", "1/1 0/0"},
      {33000, "board 1 link down", "2/1 0/0"},
      {34000, "board 1 link up", "1/1 0/0"},
      {38999, "", "1/1 0/0"},
      {39000, "", "0/0 1/-1"},
      {40000, "board 1 silent", "2/1 0/0"},
      {41000, "board 1 present", "1/1 0/0"},
      {42000, "board 2 absent", "0/0 2/-1"}}},
    {"two primaries, one backup",
     3,
     {{0, "pair 1 3 auto", "0/0 0/1 1/-1"},
      {0, "pair 2 3 manual", "0/0 0/1 1/-1"},
      {1000, "switch 2", "0/0 1/2 0/1"},
      {2000, "switch 1", "the backup carries another board's link"},
      {3000, "board 1 link down", "2/2 1/2 0/1"},
      {4000, "switch 3", "2/2 0/1 0/0"},
      {5000, "pair 3 1", "2/-1 0/1 0/2"},
      {6000, "switch 2", "the board has no link to switch"}}},
    {"told what to report",
     1,
     {{0, "board 1 state 9 none", "9/-1"},
      {1, "board 1 state 0 250", "0/249"},
      {2, "board 1 state auto", "0/0"},
      {3, "pair 1 1", "value out of range"}}},
};

TEST(Adapters, PairsFollowTheirBoards) {
  for (const Story& story : stories) {
    Host host(story.boards);
    for (const Step& step : story.steps)
      EXPECT_EQ(host.at(step.time, step.command), step.states)
          << story.name << " at " << step.time << ": " << step.command;
  }
}

TEST(Adapters, CountersGrowWrapAndRestWithTheLink) {
  Host host(2);
  host.at(0, "pair 1 2 manual");
  host.at(0, "board 1 counter cells-in 4294967000");
  host.at(0, "board 1 rate cells-in 100");
  EXPECT_EQ(host.cellsIn(0, 2950), 4294967295U);
  EXPECT_EQ(host.cellsIn(0, 2960), 0U);
  EXPECT_EQ(host.cellsIn(0, 4000), 104U);
  host.at(4000, "board 1 rate cells-in 1000");
  EXPECT_EQ(host.cellsIn(0, 5000), 1104U);
  host.at(5000, "switch 1");
  EXPECT_EQ(host.cellsIn(0, 9000), 1104U);
  host.at(9000, "switch 1");
  EXPECT_EQ(host.cellsIn(0, 9500), 1604U);
}

// A return that fell between two looks counts from when it was due.
TEST(Adapters, TrafficReturnsWhenTheLinkDid) {
  Host host(2);
  for (const char* line : {"pair 1 2 auto", "return-delay 5s", "board 1 rate cells-in 1000"})
    host.at(0, line);
  host.at(0, "switch 1");
  EXPECT_EQ(host.cellsIn(0, 7000), 2000U);
}

TEST(Adapters, WanderingCountersStayNearTheirRateAndNeverFall) {
  Counter counter;
  counter.setRate(1000, 0, 3);
  std::uint32_t last = 0;
  bool exact = true;
  for (Milliseconds time = 0; time < 20000; time += 37) {
    const std::uint32_t value = counter.value(time, 3);
    EXPECT_GE(value, last);
    EXPECT_LE(value, time + 250);
    exact &= value == time;
    last = value;
  }
  EXPECT_FALSE(exact);
}

}  // namespace
