// Writing the configuration: the product record and an adapter's sections, in the order in which
// the file takes them up.
#include <algorithm>
#include <cstdio>
#include <cstring>
#include <ctime>

#include "atm/devices.h"
#include "foundation/odlog.h"
#include "foundation/version.h"
#include "platform/names.h"
#include "store/driver_pdf_edit.h"
#include "store/side_file.h"

namespace {

// Behind the adapter's number in the default name of the IP service's side file, where clients have
// their own number.
constexpr int ipSideFileSuffix = 32;

// A text as a single word.
std::string oneWord(std::string text) {
  std::ranges::replace_if(
      text, [](char c) { return c == ' ' || c == '\t'; }, '_');
  return text;
}

std::string localTime() {
  const std::time_t now = std::time(nullptr);
  std::tm local = {};
  char text[64];
  const std::size_t length = localtime_r(&now, &local) != nullptr
                                 ? strftime(text, sizeof text, "%b_%d,%Y_%H:%M", &local)
                                 : 0;
  return {text, length};
}

// An address's digits, in `getBuffer`.
const char* digitsOf(KeyForm form, const void* field) {
  if (form == KeyForm::sigPrefix) return static_cast<const AtmSig*>(field)->GetNetworkPrefix();
  const auto* address = static_cast<const atmAddress*>(field);
  return form == KeyForm::networkPrefix ? address->GetNetworkPrefix() : address->GetESISelector();
}

}  // namespace

void DriverPdfEdit::WritePdf() {
  const auto adapters = std::min<std::uint32_t>(atmDevices.numAdapters, maxAdapters);
  for (short adapter = 0; adapter < static_cast<short>(adapters); ++adapter) WriteLink(adapter);
}

void DriverPdfEdit::WriteLink(short adapter) {
  WriteOndrelle();
  WritePhysical(adapter);
  WriteSig(adapter);
  WriteLECs(adapter);
  WriteLESs(adapter);
  WriteLECS(adapter);
  WriteIP1577(adapter);
  WriteRoutedPVCs(adapter);
  WriteBridgedPVCs(adapter);
  WriteMappedClients(adapter);
  closeKey();
}

void DriverPdfEdit::WriteOndrelle() {
  constexpr char path[] = "/Ondrelle0";
  if (!OpenKey(path, sectWrite, false) && !OpenKey(path, sectCreated, false)) {
    odlog << "WriteOndrelle: Key NOT found or created." << std::endl;
    return;
  }
  std::uint32_t buildId = brennwick_od_build_id;
  writeText("ODVersion", oneWord(brennwick_ondrelle_version));
  SetValue("ODBuildID", &buildId, T_LONG, sizeof buildId, true);
  writeText("ODBuildDate", oneWord(brennwick_od_build_date));
  writeText("ODPlatform", oneWord(brennwick_od_platform));
  writeText("ODFileUpdated", oneWord(localTime()));
  writeText("DriverRevision", brennwick_driver_revision);
}

void DriverPdfEdit::WritePhysical(short adapter) {
  AtmPhy& phy = atmDevices.phy[adapter];
  const std::string path = adapterPath(adapter);
  if (OpenKey(path.c_str(), sectWrite, false)) {
    writeKeys(physicalKeys, &phy);
  } else {
    odlog << "WritePhysical: error on OpenKey(" << path << ") failed." << std::endl;
  }
  const std::string linkPath = servicePath(adapter, "RedundantLink");
  if (OpenKey(linkPath.c_str(), sectWrite, false)) {
    writeKeys(redundantLinkKeys, &phy);
  } else {
    odlog << "WritePhysical: OpenKey(" << linkPath << ")." << std::endl;
  }
}

void DriverPdfEdit::WriteLECs(short adapter) {
  for (int i = 0; i < maxLecs; ++i) {
    AtmLEC& lec = atmDevices.lec[adapter][i];
    if (!writeSection(servicePath(adapter, "LEC", i), lecKeys, &lec)) continue;
    nameSideFile(lec.PvcConfFile, adapter, i);
  }
}

void DriverPdfEdit::WriteLESs(short adapter) {
  for (int i = 0; i < maxLess; ++i) {
    writeSection(servicePath(adapter, "LES", i), lesKeys, &atmDevices.les[adapter][i]);
  }
}

void DriverPdfEdit::WriteLECS(short adapter) {
  writeSection(servicePath(adapter, "LECS"), lecsKeys, &atmDevices.lecs[adapter]);
}

void DriverPdfEdit::WriteIP1577(short adapter) {
  AtmIP1577& ip = atmDevices.ip1577[adapter];
  if (!writeSection(servicePath(adapter, "IP1577"), ip1577Keys, &ip)) return;
  nameSideFile(ip.PvcConfFile, adapter, ipSideFileSuffix);
}

void DriverPdfEdit::WriteRoutedPVCs(short adapter) {
  const AtmIP1577& ip = atmDevices.ip1577[adapter];
  writeSideFile(ip.PvcConfFile, ip.pvcs);
}

void DriverPdfEdit::WriteBridgedPVCs(short adapter) {
  for (const AtmLEC& lec : atmDevices.lec[adapter]) writeSideFile(lec.PvcConfFile, lec.pvcs);
}

void DriverPdfEdit::WriteMappedClients(short adapter) {
  for (const AtmLES& les : atmDevices.les[adapter]) writeSideFile(les.ElanTbl, les.clients);
}

bool DriverPdfEdit::writeSection(const std::string& path, std::span<const SchemaKey> keys,
                                 void* record) {
  odlog << "Writing Values on - " << path << std::endl;
  if (!OpenKey(path.c_str(), sectWrite, false)) return false;
  writeKeys(keys, record);
  return true;
}

void DriverPdfEdit::writeKeys(std::span<const SchemaKey> keys, void* record) {
  for (const SchemaKey& key : keys) {
    char* field = static_cast<char*>(record) + key.offset;
    switch (key.form) {
      case KeyForm::number:
      case KeyForm::text:
        SetValue(key.name, field, key.type, static_cast<long>(key.width), true);
        break;
      case KeyForm::networkPrefix:
      case KeyForm::esiAndSelector:
      case KeyForm::sigPrefix:
        writeText(key.name, digitsOf(key.form, field));
        break;
      case KeyForm::sideFile:
        break;
    }
  }
}

void DriverPdfEdit::writeText(const char* key, std::string text) {
  SetValue(key, text.data(), T_STRING, static_cast<long>(text.size()) + 1, true);
}

void DriverPdfEdit::nameSideFile(char* name, short adapter, int suffix) {
  constexpr char key[] = "PvcConfFile";
  char usual[fileNameBytes], old[fileNameBytes];
  std::snprintf(usual, sizeof usual, "%s/pvcconf%d.%d", atmDirectory, adapter, suffix);
  // A record may have the default name of a commit that did not reach the file.
  const bool keep = *name != '\0' && (std::strcmp(name, usual) != 0 ||
                                      QueryValue(key, old, T_STRING, sizeof old, false));
  if (keep) return;
  std::snprintf(name, fileNameBytes, "%s", usual);
  writeText(key, name);
}
