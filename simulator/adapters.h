// All slots of the simulated host and the redundant pairs among them.
//
// A pair is a primary with a backup. Which of the two carries the primary's link is the one thing
// remembered; the states that are reported follow from it and from how well the boards are:
//
//   primary   well, carries its link            Active, its own number
//             well, its backup carries it       Inactive, the backup's number
//             not well                          Down, the backup's number or none
//   backup    well, carries a primary's link    Active, that primary's number
//             well, carries none                Inactive, none
//             not well                          Down, the number of the link it holds or none
//
// A primary that fails hands its link to a backup that is well and free. With auto-switch the link
// returns once the primary has been well for the return delay, or at once when the backup fails;
// without it, on request.
#pragma once

#include <array>
#include <string>

#include "simulator/answer_code.h"
#include "simulator/board.h"

namespace lisim {

// What a set-redundant-link request carries.
struct PairSetting {
  Role role;
  int backup;  // noBoard for none; of no meaning to a backup
  bool autoSwitch;
};

class Adapters {
 public:
  Adapters();

  Board& board(int index) { return boards_[static_cast<std::size_t>(index)]; }
  const Board& board(int index) const { return boards_[static_cast<std::size_t>(index)]; }

  // Slots 0 to count-1 get a board each, the others none; `count` is also what is reported.
  void populate(int count);
  std::uint16_t mask() const;

  // Brings the pairs up to `now`: returns that have come due, failures, recoveries. Called before
  // every look at the state and after every change of it.
  void advance(Milliseconds now);

  rls_status status(int index) const;
  // Moves the link that the board has to do with to the other board of its pair.
  Answer switchLink(int index);
  // `setting.backup` becomes a backup, whatever it was.
  Answer configure(int index, const PairSetting& setting);

  std::uint16_t number = 0;  // boards the driver says it has; can differ from the mask
  std::string revision = "lisim simulated adapter driver 2.20";
  std::uint32_t seed = 0;
  Milliseconds returnDelay = 10000;
  Milliseconds joinStep = 200;  // between two states of a service on its way up

 private:
  int servedBy(int backup) const;
  bool settlePrimary(int index, Milliseconds at);
  void settle(Milliseconds at);
  bool carriesLink(int index) const;
  void noteLinks(Milliseconds at);
  void startTraffic(Milliseconds at);
  void leavePair(int index);
  Board* firstReturn(Milliseconds until);

  std::array<Board, boardSlots> boards_;
};

}  // namespace lisim
