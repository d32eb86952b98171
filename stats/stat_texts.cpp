#include "stats/stat_texts.h"

#include <algorithm>
#include <cstring>
#include <iomanip>

#include "applet/run_state.h"
#include "atm/address.h"
#include "atm/devices.h"
#include "foundation/bounded_stream.h"

namespace {

constexpr int vpiWidth = 3;
constexpr int vciWidth = 4;

template <class Number>
const char* numberText(Number number) {
  BoundedStream text(ioBuffer, sizeof ioBuffer);
  text << number;
  return text.terminate();
}

atmAddress addressOf(const std::uint8_t* bytes) {
  atmAddress address = dfltAtmAddress;
  address.fromHex(bytes);
  return address;
}

}  // namespace

const char* countText(std::uint32_t count) {
  return numberText(count);
}

const char* signedCountText(std::uint32_t count) {
  return numberText(static_cast<std::int32_t>(count));
}

const char* circuitText(short link, std::uint16_t vci) {
  BoundedStream text(ioBuffer, sizeof ioBuffer);
  text << std::setw(vpiWidth) << atmDevices.phy[link].VPI << '/' << std::setw(vciWidth) << vci;
  return text.terminate();
}

const char* nameText(const char (&name)[elanNameBytes]) {
  BoundedStream text(ioBuffer, sizeof ioBuffer);
  text.write(name, std::find(name, name + sizeof name, '\0') - name);
  return text.terminate();
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
