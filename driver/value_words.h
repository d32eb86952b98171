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
inline constexpr const char* mediumTexts[] = {"25 Mb/s", "OC3c multi-mode", "OC3c single-mode",
                                              "155 UTP"};
inline constexpr const char* busStateTexts[] = {"Idle", "Signalling A", "Signalling B", "Active"};
inline constexpr const char* lecStateTexts[] = {"off",       "joining 1", "joining 2",  "joining 3",
                                                "joining 4", "joining 5", "operational"};
inline constexpr const char* lesStateTexts[] = {"off", "running"};
inline constexpr const char* lecsStateTexts[] = {"off", "starting 1", "starting 2", "starting 3",
                                                 "operational"};
inline constexpr const char* ipStateTexts[] = {"off",        "starting 1", "starting 2",
                                               "starting 3", "starting 4", "operational"};
inline constexpr const char* connectionTexts[] = {"SVC", "PVC"};
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
inline constexpr ValueWords media{1, mediumTexts};
inline constexpr ValueWords busStates{0, busStateTexts};
inline constexpr ValueWords lecStates{0, lecStateTexts};
inline constexpr ValueWords lesStates{0, lesStateTexts};
inline constexpr ValueWords lecsStates{0, lecsStateTexts};
inline constexpr ValueWords ipStates{0, ipStateTexts};
inline constexpr ValueWords connections{1, connectionTexts};
inline constexpr ValueWords linkStates{0, linkStateTexts};

}  // namespace words
