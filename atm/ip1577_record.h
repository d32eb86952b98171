// An adapter's classical IP over ATM client (RFC 1577).
#pragma once

#include <cstdint>
#include <vector>

#include "atm/address.h"
#include "atm/limits.h"
#include "atm/pvc_records.h"

struct IP1577XferBuffer;

struct AtmIP1577 {
  std::int32_t Enabled = 0;
  std::int32_t Config = 0;  // 1: permanent circuits only, no ARP server
  // Dotted text. A client whose address is the server's is its own ARP server.
  char ServerIPAddress[ipTextBytes] = "";
  char ServerIPMask[ipTextBytes] = "";
  char IPAddress[ipTextBytes] = "";
  atmAddress address = dfltAtmAddress;  // the ARP server's
  macAddress mac = {};                  // from the driver
  char PvcConfFile[fileNameBytes] = "";
  std::vector<AtmRoutedPvc> pvcs;

  // Takes what Setup edits, and nothing else.
  AtmIP1577& operator=(const IP1577XferBuffer& buffer);
};
