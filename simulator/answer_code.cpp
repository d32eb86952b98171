#include "simulator/answer_code.h"

#include <iterator>

namespace lisim {

namespace {

// In the enumeration's order.
constexpr const char* words[] = {
    "done",
    "the frame's size is not the length it came with",
    "the input size lies outside the frame or is too short for the request",
    "unknown primitive",
    "unknown type",
    "adapter number out of range",
    "no such board",
    "the board does not answer",
    "unit out of range",
    "value out of range",
    "no room for the reply",
    "rows are numbered from 1",
    "the board has no link to switch",
    "the board that would take the link is not well",
    "the backup carries another board's link",
    "the service runs already",
    "the service does not run",
    "the board has no such circuit",
    "the circuit is in use",
    "no such entry",
    "the table is full",
};
static_assert(std::size(words) == static_cast<std::size_t>(Answer::tableFull) + 1);

}  // namespace

const char* wordsOf(std::uint16_t code) {
  return code < std::size(words) ? words[code] : "code set by a fault";
}

}  // namespace lisim
