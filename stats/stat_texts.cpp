#include "stats/stat_texts.h"

#include <cstdio>
#include <cstring>

#include "applet/run_state.h"
#include "atm/address.h"
#include "atm/devices.h"

namespace {

constexpr int vpiWidth = 3;
constexpr int vciWidth = 4;

atmAddress addressOf(const std::uint8_t* bytes) {
  atmAddress address = dfltAtmAddress;
  address.fromHex(bytes);
  return address;
}

}  // namespace

const char* countText(std::uint32_t count) {
  std::snprintf(ioBuffer, sizeof ioBuffer, "%u", count);
  return ioBuffer;
}

const char* signedCountText(std::uint32_t count) {
  std::snprintf(ioBuffer, sizeof ioBuffer, "%d", static_cast<std::int32_t>(count));
  return ioBuffer;
}

const char* circuitText(short link, std::uint16_t vci) {
  std::snprintf(ioBuffer, sizeof ioBuffer, "%*d/%*d", vpiWidth, int{atmDevices.phy[link].VPI},
                vciWidth, int{vci});
  return ioBuffer;
}

const char* nameText(const char (&name)[elanNameBytes]) {
  std::snprintf(ioBuffer, sizeof ioBuffer, "%.*s", int{sizeof name}, name);
  return ioBuffer;
}

const char* prefixText(const std::uint8_t* address) {
  return addressOf(address).GetFNetworkPrefix();
}

const char* esiSelectorText(const std::uint8_t* address) {
  return addressOf(address).GetFESISelector();
}

const char* macText(const std::uint8_t* address) {
  macAddress mac;
  std::memcpy(mac.bytes, address, sizeof mac.bytes);
  return mac.GetFMacAddress();
}

const char* ipText(const std::uint8_t* address) {
  ipAddress ip;
  std::memcpy(ip.bytes, address, sizeof ip.bytes);
  return ip.GetFIPAddress();
}
