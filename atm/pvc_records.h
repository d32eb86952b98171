// Permanent virtual circuits of the clients. The VPI is the board's.
#pragma once

#include <cstdint>

#include "atm/address.h"

// A circuit of a LAN Emulation client.
struct AtmBridgedPvc {
  macAddress mac = {};  // the far end's
  std::uint16_t vci = 0;
  std::int32_t Encap = 0;  // 0 none, 1 LLC
  std::int32_t Bcast = 0;  // 1 carries broadcasts too
  std::uint32_t Rate = 0;  // as typed in the editor

  bool operator==(const AtmBridgedPvc&) const = default;
};

// A circuit of the IP over ATM client (RFC 1577).
struct AtmRoutedPvc {
  ipAddress ip = {};  // the far end's
  std::uint16_t vci = 0;
  std::int32_t Encap = 0;  // 0 none, 1 LLC
  std::int32_t Bcast = 0;  // kept for the layout shared with bridged circuits
  std::int32_t Rate = 0;

  bool operator==(const AtmRoutedPvc&) const = default;
};
