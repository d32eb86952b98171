// What the configuration file holds: for each kind of section the keys in the order in which they
// are read and written, and where in the record their values belong.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

#include "store/section.h"

// How a key's value stands to its field.
enum class KeyForm : std::uint8_t {
  number,          // an integer field; its width may differ from the key's type
  text,            // a field of characters; read with one byte less than it has
  sideFile,        // the same, the name of a side file: a name that is there is not written
  networkPrefix,   // the first 13 bytes of an atmAddress, in the file as digits
  esiAndSelector,  // the last 7 bytes of an atmAddress, in the file as digits
  sigPrefix,       // the network prefix of an AtmSig, written as digits
};

struct SchemaKey {
  const char* name;
  ValueType type;  // addresses are written as T_STRING
  KeyForm form;
  std::size_t offset;  // of the field in its record
  std::size_t width;   // of the field, in bytes
};

// The section of an adapter, and that of one of its services, for example "/Adapter0/LEC3".
std::string adapterPath(short adapter);
std::string servicePath(short adapter, const char* service, int instance = 0);

extern const std::span<const SchemaKey> globalSigKeys;      // of AtmDevices, read only
extern const std::span<const SchemaKey> physicalKeys;       // of AtmPhy
extern const std::span<const SchemaKey> redundantLinkKeys;  // of AtmPhy
extern const std::span<const SchemaKey> lecKeys;            // of AtmLEC
extern const std::span<const SchemaKey> lesKeys;            // of AtmLES
extern const std::span<const SchemaKey> lecsKeys;           // of AtmLECS
extern const std::span<const SchemaKey> ip1577Keys;         // of AtmIP1577

// Signalling as it is read: the switch and version that people set, of AtmSig, then the children's
// keys, of sigPortCfg_s.
extern const std::span<const SchemaKey> signallingKeys;
extern const std::span<const SchemaKey> q2931Keys;
extern const std::span<const SchemaKey> qSaalKeys;
extern const std::span<const SchemaKey> ilmiKeys;

// Signalling as it is written, all of AtmSig. Timers and limits are the installation's business.
extern const std::span<const SchemaKey> signallingWritten;
extern const std::span<const SchemaKey> q2931Written;
extern const std::span<const SchemaKey> ilmiWritten;

// The version as people number it beside the driver's code.
struct UniVersion {
  std::int32_t number;
  std::int32_t code;
};
extern const std::span<const UniVersion> uniVersions;
