// How the records inside frames are described: a table of fields for each, which says what a record
// holds and where, how a person reads it, and is checked against the record's declaration.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

enum class FieldKind : std::uint8_t {
  number,         // unsigned, 1, 2 or 4 bytes
  signedNumber,   // 2 or 4 bytes, two's complement
  words,          // a number that stands for a word
  text,           // terminated unless it fills the field
  atmAddress,     // 20 raw bytes
  networkPrefix,  // 13 raw bytes
  macAddress,     // 6 raw bytes
  esiSelector,    // 7 raw bytes
  ipNumber,       // an IP address as a number, so with its last byte first
  ipBytes,        // an IP address in network order
  wordList,       // 32-bit numbers, one behind the other
  hex,            // bytes of no further meaning
  reserved,       // zero in what is sent
};

// Words for numbers from `first` on.
struct ValueWords {
  std::uint32_t first = 0;
  std::span<const char* const> words;
};

struct RecordField {
  const char* name;
  std::uint16_t offset;  // from the start of the record
  std::uint16_t bytes;
  FieldKind kind;
  ValueWords words = {};  // of a field of words
};

using RecordLayout = std::span<const RecordField>;

// A field of a table, by its offset and size as documented; they have to be the declaration's.
template <std::size_t declaredOffset, std::size_t declaredBytes, std::size_t offset>
constexpr RecordField checkedField(const char* name, FieldKind kind, const ValueWords& words = {}) {
  static_assert(declaredOffset == offset, "the record's field is not where it is documented");
  return {name, static_cast<std::uint16_t>(offset), static_cast<std::uint16_t>(declaredBytes), kind,
          words};
}

// RECORD_FIELD(record, member, documented offset, name, kind [, words])
#define RECORD_FIELD(record, member, offset, ...) \
  checkedField<offsetof(record, member), sizeof(record::member), offset>(__VA_ARGS__)

// Whether those fields have words that want them, and no others.
constexpr bool hasItsWords(RecordLayout fields) {
  for (const RecordField& field : fields) {
    if ((field.kind == FieldKind::words) == field.words.words.empty()) return false;
  }
  return true;
}

// Whether the fields follow each other inside the record; with `whole` also without a gap, from its
// first byte to its last.
template <class Record>
constexpr bool isLaidOut(RecordLayout fields, bool whole) {
  std::size_t end = 0;
  for (const RecordField& field : fields) {
    if (whole ? field.offset != end : field.offset < end) return false;
    end = std::size_t{field.offset} + field.bytes;
  }
  return whole ? end == sizeof(Record) : end <= sizeof(Record);
}
