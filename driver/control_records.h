// Payloads of control requests, each declared here and nowhere else; driver/control_layouts.h tells
// and checks where their fields are. All integers are little-endian unless said otherwise. What is
// reserved is sent as zero.
//
// Each takes what the driver wants of a service's record by assignment.
#pragma once

#include <cstdint>
#include <iosfwd>

#include "atm/address.h"
#include "atm/limits.h"
#include "atm/sig_port_cfg.h"

struct AtmBridgedPvc;
struct AtmIP1577;
struct AtmLEC;
struct AtmLECS;
struct AtmLES;
struct AtmRoutedPvc;

// Starts a LAN Emulation client.
struct lecReqStruct {
  std::uint32_t lecs = 0;  // 1 joins through the configuration server, 0 goes to the server itself
  std::uint8_t address[atmAddressBytes] = {};  // of the one it contacts
  std::uint32_t mfs = 0;                       // frame size, from 1
  char elanName[elanNameBytes] = {};           // not terminated at full length
  std::uint32_t elanType = 0;                  // 0 Ethernet, 1 Token Ring
  std::uint32_t config = 0;                    // 1: permanent circuits only
  std::uint32_t l3Mtu = 0;                     // bytes
  std::uint32_t defaultPcr = 0;                // of unspecified-rate circuits, cells per second

  lecReqStruct& operator=(const AtmLEC& lec);
};
static_assert(sizeof(lecReqStruct) == 76);

// Adds or deletes a circuit of a LAN Emulation client. Its rate stays with the applet.
struct bdgPvcReqStruct {
  std::uint8_t macAddress[esiBytes] = {};  // the far end's
  std::uint16_t vcIndex = 0;
  std::uint8_t encapsulation = 0;  // 0 none, 1 LLC
  std::uint8_t broadcast = 0;      // 1 carries broadcasts too
  std::uint8_t reserved[50] = {};

  bdgPvcReqStruct& operator=(const AtmBridgedPvc& pvc);
};
static_assert(sizeof(bdgPvcReqStruct) == 60);

// Starts a LAN Emulation server.
struct lesReqStruct {
  char elanName[elanNameBytes] = {};  // not terminated at full length
  std::uint32_t elanNameStrict = 0;
  std::uint32_t mfs = 0;  // frame size, from 1
  std::uint32_t mfsStrict = 0;
  std::uint32_t elanType = 0;  // 1 Ethernet, 2 Token Ring
  std::uint32_t reserved = 0;

  lesReqStruct& operator=(const AtmLES& les);
};
static_assert(sizeof(lesReqStruct) == 52);

// The configuration server itself, or one of its client mappings.
struct lecs_req {
  std::uint8_t address[atmAddressBytes] = {};
  std::uint32_t elanType = 0;                       // 1 Ethernet, 2 Token Ring
  std::uint32_t etherMfs = 0;                       // frame size, from 1
  std::uint32_t tokenRingMfs = 0;                   // frame size, from 1
  std::uint8_t esiSelector[esiSelectorBytes] = {};  // the server's own or the client's
  std::uint8_t reserved = 0;
  std::uint32_t index = 0;  // a client's row; 0 for the server

  lecs_req& operator=(const AtmLECS& lecs);
};
static_assert(sizeof(lecs_req) == 44);
using lecsReqStruct = lecs_req;

// Starts the IP over ATM service. The IP addresses are numbers, the first of the four bytes the
// highest.
struct ip1577ReqStruct {
  std::uint16_t reserved0 = 0;
  std::uint16_t reserved2 = 0;
  std::uint32_t serverIpAddress = 0;
  std::uint32_t serverIpMask = 0;
  std::uint32_t ipAddress = 0;
  std::uint8_t address[atmAddressBytes] = {};  // the ARP server's
  std::uint32_t config = 0;                    // 1: permanent circuits only

  ip1577ReqStruct& operator=(const AtmIP1577& ip);
};
static_assert(sizeof(ip1577ReqStruct) == 40);

// Adds or deletes a circuit of the IP service. Its rate stays with the applet.
struct ip_pvc {
  std::uint8_t ipAddress[4] = {};  // in network order
  std::uint16_t vcIndex = 0;
  std::uint8_t encapsulation = 0;  // 0 none, 1 LLC
  std::uint8_t reserved[49] = {};

  ip_pvc& operator=(const AtmRoutedPvc& pvc);
};
static_assert(sizeof(ip_pvc) == 56);
using rtdPvcReqStruct = ip_pvc;

// Changes the signalling record of a board: `sigPortCfg_s` itself.

// Starts or stops signalling on a board.
enum SigPortState : std::uint8_t { sigPortEnabled = 1, sigPortDisabled = 2 };
struct sig_port_req {
  std::uint8_t run = 1;
  std::uint8_t port = 0;   // adapter
  std::uint8_t state = 0;  // a SigPortState
};
static_assert(sizeof(sig_port_req) == 3);

// Switches one of the driver's own signalling traces.
struct sig_trace_req {
  std::uint8_t reserved = 0;
  std::uint8_t selector = 0;  // 1 API, 2 signalling, 4 ILMI
  std::uint8_t state = 0;     // 1 on
};
static_assert(sizeof(sig_trace_req) == 3);

// A board's place in a redundant pair.
struct rls_req {
  std::int32_t primary = 0;     // 1 primary, 0 backup
  std::int32_t backup = 0;      // adapter number of the backup, -1 none
  std::int32_t autoSwitch = 0;  // 1: the link returns by itself
};
static_assert(sizeof(rls_req) == 12);

// What a request with a single word carries.
struct word_req {
  std::uint32_t value = 0;
};
static_assert(sizeof(word_req) == 4);

// The payload that `record` makes.
template <class Payload, class Record>
Payload payloadOf(const Record& record) {
  Payload payload;
  payload = record;
  return payload;
}

// The log's form: every byte in hexadecimal, three columns each, ten to a line.
std::ostream& operator<<(std::ostream& os, const lecs_req& record);
std::ostream& operator<<(std::ostream& os, const ip_pvc& record);
