#include "store/driver_pdf_edit.h"

#include <cstring>

#include "atm/devices.h"
#include "foundation/odlog.h"
#include "store/side_file.h"

namespace {

// Stores the low bytes of a number in an integer field of 1, 2 or 4 bytes.
void storeInteger(std::int32_t number, void* field, std::size_t width) {
  const auto byte = static_cast<std::uint8_t>(number);
  const auto half = static_cast<std::uint16_t>(number);
  if (width == sizeof byte) std::memcpy(field, &byte, width);
  if (width == sizeof half) std::memcpy(field, &half, width);
  if (width == sizeof number) std::memcpy(field, &number, width);
}

}  // namespace

void DriverPdfEdit::ReadPdf() {
  odlog << "Reading PDF." << std::endl;
  ReadGlobalSig();
  for (short adapter = 0; adapter < maxAdapters; ++adapter) {
    const std::string path = adapterPath(adapter);
    if (!openForReading(path)) {
      odlog << "ReadPdf: OpenKey(" << path << ") failed." << std::endl;
      continue;
    }
    ReadPhysical(adapter);
    ReadSig(adapter);
    ReadLECs(adapter);
    ReadLESs(adapter);
    ReadLECS(adapter);
    ReadIP1577(adapter);
  }
}

void DriverPdfEdit::ReadGlobalSig() {
  if (openForReading("/GlobalSigParams0")) readKeys(globalSigKeys, &atmDevices);
}

void DriverPdfEdit::ReadPhysical(short adapter) {
  AtmPhy& phy = atmDevices.phy[adapter];
  const struct {
    std::string path;
    std::span<const SchemaKey> keys;
  } sections[] = {{adapterPath(adapter), physicalKeys},
                  {servicePath(adapter, "RedundantLink"), redundantLinkKeys}};
  for (const auto& section : sections) {
    if (openForReading(section.path)) {
      readKeys(section.keys, &phy);
    } else {
      odlog << "ReadPhysical: OpenKey(" << section.path << ") failed." << std::endl;
    }
  }
  phy.cfgRLPrimary = phy.RLPrimary;
  phy.cfgRLBackup = phy.RLBackup;
  phy.cfgRLAutoSwitch = phy.RLAutoSwitch;
}

void DriverPdfEdit::ReadLECs(short adapter) {
  for (int i = 0; i < maxLecs; ++i) {
    odlog << "ReadLECs: client: " << i << std::endl;
    if (!openForReading(servicePath(adapter, "LEC", i))) continue;
    AtmLEC& lec = atmDevices.lec[adapter][i];
    readKeys(lecKeys, &lec);
    lec.defaultPcr.cps2unit(lec.defaultPcr.cps, lec.defaultPcr.units);
    readSideFile(lec.PvcConfFile, lec.pvcs, "In ReadLECs, appending pvc: ");
  }
}

void DriverPdfEdit::ReadLESs(short adapter) {
  for (int i = 0; i < maxLess; ++i) {
    if (!openForReading(servicePath(adapter, "LES", i))) continue;
    AtmLES& les = atmDevices.les[adapter][i];
    readKeys(lesKeys, &les);
    readSideFile(les.ElanTbl, les.clients, "In ReadLESs, appending client: ");
  }
}

void DriverPdfEdit::ReadLECS(short adapter) {
  if (openForReading(servicePath(adapter, "LECS"))) readKeys(lecsKeys, &atmDevices.lecs[adapter]);
}

void DriverPdfEdit::ReadIP1577(short adapter) {
  if (!openForReading(servicePath(adapter, "IP1577"))) return;
  AtmIP1577& ip = atmDevices.ip1577[adapter];
  readKeys(ip1577Keys, &ip);
  readSideFile(ip.PvcConfFile, ip.pvcs, "In ReadIP1577, appending pvc: ");
}

bool DriverPdfEdit::openForReading(const std::string& path) {
  return OpenKey(path.c_str(), sectRead, false);
}

void DriverPdfEdit::readKeys(std::span<const SchemaKey> keys, void* record) {
  for (const SchemaKey& key : keys) {
    char* field = static_cast<char*>(record) + key.offset;
    switch (key.form) {
      case KeyForm::number:
        readNumber(key, field);
        break;
      case KeyForm::text:
      case KeyForm::sideFile:
        QueryValue(key.name, field, key.type, static_cast<long>(key.width) - 1, true);
        break;
      case KeyForm::networkPrefix:
      case KeyForm::esiAndSelector:
        readAddressPart(key, *reinterpret_cast<atmAddress*>(field));
        break;
      case KeyForm::sigPrefix:  // ReadSig reads it, by its older name too
        break;
    }
  }
}

template <class Integer>
void DriverPdfEdit::readInteger(const SchemaKey& key, void* field) {
  Integer value = 0;
  if (QueryValue(key.name, &value, key.type, sizeof value, true)) {
    storeInteger(value, field, key.width);
  }
}

void DriverPdfEdit::readNumber(const SchemaKey& key, void* field) {
  switch (key.type) {
    case T_CHAR:
      readInteger<std::uint8_t>(key, field);
      break;
    case T_SHORT:
      readInteger<std::uint16_t>(key, field);
      break;
    default:
      readInteger<std::int32_t>(key, field);
  }
}

void DriverPdfEdit::readAddressPart(const SchemaKey& key, atmAddress& address) {
  unsigned char bytes[atmAddressBytes];
  address.toHex(bytes);
  const bool prefix = key.form == KeyForm::networkPrefix;
  unsigned char* part = prefix ? bytes : bytes + networkPrefixBytes;
  const long size = prefix ? networkPrefixBytes : esiSelectorBytes;
  if (QueryValue(key.name, part, T_HEX, size, true)) address.fromHex(bytes);
}

bool DriverPdfEdit::queryInt(const char* key, std::int32_t& number) {
  return QueryValue(key, &number, T_INT, sizeof number, true);
}
