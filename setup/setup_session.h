// The driver session of Setup. Each notebook opens one of its own, once its pages are there, and
// closes it when it goes.
#pragma once

#include <cstdint>

extern std::int32_t SetupIoctlDesc;      // the session opened last; closed between two notebooks
extern std::uint8_t ConfDaiOpenSuccess;  // whether the last attempt to open one succeeded
