// The signalling sections. Key names have changed over time: older ones draw a log line, and one
// of them still counts.
#include <cstring>
#include <iomanip>

#include "atm/devices.h"
#include "foundation/odlog.h"
#include "store/driver_pdf_edit.h"

namespace {

constexpr std::int32_t missingUniRev = 31;

// The sections below Signalling0, by the names they have in the file and in the log.
constexpr struct {
  const char* name;
  const char* logName;
  const std::span<const SchemaKey>& keys;
  bool holdsCode;  // of the UNI version, which wins over the number in Signalling0
} sigChildren[] = {{"Q2931Section0", "Q2931", q2931Keys, true},
                   {"QSaalSection0", "QSaal", qSaalKeys, false},
                   {"IlmiSection0", "Ilmi", ilmiKeys, false}};

void logOldKey(const char* key, const char* oldKey) {
  odlog << "Please update odconf to use KEY " << key << " instead of " << oldKey << std::endl;
}

void logDefaultPrefix(short adapter) {
  odlog << std::endl;
  odlog << "WARNING: link " << adapter << ", Address Registration disabled," << std::endl;
  odlog << "but no NetPrefix configured" << std::endl;
  odlog << "\tUsing  atm_addr:";
  for (const unsigned char byte : dfltIlmiPrefix) odlog << std::setw(2) << byte;
  odlog << std::endl;
}

}  // namespace

void DriverPdfEdit::ReadSig(short adapter) {
  AtmSig& sig = atmDevices.sig[adapter];
  const std::string path = servicePath(adapter, "Signalling");
  if (openForReading(path)) readKeys(signallingKeys, &sig);
  sig.cfg.port = static_cast<std::uint8_t>(adapter);
  odlog << "  Link::port - " << adapter << "::" << int{sig.cfg.port} << std::endl;
  readFirstPass(adapter, sig);

  if (!openForReading(path)) {
    odlog << "Open " << path << " section failed, USING DEFAULTs" << std::endl;
    return;
  }
  QueryValue("DaiAdminStatus", &sig.cfg.DaiAdminStatus, T_CHAR, 1, true);
  readUniVersion(sig);
  unsigned char prefix[networkPrefixBytes];
  readSigFlags(adapter, sig, prefix);
  sig.setNetPrefix(prefix);
  closeKey();

  for (const auto& child : sigChildren) {
    if (!openForReading(path + '/' + child.name)) {
      odlog << "Open " << path << '/' << child.logName << " section fail, USING DEFAULT"
            << std::endl;
      continue;
    }
    if (child.holdsCode) readUniCode(sig);
    readKeys(child.keys, &sig.cfg);
    closeKey();
  }
}

void DriverPdfEdit::WriteSig(short adapter) {
  AtmSig& sig = atmDevices.sig[adapter];
  const std::string path = servicePath(adapter, "Signalling");
  writeSection(path, signallingWritten, &sig);
  writeSection(path + "/Q2931Section0", q2931Written, &sig);
  writeSection(path + "/IlmiSection0", ilmiWritten, &sig);
}

// The settings are taken from a section of the older name too, the prefix is not.
void DriverPdfEdit::readFirstPass(short adapter, AtmSig& sig) {
  for (const char* section : {"Signalling0", "Signalling"}) {
    if (!openForReading(adapterPath(adapter) + '/' + section)) continue;
    std::int32_t version;
    queryInt("UniRev", version);
    unsigned char prefix[networkPrefixBytes];
    readSigFlags(adapter, sig, prefix);
    return;
  }
}

void DriverPdfEdit::readSigFlags(short adapter, AtmSig& sig, unsigned char* prefix) {
  readSigFlag("AddressRegistration", "Ilmi", sig.cfg.AddressRegistration);
  readSigFlag("PortChangeDetect", "NoMibSync", sig.cfg.PortChangeDetect);
  std::memcpy(prefix, sig.cfg.NetPrefix, networkPrefixBytes);
  readNetPrefix(adapter, prefix);
  readSigFlag("RegDiffNetPrefix", nullptr, sig.cfg.RegDiffNetPrefix);
}

void DriverPdfEdit::readSigFlag(const char* key, const char* oldKey, std::uint8_t& flag) {
  std::int32_t value;
  if (queryInt(key, value)) {
    flag = static_cast<std::uint8_t>(value);
  } else if (oldKey != nullptr && queryInt(oldKey, value)) {
    logOldKey(key, oldKey);
  }
}

void DriverPdfEdit::readNetPrefix(short adapter, unsigned char* prefix) {
  if (QueryValue("NetPrefix", prefix, T_HEX, networkPrefixBytes, true)) return;
  if (QueryValue("IlmiPrefix", prefix, T_HEX, networkPrefixBytes, true)) {
    logOldKey("NetPrefix", "IlmiPrefix");
    return;
  }
  logDefaultPrefix(adapter);
  std::memcpy(prefix, dfltIlmiPrefix, networkPrefixBytes);
}

void DriverPdfEdit::readUniVersion(AtmSig& sig) {
  std::int32_t number = missingUniRev;
  queryInt("UniRev", number);
  sig.UniRev = number;
  for (const UniVersion& version : uniVersions) {
    if (version.number == number) sig.cfg.UniRevision = version.code;
  }
}

void DriverPdfEdit::readUniCode(AtmSig& sig) {
  std::int32_t code;
  if (!queryInt("UniRev", code)) return;
  odlog << "sigQuery: UniRev == " << code << std::endl;
  sig.cfg.UniRevision = code;
  for (const UniVersion& version : uniVersions) {
    if (version.code == code) sig.UniRev = version.number;
  }
}
