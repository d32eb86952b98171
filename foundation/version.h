// What this program calls itself.
#pragma once

#include <cstdint>
#include <string_view>

// The version line; its first four characters are the marker that the Unix `what` tool looks for,
// and everybody here leaves them out.
extern const char* const brennwick_ondrelle_what;
inline std::string_view versionText() {
  return std::string_view(brennwick_ondrelle_what).substr(4);
}

// Its parts, as the configuration file's product record holds them.
extern const char* const brennwick_ondrelle_version;
extern const std::uint32_t brennwick_od_build_id;
extern const char* const brennwick_od_build_date;
extern const char* const brennwick_od_platform;
