// What holds for the permanent circuits of all services.
#pragma once

#include <algorithm>

#include "simulator/request.h"

namespace lisim {

// Whether the board can take a circuit more, at `vci`.
inline Answer checkNewCircuit(Request& request, bool running, std::uint16_t vci) {
  if (!running) return Answer::notRunning;
  const Board& board = request.board();
  if (vci == 0 || vci >= board.maxVc) return Answer::badVc;
  const auto vcis = vcisOf(board, request.services());
  return std::ranges::find(vcis, vci) == vcis.end() ? Answer::done : Answer::vcInUse;
}

// Takes the circuit at `vci` out of a service's list.
template <class Pvcs>
Answer removeCircuit(Pvcs& pvcs, std::uint16_t vci) {
  return std::erase_if(pvcs, [vci](const auto& pvc) { return pvc.vcIndex == vci; }) == 0
             ? Answer::noSuchEntry
             : Answer::done;
}

// A flag or a number of a list in a request's record.
inline bool isOneOf(std::uint32_t value, std::uint32_t first, std::uint32_t last) {
  return value >= first && value <= last;
}

constexpr std::uint32_t smallestFrame = 1;
constexpr std::uint32_t largestFrame = 4;

// What marks a table's row as that of a permanent circuit.
constexpr std::uint16_t permanentConnection = 2;

}  // namespace lisim
