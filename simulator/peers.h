// The end systems that a board's services are connected to over switched circuits.
#pragma once

#include <cstdint>
#include <vector>

#include "simulator/board.h"

namespace lisim {

// Connect the one with this name over so many circuits (1 or 2), and end that. Each circuit takes
// the smallest VCI that is free on the board, and gives it back. One that is connected stays as it
// is. False when there is no VCI left, and when nothing of that name is connected.
bool connectPeer(Board& board, std::vector<Peer>& peers, std::uint64_t name, int circuits);
bool disconnectPeer(std::vector<Peer>& peers, std::uint64_t name);

// Has exactly `count` of them: ends the latest ones, or connects others, named from `firstName` up.
// False, and nothing done, when the VCIs do not suffice.
bool setPeers(Board& board, std::vector<Peer>& peers, std::size_t count, std::uint64_t firstName,
              int circuits);

}  // namespace lisim
