#include "simulator/record_text.h"

#include <algorithm>
#include <cctype>

namespace lisim {

namespace {

std::string joinedBytes(ByteView bytes, const char* separator) {
  constexpr char digits[] = "0123456789abcdef";
  std::string text;
  for (const std::uint8_t byte : bytes) {
    if (!text.empty()) text += separator;
    text += digits[byte >> 4];
    text += digits[byte & 15];
  }
  return text;
}

std::uint32_t numberOf(ByteView bytes) {
  std::uint32_t number = 0;
  for (auto byte = bytes.rbegin(); byte != bytes.rend(); ++byte) number = number << 8 | *byte;
  return number;
}

std::int32_t signedNumberOf(ByteView bytes) {
  const std::uint32_t number = numberOf(bytes);
  return bytes.size() == sizeof(std::int16_t) ? static_cast<std::int16_t>(number)
                                              : static_cast<std::int32_t>(number);
}

std::string wordOf(const RecordField& field, ByteView bytes) {
  const std::uint32_t number = numberOf(bytes);
  const std::uint32_t place = number - field.words.first;
  return number >= field.words.first && place < field.words.words.size() ? field.words.words[place]
                                                                         : std::to_string(number);
}

// Up to the terminator or the end, with bytes that are no printable ASCII as \xNN.
std::string quotedText(ByteView bytes) {
  std::string text = "\"";
  for (const std::uint8_t byte :
       bytes.first(static_cast<std::size_t>(std::ranges::find(bytes, 0) - bytes.begin()))) {
    const char character = static_cast<char>(byte);
    const std::uint8_t one[] = {byte};
    if (byte < 0x80 && std::isprint(byte) && character != '"' && character != '\\')
      text += character;
    else
      text += "\\x" + joinedBytes(one, "");
  }
  return text + '"';
}

std::string dotted(ByteView bytes, bool lastFirst) {
  std::string text;
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    if (i > 0) text += '.';
    text += std::to_string(bytes[lastFirst ? bytes.size() - 1 - i : i]);
  }
  return text;
}

std::string listedWords(ByteView bytes) {
  std::string text;
  for (; bytes.size() >= sizeof(std::uint32_t); bytes = bytes.subspan(sizeof(std::uint32_t))) {
    if (!text.empty()) text += ' ';
    text += std::to_string(numberOf(bytes.first(sizeof(std::uint32_t))));
  }
  return text;
}

std::string valueText(const RecordField& field, ByteView bytes) {
  switch (field.kind) {
    case FieldKind::number:
      return std::to_string(numberOf(bytes));
    case FieldKind::signedNumber:
      return std::to_string(signedNumberOf(bytes));
    case FieldKind::words:
      return wordOf(field, bytes);
    case FieldKind::text:
      return quotedText(bytes);
    case FieldKind::atmAddress:
    case FieldKind::networkPrefix:
    case FieldKind::macAddress:
      return joinedBytes(bytes, ":");
    case FieldKind::esiSelector:
      return joinedBytes(bytes.first(bytes.size() - 1), ":") + "-" + joinedBytes(bytes.last(1), "");
    case FieldKind::ipNumber:
    case FieldKind::ipBytes:
      return dotted(bytes, field.kind == FieldKind::ipNumber);
    case FieldKind::wordList:
      return listedWords(bytes);
    case FieldKind::hex:
    case FieldKind::reserved:
      break;
  }
  return joinedBytes(bytes, "");
}

bool isZero(ByteView bytes) {
  return std::ranges::all_of(bytes, [](std::uint8_t byte) { return byte == 0; });
}

void append(std::string& text, const std::string& part) {
  if (!text.empty()) text += ", ";
  text += part;
}

}  // namespace

std::string hexText(ByteView bytes) {
  return joinedBytes(bytes, "");
}

std::string describeRecord(RecordLayout fields, ByteView record, bool whole) {
  std::string text;
  std::size_t end = 0;
  for (const RecordField& field : fields) {
    end = std::size_t{field.offset} + field.bytes;
    if (end > record.size()) {
      append(text, "cut short at " + std::to_string(record.size()) + " bytes");
      return text;
    }
    const ByteView bytes = record.subspan(field.offset, field.bytes);
    if (field.kind != FieldKind::reserved) {
      append(text, std::string(field.name) + " " + valueText(field, bytes));
    } else if (!isZero(bytes)) {
      append(text, "reserved at " + std::to_string(field.offset) + ": " + hexText(bytes));
    }
  }
  if (whole && record.size() > end) append(text, "and behind it " + hexText(record.subspan(end)));
  return text;
}

}  // namespace lisim
