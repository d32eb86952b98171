#include "shell/version.h"

const char* const brennwick_ondrelle_what =
    "@(#)Brennwick Ondrelle; SunOS 5.5.1 i386; Vers:2.20, Wed 06/03/98 15:12 (CDT).";

const std::uint32_t brennwick_od_build_id = 1998060315;
