// What the configuration file holds: for each kind of section the keys in the order in which they
// are read, and where in the record their values belong.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "store/section.h"

// How a key's value stands to its field.
enum class KeyForm : std::uint8_t {
  number,          // an integer field; its width may differ from the key's type
  text,            // a field of characters; read with one byte less than it has
  networkPrefix,   // the first 13 bytes of an atmAddress, in the file as digits
  esiAndSelector,  // the last 7 bytes of an atmAddress, in the file as digits
};

struct SchemaKey {
  const char* name;
  ValueType type;  // as the key is read
  KeyForm form;
  std::size_t offset;  // of the field in its record
  std::size_t width;   // of the field, in bytes
};

extern const std::span<const SchemaKey> globalSigKeys;      // of AtmDevices
extern const std::span<const SchemaKey> physicalKeys;       // of AtmPhy
extern const std::span<const SchemaKey> redundantLinkKeys;  // of AtmPhy
extern const std::span<const SchemaKey> lecKeys;            // of AtmLEC
extern const std::span<const SchemaKey> lesKeys;            // of AtmLES
extern const std::span<const SchemaKey> lecsKeys;           // of AtmLECS
extern const std::span<const SchemaKey> ip1577Keys;         // of AtmIP1577

// Signalling: the switch and version that people set, of AtmSig, then the children's keys, of
// sigPortCfg_s.
extern const std::span<const SchemaKey> signallingKeys;
extern const std::span<const SchemaKey> q2931Keys;
extern const std::span<const SchemaKey> qSaalKeys;
extern const std::span<const SchemaKey> ilmiKeys;

// The version as people number it beside the driver's code.
struct UniVersion {
  std::int32_t number;
  std::int32_t code;
};
extern const std::span<const UniVersion> uniVersions;
