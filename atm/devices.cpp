#include "atm/devices.h"

AtmDevices atmDevices;
char brennwick_driver_revision[40] = "";
