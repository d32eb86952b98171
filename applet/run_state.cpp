#include "applet/run_state.h"

std::int32_t currentAdapter = 0;
std::uint32_t MaintimerTime = 6000;
std::uint32_t timerTime = 1000;
std::string dlgTitle;
std::int32_t ioctlDesc;
std::uint8_t DaiOpenSuccess = 0;
std::uint8_t BoardIsThere[maxAdapters] = {};
std::int32_t advSettings = 0;
char mainBuffer[mainBufferBytes];
char ioBuffer[ioBufferBytes];
