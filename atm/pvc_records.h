// Permanent virtual circuits of the clients, and their form in the side files. The VPI is the
// board's.
#pragma once

#include <cstdint>
#include <iosfwd>

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

// One record in the form of the side files, without a line end behind its last line:
//
//     [PVC
//     	VC    =100	#VC index
//     	Addr  =192.168.1.7	# Format:  0000778899aa=MAC 123.123.123.123=IP
//     	Encap =1	# 0=Null 1=LLC
//     	Bcast =0	# For Bridged PVC only; 1=Broadcast 0=Non-Broadcast
//     	Rate  =0	# MB/s
//     ]
std::ostream& operator<<(std::ostream& out, const AtmBridgedPvc& pvc);
std::ostream& operator<<(std::ostream& out, const AtmRoutedPvc& pvc);

// Reads the next record: the five lines behind a head, in any order. A field that isn't among them
// or doesn't parse keeps its value, and so does all of `pvc` when the stream ends in front of a
// head, which leaves the stream failed.
std::istream& operator>>(std::istream& in, AtmBridgedPvc& pvc);
std::istream& operator>>(std::istream& in, AtmRoutedPvc& pvc);
