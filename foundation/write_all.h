// Writing to descriptors.
#pragma once

#include <string_view>

// Writes all of the text, also where signals interrupt it or the system takes it in pieces. False,
// with `errno`, at the first error; what was written before stays.
bool writeAll(int descriptor, std::string_view text);
