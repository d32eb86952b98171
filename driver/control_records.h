// Payloads of control requests, each laid out here and nowhere else. All integers are
// little-endian unless said otherwise.
#pragma once

#include <cstddef>
#include <cstdint>
#include <iosfwd>

// The configuration server itself, or one of its client mappings.
struct lecs_req {
  std::uint8_t address[20];  // ATM address
  std::uint32_t elanType;
  std::uint32_t etherMfs;
  std::uint32_t tokenRingMfs;
  std::uint8_t esiSelector[7];  // the server's own or the client's
  std::uint8_t reserved;
  std::uint32_t index;  // a client's row; 0 for the server
};
static_assert(sizeof(lecs_req) == 44 && offsetof(lecs_req, elanType) == 20 &&
              offsetof(lecs_req, esiSelector) == 32 && offsetof(lecs_req, index) == 40);

// A routed PVC of the IP service.
struct ip_pvc {
  std::uint8_t ipAddress[4];  // in network order
  std::uint16_t vcIndex;
  std::uint8_t encapsulation;
  std::uint8_t reserved[49];
};
static_assert(sizeof(ip_pvc) == 56 && offsetof(ip_pvc, vcIndex) == 4 &&
              offsetof(ip_pvc, encapsulation) == 6);

// A board's place in a redundant pair.
struct rls_req {
  std::int32_t primary;     // 1 primary, 0 backup
  std::int32_t backup;      // adapter number of the backup, -1 none
  std::int32_t autoSwitch;  // 1: the link returns by itself
};
static_assert(sizeof(rls_req) == 12 && offsetof(rls_req, autoSwitch) == 8);

// The log's form: every byte in hexadecimal, three columns each, ten to a line.
std::ostream& operator<<(std::ostream& os, const lecs_req& record);
std::ostream& operator<<(std::ostream& os, const ip_pvc& record);
