#include "atm/sig_record.h"

#include <cstring>

char* AtmSig::GetNetworkPrefix() const {
  atmAddress text = dfltAtmAddress;
  text.fromHex(cfg.NetPrefix, networkPrefixBytes);
  return text.GetNetworkPrefix();
}

void AtmSig::setNetPrefix(const unsigned char* prefix) {
  constexpr std::uint8_t configuredForm = 2;
  std::memcpy(cfg.NetPrefix, prefix, networkPrefixBytes);
  cfg.addressForm = configuredForm;
  cfg.addressLength = networkPrefixBytes;
}
