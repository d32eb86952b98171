#include "atm/sig_record.h"

#include <cstring>

char* AtmSig::GetNetworkPrefix() {
  prefixText.fromHex(cfg.NetPrefix, networkPrefixBytes);
  return prefixText.GetNetworkPrefix();
}

void AtmSig::setNetPrefix(const unsigned char* prefix) {
  constexpr std::uint8_t configuredForm = 2;
  std::memcpy(cfg.NetPrefix, prefix, networkPrefixBytes);
  cfg.addressForm = configuredForm;
  cfg.addressLength = networkPrefixBytes;
}
