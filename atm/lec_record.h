// LAN Emulation (1.0): an adapter's clients, servers and configuration server.
//
// Two codings differ between them. A client's ElanType is 0 Ethernet and 1 Token Ring; in a server
// and the configuration server it is 1 Ethernet and 2 Token Ring. Frame sizes count from 1 in
// every record: 1 for 1516, 2 for 4544, 3 for 9234 and 4 for 18190 bytes.
#pragma once

#include <cstdint>
#include <vector>

#include "atm/address.h"
#include "atm/cell_rate.h"
#include "atm/limits.h"
#include "atm/pvc_records.h"

struct LECXferBuffer;
struct LECSXferBuffer;
struct LESXferBuffer;

// A LAN Emulation client.
struct AtmLEC {
  std::int32_t Enabled = 0;
  std::int32_t Config = 0;  // 1: permanent circuits only, no ELAN joined
  std::int32_t EnhancedVC = 0;
  CellRateValue defaultPcr;  // default peak cell rate of unspecified-rate circuits
  char ElanName[elanNameBytes] = "";
  std::int32_t Mfs = 1;
  std::int32_t L3Mtu = 0;               // 0 for a client that joins an ELAN
  std::int32_t Lecs = 1;                // 1 joins through the LECS, 0 goes to the LES directly
  std::int32_t ElanType = 0;            // 0 Ethernet, 1 Token Ring
  atmAddress address = dfltAtmAddress;  // the LECS or LES to contact
  macAddress mac = {};                  // from the driver
  char PvcConfFile[fileNameBytes] = "";
  std::int32_t passThrough = 0;  // goes round through the transfer buffer, as `address2` does
  atmAddress address2 = dfltAtmAddress;
  std::vector<AtmBridgedPvc> pvcs;

  // Takes what Setup edits, and nothing else.
  AtmLEC& operator=(const LECXferBuffer& buffer);
};

// A LAN Emulation server.
struct AtmLES {
  std::int32_t Enabled = 0;
  char ElanName[elanNameBytes] = "";
  std::int32_t Mfs = 1;
  std::int32_t ElanType = 1;  // 1 Ethernet, 2 Token Ring
  std::int32_t MfsStrict = 0;
  std::int32_t ElanNameStrict = 0;
  char ElanTbl[fileNameBytes] = "";  // the file of the permanent client mappings
  std::vector<esiSelector> clients;

  // Takes what Setup edits, and nothing else.
  AtmLES& operator=(const LESXferBuffer& buffer);
};

// The LAN Emulation configuration server.
struct AtmLECS {
  std::int32_t Enabled = 0;
  std::int32_t ElanType = 1;  // of ELANs that nothing else is said of; 1 Ethernet, 2 Token Ring
  std::int32_t EtherMfs = 1;
  std::int32_t TRMfs = 1;
  atmAddress address = dfltAtmAddress;

  // Takes what Setup edits, and nothing else.
  AtmLECS& operator=(const LECSXferBuffer& buffer);
};
