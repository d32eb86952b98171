#include "atm/transfer_buffers.h"

#include <cstring>
#include <iterator>

#include "atm/devices.h"
#include "foundation/odlog.h"

PhyXferBuffer phyXferBuffer, prevPhyBuffer;
SigXferBuffer sigXferBuffer, prevSigBuffer;
LECXferBuffer xferBuffer[maxLecs], prevLecBuffer[maxLecs];
LESXferBuffer lesXferBuffer[maxLess], prevLesBuffer[maxLess];
LECSXferBuffer lecsXferBuffer, prevLecsBuffer;
IP1577XferBuffer ip1577XferBuffer, prevIP1577Buffer;

AtmRoutedPvc pvcXferBuffer;
AtmBridgedPvc bridgedPvcXferBuffer;
esiSelector esiSelectorXferBuffer;
std::vector<esiSelector> esiXferBuffer;
std::vector<int> indexXferBuffer;
std::vector<bool> permXferBuffer;
std::uint32_t BoardVPI = 0;
std::int32_t UnitsType = 0;

namespace {

constexpr std::size_t prefixDigits = 2 * networkPrefixBytes;
constexpr std::size_t esiSelectorDigits = 2 * esiSelectorBytes;

// The version numbers 30, 31 and 40 as the places 0, 1 and 2 of a list, and back.
constexpr std::int32_t firstVersion = 30;
constexpr std::int32_t lastThree = 31;
constexpr std::int32_t gapBehindThree = 8;
constexpr std::int32_t uniCodes[] = {uniCode30, uniCode31, uniCode40};

std::int32_t versionOfPlace(std::int32_t place) {
  const std::int32_t version = place + firstVersion;
  return version > lastThree ? version + gapBehindThree : version;
}

// A number that is no version, as the initial one, is a place already.
std::int32_t placeOfVersion(std::int32_t version) {
  if (version >= firstVersion) version -= firstVersion;
  return version > 9 ? version - gapBehindThree : version;
}

std::int16_t narrow(std::int32_t value) {
  return static_cast<std::int16_t>(value);
}

// Copies the texts of an address over its digits, as far as they reach.
void copyAddress(atmAddress& address, const std::string& prefix, const std::string& esiSelector) {
  prefix.copy(address.text, prefixDigits);
  esiSelector.copy(address.text + prefixDigits, esiSelectorDigits);
}

// Cuts a text to its field, which stays terminated.
template <std::size_t size>
void copyText(char (&field)[size], const std::string& text) {
  std::strncpy(field, text.c_str(), size - 1);
  field[size - 1] = '\0';
}

}  // namespace

AtmPhy& AtmPhy::operator=(const PhyXferBuffer& buffer) {
  Framing = buffer.Framing;
  VPI = buffer.VPI;
  RLPrimary = buffer.RLPrimary;
  RLBackup = buffer.RLBackup;
  RLAutoSwitch = buffer.RLAutoSwitch;
  cfgRLAutoSwitch = buffer.RLAutoSwitch;
  setLink(buffer.linkState, buffer.activeLink);
  InterruptNumber = buffer.InterruptNumber;
  return *this;
}

PhyXferBuffer& PhyXferBuffer::operator=(const AtmPhy& phy) {
  Framing = phy.Framing;
  VPI = phy.VPI;
  RLPrimary = phy.RLPrimary;
  RLBackup = phy.RLBackup;
  RLAutoSwitch = phy.RLAutoSwitch;
  linkState = phy.linkState;
  activeLink = phy.activeLink;
  InterruptNumber = phy.InterruptNumber;
  return *this;
}

AtmSig& AtmSig::operator=(const SigXferBuffer& buffer) {
  Enabled = buffer.Enabled;
  UniRev = versionOfPlace(buffer.UniRev);
  if (buffer.UniRev >= 0 && buffer.UniRev < static_cast<int>(std::size(uniCodes))) {
    cfg.UniRevision = uniCodes[buffer.UniRev];
  } else {
    odlog << "******** UniRev NOT handled, # " << buffer.UniRev << " Setting to Uni 4.0"
          << std::endl;
  }
  cfg.IlmiEnableAutoConfig = static_cast<std::uint8_t>(buffer.IlmiEnableAutoConfig);
  cfg.AddressRegistration = static_cast<std::uint8_t>(buffer.AddressRegistration);
  cfg.PortChangeDetect = static_cast<std::uint8_t>(buffer.PortChangeDetect);
  cfg.RegDiffNetPrefix = static_cast<std::uint8_t>(buffer.RegDiffNetPrefix);
  VciHigh = buffer.VciMax + 1;
  atmAddress text = dfltAtmAddress;
  copyAddress(text, buffer.NetPrefix, "");
  unsigned char prefix[networkPrefixBytes];
  text.toHex(prefix, networkPrefixBytes);
  setNetPrefix(prefix);
  return *this;
}

SigXferBuffer& SigXferBuffer::operator=(const AtmSig& sig) {
  Enabled = narrow(sig.Enabled);
  UniRev = narrow(placeOfVersion(sig.UniRev));
  VciLow = sig.VciLow;
  VciMax = sig.VciHigh - 1;
  IlmiEnableAutoConfig = sig.cfg.IlmiEnableAutoConfig;
  AddressRegistration = sig.cfg.AddressRegistration;
  PortChangeDetect = sig.cfg.PortChangeDetect;
  RegDiffNetPrefix = sig.cfg.RegDiffNetPrefix;
  NetPrefix = sig.GetNetworkPrefix();
  return *this;
}

AtmLEC& AtmLEC::operator=(const LECXferBuffer& buffer) {
  Enabled = buffer.Enabled;
  Config = buffer.Config;
  EnhancedVC = buffer.EnhancedVC;
  defaultPcr = buffer.defaultPcr;
  Lecs = buffer.Lecs;
  Mfs = buffer.Mfs + 1;
  ElanType = buffer.ElanType;
  L3Mtu = buffer.L3Mtu;
  pvcs = buffer.pvcs;
  passThrough = buffer.passThrough;
  copyText(ElanName, buffer.ElanName);
  copyAddress(address, buffer.AtmPrefix, buffer.AtmEsiSel);
  // The second address keeps its lower half: both its texts go to the front.
  copyAddress(address2, buffer.AtmPrefix2, "");
  copyAddress(address2, buffer.AtmEsiSel2, "");
  return *this;
}

LECXferBuffer& LECXferBuffer::operator=(const AtmLEC& lec) {
  Enabled = narrow(lec.Enabled);
  Config = narrow(lec.Config);
  EnhancedVC = narrow(lec.EnhancedVC);
  defaultPcr = lec.defaultPcr;
  Lecs = narrow(lec.Lecs);
  Mfs = narrow(lec.Mfs - 1);
  ElanType = narrow(lec.ElanType);
  L3Mtu = narrow(lec.L3Mtu);
  pvcs = lec.pvcs;
  passThrough = narrow(lec.passThrough);
  ElanName = lec.ElanName;
  AtmPrefix = lec.address.GetNetworkPrefix();
  AtmEsiSel = lec.address.GetESISelector();
  AtmPrefix2 = lec.address2.GetNetworkPrefix();
  AtmEsiSel2 = lec.address2.GetESISelector();
  macAddress shown = lec.mac;
  if (ElanType != 0) shown.formSwap();
  MacText = shown.GetFMacAddress();
  return *this;
}

AtmLES& AtmLES::operator=(const LESXferBuffer& buffer) {
  Mfs = buffer.Mfs + 1;
  Enabled = buffer.Enabled;
  MfsStrict = buffer.MfsStrict;
  ElanNameStrict = buffer.ElanNameStrict;
  ElanType = buffer.ElanType;
  copyText(ElanName, buffer.ElanName);
  clients = buffer.clients;
  return *this;
}

LESXferBuffer& LESXferBuffer::operator=(const AtmLES& les) {
  Mfs = narrow(les.Mfs - 1);
  Enabled = narrow(les.Enabled);
  MfsStrict = narrow(les.MfsStrict);
  ElanNameStrict = narrow(les.ElanNameStrict);
  ElanType = narrow(les.ElanType);
  ElanName = les.ElanName;
  clients = les.clients;
  return *this;
}

AtmLECS& AtmLECS::operator=(const LECSXferBuffer& buffer) {
  EtherMfs = buffer.EtherMfs + 1;
  TRMfs = buffer.TRMfs + 1;
  Enabled = buffer.Enabled;
  ElanType = buffer.ElanType;
  copyAddress(address, buffer.AtmPrefix, buffer.AtmEsiSel);
  return *this;
}

LECSXferBuffer& LECSXferBuffer::operator=(const AtmLECS& lecs) {
  EtherMfs = narrow(lecs.EtherMfs - 1);
  TRMfs = narrow(lecs.TRMfs - 1);
  Enabled = narrow(lecs.Enabled);
  ElanType = narrow(lecs.ElanType);
  AtmPrefix = lecs.address.GetNetworkPrefix();
  AtmEsiSel = lecs.address.GetESISelector();
  return *this;
}

AtmIP1577& AtmIP1577::operator=(const IP1577XferBuffer& buffer) {
  Enabled = buffer.Enabled;
  Config = buffer.Config;
  pvcs = buffer.pvcs;
  copyAddress(address, buffer.AtmPrefix, buffer.AtmEsiSel);
  copyText(ServerIPAddress, buffer.ServerIPAddress);
  copyText(ServerIPMask, buffer.ServerIPMask);
  copyText(IPAddress, buffer.IPAddress);
  return *this;
}

IP1577XferBuffer& IP1577XferBuffer::operator=(const AtmIP1577& ip) {
  Enabled = narrow(ip.Enabled);
  Config = narrow(ip.Config);
  pvcs = ip.pvcs;
  AtmPrefix = ip.address.GetNetworkPrefix();
  AtmEsiSel = ip.address.GetESISelector();
  ServerIPAddress = ip.ServerIPAddress;
  ServerIPMask = ip.ServerIPMask;
  IPAddress = ip.IPAddress;
  MacText = ip.mac.GetFMacAddress();
  EnableServer = ServerIPAddress == IPAddress ? 1 : 0;
  return *this;
}
