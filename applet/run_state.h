// What holds for the whole run and is shared by all dialogs. One thread uses it.
#pragma once

#include <cstdint>
#include <string>

#include "atm/limits.h"

extern std::int32_t currentAdapter;             // the selected adapter, 0 to 7
extern std::uint32_t MaintimerTime;             // period of the main timer, milliseconds
extern std::uint32_t timerTime;                 // period of the statistics pages, milliseconds
extern std::string dlgTitle;                    // caption text for the selected adapter
extern std::int32_t ioctlDesc;                  // the long-lived read-only driver session
extern std::uint8_t DaiOpenSuccess;             // that session is open
extern std::uint8_t BoardIsThere[maxAdapters];  // adapter present and answered
extern std::int32_t advSettings;                // nonzero: the advanced pages are offered

// Scratch for texts put together: the main dialog's, and the statistics pages'.
constexpr std::size_t mainBufferBytes = 256;
constexpr std::size_t ioBufferBytes = 256;
extern char mainBuffer[mainBufferBytes];
extern char ioBuffer[ioBufferBytes];
