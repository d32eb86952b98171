// What stands between the records of the adapter being set up and the Setup pages. Setup copies
// the records into each buffer and its `prev...` twin, the pages edit the buffers, and when they
// are accepted the buffers are compared with their twins and copied back. One set, for one adapter
// at a time.
//
// Addresses are held as the masked fields edit them, as digits without separators; what the fields
// keep as check boxes and places in lists is a signed 16-bit number. Frame sizes are places in
// lists, so one less than in the records.
//
// Each assignment from a buffer is declared with its record. A text that is shorter than an
// address wants leaves the digits it doesn't reach.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "atm/address.h"
#include "atm/cell_rate.h"
#include "atm/limits.h"
#include "atm/pvc_records.h"

struct AtmIP1577;
struct AtmLEC;
struct AtmLECS;
struct AtmLES;
struct AtmPhy;
struct AtmSig;

// Physical layer; the redundancy values are the record's current ones.
struct PhyXferBuffer {
  std::int32_t Framing = 0;
  std::int32_t VPI = 0;
  std::int32_t RLPrimary = 0;
  std::int32_t RLBackup = 0;
  std::int32_t RLAutoSwitch = 0;
  std::uint16_t linkState = 0;
  std::int16_t activeLink = 0;
  std::int32_t InterruptNumber = 0;

  PhyXferBuffer& operator=(const AtmPhy& phy);
};

struct SigXferBuffer {
  std::int16_t Enabled = 0;
  std::int16_t UniRev = 0;  // 0 UNI 3.0, 1 UNI 3.1, 2 UNI 4.0
  std::int32_t VciLow = 0;  // lowest VCI of switched circuits; shown only
  std::int32_t VciMax = 0;  // highest one
  std::int16_t IlmiEnableAutoConfig = 0;
  std::int16_t AddressRegistration = 0;
  std::int16_t PortChangeDetect = 0;
  std::int16_t RegDiffNetPrefix = 0;
  std::string NetPrefix;

  SigXferBuffer& operator=(const AtmSig& sig);
};

struct LECXferBuffer {
  std::string ElanName;
  std::string AtmPrefix;
  std::string AtmEsiSel;
  std::string MacText;  // for display, in the form of the ELAN's type
  std::string AtmPrefix2;
  std::string AtmEsiSel2;
  std::int16_t passThrough = 0;
  std::int16_t L3Mtu = 0;
  std::int16_t Lecs = 0;
  std::int16_t Enabled = 0;
  std::int16_t Config = 0;
  std::int16_t EnhancedVC = 0;
  CellRateValue defaultPcr;
  std::int16_t Mfs = 0;
  std::int16_t ElanType = 0;  // 0 Ethernet, 1 Token Ring
  std::vector<AtmBridgedPvc> pvcs;

  LECXferBuffer& operator=(const AtmLEC& lec);
};

struct LESXferBuffer {
  std::int16_t Mfs = 0;
  std::int16_t Enabled = 0;
  std::int16_t MfsStrict = 0;
  std::int16_t ElanNameStrict = 0;
  std::int16_t ElanType = 0;  // 1 Ethernet, 2 Token Ring
  std::string ElanName;
  std::vector<esiSelector> clients;

  LESXferBuffer& operator=(const AtmLES& les);
};

struct LECSXferBuffer {
  std::int16_t EtherMfs = 0;
  std::int16_t TRMfs = 0;
  std::int16_t Enabled = 0;
  std::int16_t ElanType = 0;  // 1 Ethernet, 2 Token Ring
  std::string AtmPrefix;
  std::string AtmEsiSel;

  LECSXferBuffer& operator=(const AtmLECS& lecs);
};

struct IP1577XferBuffer {
  std::int16_t Enabled = 0;
  std::int16_t Config = 0;
  std::int16_t EnableServer = 0;  // this client is the ARP server; goes one way, from the record
  std::string AtmPrefix;
  std::string AtmEsiSel;
  std::string ServerIPAddress;
  std::string IPAddress;
  std::string ServerIPMask;
  std::string MacText;
  std::vector<AtmRoutedPvc> pvcs;

  IP1577XferBuffer& operator=(const AtmIP1577& ip);
};

extern PhyXferBuffer phyXferBuffer, prevPhyBuffer;
extern SigXferBuffer sigXferBuffer, prevSigBuffer;
extern LECXferBuffer xferBuffer[maxLecs], prevLecBuffer[maxLecs];
extern LESXferBuffer lesXferBuffer[maxLess], prevLesBuffer[maxLess];
extern LECSXferBuffer lecsXferBuffer, prevLecsBuffer;
extern IP1577XferBuffer ip1577XferBuffer, prevIP1577Buffer;

// Between a page and its modal editor.
extern AtmRoutedPvc pvcXferBuffer;
extern AtmBridgedPvc bridgedPvcXferBuffer;
extern esiSelector esiSelectorXferBuffer;

// The client picker's lists, of equal length: addresses, their servers, whether they are permanent.
extern std::vector<esiSelector> esiXferBuffer;
extern std::vector<int> indexXferBuffer;
extern std::vector<bool> permXferBuffer;

extern std::uint32_t BoardVPI;  // the VPI that the pages share
extern std::int32_t UnitsType;  // rate unit of the PVC editors: 0 megabits, 1 cells
