#include "foundation/version.h"

#define VERSION "2.20"
#define PLATFORM "SunOS 5.5.1 i386"
#define BUILD_DATE "Wed 06/03/98 15:12 (CDT)"

const char* const brennwick_ondrelle_what =
    "@(#)Brennwick Ondrelle; " PLATFORM "; Vers:" VERSION ", " BUILD_DATE ".";
const char* const brennwick_ondrelle_version = VERSION;
const std::uint32_t brennwick_od_build_id = 1998060315;
const char* const brennwick_od_build_date = BUILD_DATE;
const char* const brennwick_od_platform = PLATFORM;
