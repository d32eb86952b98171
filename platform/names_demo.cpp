#include "platform/names.h"

char devbase[8] = "./li";
const char atmDirectory[] = "./etc/atm";
