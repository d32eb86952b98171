// An adapter's UNI signalling.
#pragma once

#include <cstdint>

#include "atm/address.h"
#include "atm/sig_port_cfg.h"

struct SigXferBuffer;

struct AtmSig {
  std::int32_t Enabled = 1;
  // The version as people know it: 30, 31 or 40. The initial 1 is its place in the Setup list.
  std::int32_t UniRev = 1;
  sigPortCfg_s cfg;
  std::int32_t VciLow = 32;     // lowest VCI offered for switched circuits
  std::int32_t VciHigh = 1024;  // one above the highest

  // Takes the edited values. A place in the version list that there is none of leaves the code.
  AtmSig& operator=(const SigXferBuffer& buffer);

  // The 26 digits of the network prefix, in `getBuffer`.
  char* GetNetworkPrefix() const;
  // Takes 13 bytes of network prefix, with the form and length that mark them as configured.
  void setNetPrefix(const unsigned char* prefix);
};
