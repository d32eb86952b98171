// A trace (simulator/trace.h) as a person reads it.
#pragma once

#include <iosfwd>
#include <optional>
#include <string>

namespace lisim {

// What a trace line tells, in one line and one more for each row of a table that was delivered;
// nothing for a line that is none of a trace. Adapters, instances and rows are numbered as in the
// frame.
std::optional<std::string> decodeLine(const std::string& line);

// Decodes all of `in` to `out` and names the lines that are none of a trace on `errors`. True when
// there were none.
bool decodeTrace(std::istream& in, std::ostream& out, std::ostream& errors);

}  // namespace lisim
