#include "platform/names.h"

char devbase[8] = "/dev/li";
const char atmDirectory[] = "/etc/atm";
