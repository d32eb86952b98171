#include "atm/devices.h"

AtmDevices atmDevices;
