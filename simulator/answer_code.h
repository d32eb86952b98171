// What the simulated driver puts into a frame's Resp.
#pragma once

#include <cstdint>

namespace lisim {

enum class Answer : std::uint16_t {
  done = 0,
  badSize,
  badInput,
  unknownPrimitive,
  unknownType,
  badLink,
  noBoard,
  boardSilent,
  badUnit,
  badValue,
  noRoom,
  badRow,
  nothingToSwitch,
  switchTargetDown,
  switchTargetBusy,
  alreadyRunning,
  notRunning,
  badVc,
  vcInUse,
  noSuchEntry,
  tableFull,
};

// The words for `code`; the codes a fault put in have "code set by a fault".
const char* wordsOf(std::uint16_t code);

}  // namespace lisim
