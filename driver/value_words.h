// The words for numbers in the driver's records.
#pragma once

#include "driver/record_layout.h"

namespace words {

inline constexpr const char* offOnTexts[] = {"off", "on"};
inline constexpr const char* frameSizeTexts[] = {"1516", "4544", "9234", "18190"};
inline constexpr const char* elanTypeTexts[] = {"Ethernet", "Token Ring"};
inline constexpr const char* encapsulationTexts[] = {"NULL", "LLC_SNAP"};
inline constexpr const char* framingTexts[] = {"SONET", "SDH"};
inline constexpr const char* boardTypeTexts[] = {"backup", "primary"};
inline constexpr const char* portStateTexts[] = {"enabled", "disabled"};
inline constexpr const char* traceTexts[] = {"API", "signalling", "3", "ILMI"};
inline constexpr const char* uniTexts[] = {"3.0", "3.1", "4.0"};
inline constexpr const char* linkStateTexts[] = {"Active", "Inactive", "Down"};

inline constexpr ValueWords offOn{0, offOnTexts};
inline constexpr ValueWords frameSizes{1, frameSizeTexts};  // bytes
inline constexpr ValueWords clientElanTypes{0, elanTypeTexts};
inline constexpr ValueWords serverElanTypes{1, elanTypeTexts};
inline constexpr ValueWords encapsulations{0, encapsulationTexts};
inline constexpr ValueWords framings{0, framingTexts};
inline constexpr ValueWords boardTypes{0, boardTypeTexts};
inline constexpr ValueWords portStates{1, portStateTexts};
inline constexpr ValueWords traceSelectors{1, traceTexts};
inline constexpr ValueWords uniCodes{2, uniTexts};
inline constexpr ValueWords linkStates{0, linkStateTexts};

}  // namespace words
