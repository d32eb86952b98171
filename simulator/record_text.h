// Records as a person reads them: every field by its name.
#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "driver/record_layout.h"

namespace lisim {

using ByteView = std::span<const std::uint8_t>;

// "LECS on, MTU 4544, ELAN \"eng\"": the fields that `record` reaches, then what it has too few or,
// with `whole`, too many bytes of. Reserved bytes show when they are not zero.
std::string describeRecord(RecordLayout fields, ByteView record, bool whole);

// Two digits a byte, nothing between them.
std::string hexText(ByteView bytes);

}  // namespace lisim
