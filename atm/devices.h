// The whole configuration in memory.
#pragma once

#include <cstdint>

#include "atm/ip1577_record.h"
#include "atm/lec_record.h"
#include "atm/limits.h"
#include "atm/phy_record.h"
#include "atm/sig_record.h"

// Filled from the configuration file and the driver at the start, read by the tables and the file's
// writer, changed by accepted Setup dialogs. Indices are adapter numbers from 0, then instances.
struct AtmDevices {
  AtmPhy phy[maxAdapters];
  AtmSig sig[maxAdapters];

  // Limits of the driver as a whole.
  std::uint8_t DaiRev = 1;
  std::uint16_t MaxUsrSaps = 32;
  std::uint32_t MaxPtToPt = 1024;
  std::uint32_t MaxPtToMpt = 24;
  std::uint32_t MaxMptEndpts = 256;

  AtmLEC lec[maxAdapters][maxLecs];
  AtmLES les[maxAdapters][maxLess];
  AtmLECS lecs[maxAdapters];
  AtmIP1577 ip1577[maxAdapters];

  std::uint32_t numAdapters = 0;  // set when the boards are found
};

extern AtmDevices atmDevices;

// The running driver's package revision, empty without a driver.
extern char brennwick_driver_revision[40];
