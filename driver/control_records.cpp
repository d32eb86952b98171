#include "driver/control_records.h"

#include <arpa/inet.h>

#include <cstring>

#include "atm/ip1577_record.h"
#include "atm/lec_record.h"
#include "atm/pvc_records.h"

namespace {

std::uint32_t word(std::int32_t value) {
  return static_cast<std::uint32_t>(value);
}

template <std::size_t size>
void copyName(char (&field)[size], const char* name) {
  std::strncpy(field, name, size);  // fills up with zeros, and has no terminator when full
}

// The four bytes of a dotted address in network order.
in_addr_t networkOrder(const ipAddress& address) {
  char dotted[addressTextBytes];
  return inet_addr(address.GetFIPAddress(dotted));
}

std::uint32_t hostOrder(const char* dotted) {
  ipAddress address{};
  address = dotted;
  return ntohl(networkOrder(address));
}

}  // namespace

lecReqStruct& lecReqStruct::operator=(const AtmLEC& lec) {
  lecs = word(lec.Lecs);
  lec.address.toHex(address);
  mfs = word(lec.Mfs);
  copyName(elanName, lec.ElanName);
  elanType = word(lec.ElanType);
  config = word(lec.Config);
  l3Mtu = word(lec.L3Mtu);
  defaultPcr = lec.defaultPcr.cps;
  return *this;
}

bdgPvcReqStruct& bdgPvcReqStruct::operator=(const AtmBridgedPvc& pvc) {
  std::memcpy(macAddress, pvc.mac.bytes, sizeof macAddress);
  vcIndex = pvc.vci;
  encapsulation = static_cast<std::uint8_t>(pvc.Encap);
  broadcast = static_cast<std::uint8_t>(pvc.Bcast);
  return *this;
}

lesReqStruct& lesReqStruct::operator=(const AtmLES& les) {
  copyName(elanName, les.ElanName);
  elanNameStrict = word(les.ElanNameStrict);
  mfs = word(les.Mfs);
  mfsStrict = word(les.MfsStrict);
  elanType = word(les.ElanType);
  reserved = 0;
  return *this;
}

lecs_req& lecs_req::operator=(const AtmLECS& lecs) {
  lecs.address.toHex(address);
  elanType = word(lecs.ElanType);
  etherMfs = word(lecs.EtherMfs);
  tokenRingMfs = word(lecs.TRMfs);
  std::memcpy(esiSelector, address + networkPrefixBytes, sizeof esiSelector);
  index = 0;
  return *this;
}

ip1577ReqStruct& ip1577ReqStruct::operator=(const AtmIP1577& ip) {
  reserved0 = reserved2 = 0;
  serverIpAddress = hostOrder(ip.ServerIPAddress);
  serverIpMask = hostOrder(ip.ServerIPMask);
  ipAddress = hostOrder(ip.IPAddress);
  ip.address.toHex(address);
  config = word(ip.Config);
  return *this;
}

ip_pvc& ip_pvc::operator=(const AtmRoutedPvc& pvc) {
  const in_addr_t bytes = networkOrder(pvc.ip);
  std::memcpy(ipAddress, &bytes, sizeof ipAddress);
  vcIndex = pvc.vci;
  encapsulation = static_cast<std::uint8_t>(pvc.Encap);
  return *this;
}
