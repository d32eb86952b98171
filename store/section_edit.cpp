// Writing keys: values as text, and edits of the text of one section.
#include <algorithm>
#include <cstring>
#include <string>

#include "store/section.h"
#include "store/section_internal.h"

namespace {

constexpr int tabWidth = 8;
constexpr int valueColumn = 40;
constexpr std::size_t valueBytes = sectLineBytes - 1;  // a value with its terminator

// What would end a value, a key or a section before its time.
constexpr char valueStops[] = "#[]\t\r\n";
constexpr char keyStops[] = "#[]\t\r\n =";

// A value in its place: the characters it replaces.
struct Span {
  std::size_t start;
  std::size_t length;
};

bool holdsBracket(std::string_view text) {
  return text.find_first_of("[]") != text.npos;
}

std::string_view textOf(const SectHandle* handle) {
  return {handle->data, static_cast<std::size_t>(handle->dataLength)};
}

int refuse(const SectHandle* handle, const char* why, std::string_view key) {
  std::printf("WriteKey: %s key=%.*s sect=%s\n", why, static_cast<int>(key.size()), key.data(),
              handle->section);
  return -1;
}

// The most that `data` may hold: a section that is still open needs room for its end.
std::size_t capacity(const SectHandle* handle) {
  const bool created = (handle->rflg & sectCreated) != 0;
  return static_cast<std::size_t>(sectDataBytes - (created ? SectTabs(handle->nest) + 2 : 0));
}

// Puts `text` in the place of the characters; false if `data` has no room for it.
bool splice(SectHandle* handle, Span old, std::string_view text) {
  const std::string_view data = textOf(handle);
  if (data.size() - old.length + text.size() > capacity(handle)) return false;
  char* place = handle->data + old.start;
  const std::size_t behind = data.size() - old.start - old.length;
  std::memmove(place + text.size(), place + old.length, behind + 1);
  text.copy(place, text.size());
  handle->dataLength = static_cast<std::int32_t>(old.start + text.size() + behind);
  return true;
}

// Where the line with the character at `position` starts, as far as it is in `data`.
std::size_t lineStart(std::string_view data, std::size_t position) {
  return data.substr(0, position).rfind('\n') + 1;
}

// Whether a head stands in front of the value on its line, and so may have it in its name.
bool followsHead(std::string_view data, std::size_t position) {
  const std::size_t start = lineStart(data, position);
  return data.substr(start, position - start).find('[') != data.npos;
}

// Whether a value that changes its length would move brackets from one read of an over-long line
// to another, so in front of or behind the start of a comment.
bool movesBrackets(std::string_view data, Span old, std::size_t length) {
  const std::size_t start = lineStart(data, old.start);
  const std::string_view line = data.substr(start, data.find('\n', start) - start);
  const std::size_t longest = std::max(line.size(), line.size() - old.length + length);
  return length != old.length && holdsBracket(line) && longest + 1 >= sectLineBytes;
}

// Whether nothing but the end of `data` ends the value, which may be about to be emptied.
bool endsWithText(std::string_view data, Span value, int type, bool emptied) {
  const char* blanks = emptied ? " \t" : type == T_STRING ? " " : "";
  return data.find_first_not_of(blanks, value.start + value.length) == data.npos;
}

// Whether text behind a tab would take the place of a value that is emptied.
bool textFollows(std::string_view data, Span value) {
  const std::size_t behind = data.find_first_not_of(" \t", value.start + value.length);
  return behind != data.npos && data[behind] != '#' && !isLineEnd(data[behind]);
}

// Text loses the blanks around it when it is read.
std::string_view asRead(std::string_view text, int type) {
  if (type != T_STRING) return text;
  text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
  return text.substr(0, text.find_last_not_of(' ') + 1);
}

// Why the value can't be written as this text, or null.
const char* troubleWith(const std::string& text) {
  if (text.size() >= valueBytes) return "Value Exceeds Buffer";
  return text.find_first_of(valueStops) == text.npos ? nullptr : "Bad Character In Value";
}

const char* troubleWith(std::string_view key) {
  if (key.size() >= keyWordBytes) return "Key Exceeds Buffer";
  const bool good = !key.empty() && key.find_first_of(keyStops) == key.npos;
  return good ? nullptr : "Bad Character In Key";
}

// Writes over the value that starts at `position`. A comment that touched it is kept off by a
// blank, and so is the value from what stands in front of it.
int replaceValue(SectHandle* handle, std::string_view key, const char* position,
                 const std::string& text, int type) {
  const std::string_view old = SectValueAt(handle, position, type);
  const char* behind = old.data() + old.size();
  const std::string_view data = textOf(handle);
  const Span place = {static_cast<std::size_t>(position - data.data()), old.size()};
  const bool emptied = asRead(text, type).empty();
  if (endsWithText(data, place, type, emptied)) return -1;
  if (asRead(text, type) == old) return 0;
  if (holdsBracket(old)) return refuse(handle, "Bracket In Old Value", key);
  if (followsHead(data, place.start)) return refuse(handle, "Head In Front Of The Value", key);
  if (emptied && textFollows(data, place)) return refuse(handle, "Text Behind The Value", key);
  if (const char* trouble = troubleWith(text)) return refuse(handle, trouble, key);
  std::string value;
  if (old.empty() && position[-1] != ' ') value += ' ';
  value += text;
  if (*behind == '#') value += ' ';
  if (movesBrackets(data, place, value.size())) return refuse(handle, "Line Exceeds Buffer", key);
  return splice(handle, place, value) ? 0 : refuse(handle, "Buffer Exceeded", key);
}

std::string keyLine(std::string_view key, const std::string& value, int tabs) {
  std::string line(static_cast<std::size_t>(tabs), '\t');
  line += key;
  line += ' ';
  int column = tabs * tabWidth + (static_cast<int>(key.size()) + 1) / tabWidth * tabWidth;
  for (; column < valueColumn; column += tabWidth) line += '\t';
  return line + "= " + value + '\n';
}

// Where a new line goes: in front of the line with the bracket that ends `data`, if there is one.
std::size_t newLinePosition(const SectHandle* handle) {
  const std::string_view data = textOf(handle);
  const std::size_t bracket = data.find_first_of("[]");
  const bool created = (handle->rflg & sectCreated) != 0;
  return created || bracket == data.npos ? data.size() : lineStart(data, bracket);
}

// Writes a line of its own for the key. One that could not be found again is taken back.
int insertLine(SectHandle* handle, std::string_view key, const std::string& text) {
  if (const char* trouble = troubleWith(text)) return refuse(handle, trouble, key);
  const std::size_t position = newLinePosition(handle);
  const bool midLine = position == 0 ? handle->midLine : handle->data[position - 1] != '\n';
  const int tabs = SectTabs(handle->nest + ((handle->rflg & sectCreated) != 0 ? 1 : 0));
  const std::string line = (midLine ? "\n" : "") + keyLine(key, text, tabs);
  if (!splice(handle, {position, 0}, line)) return refuse(handle, "Buffer Exceeded", key);
  const char* written = handle->data + position;
  const char* found = FindKey(handle, key);
  if (found != nullptr && found > written && found < written + line.size()) return 0;
  splice(handle, {position, line.size()}, "");
  return refuse(handle, "Key Hidden By A Value", key);
}

std::string formatText(char* text, int len) {
  if (len <= 0) return {};
  text[len - 1] = '\0';
  return text;
}

template <class Integer>
std::string formatNumber(const void* value) {
  Integer number;
  std::memcpy(&number, value, sizeof number);
  return std::to_string(number);
}

std::string formatAddress(const void* value) {
  unsigned char bytes[4];
  std::memcpy(bytes, value, sizeof bytes);
  char text[sizeof "255.255.255.255"];
  std::snprintf(text, sizeof text, "%d.%d.%d.%d", bytes[0], bytes[1], bytes[2], bytes[3]);
  return text;
}

}  // namespace

std::string SectHexEncode(const unsigned char* bytes, int len) {
  constexpr char digits[] = "0123456789abcdef";
  std::string text;
  for (int i = 0; i < len; ++i) {
    text += digits[bytes[i] >> 4];
    text += digits[bytes[i] & 0xf];
  }
  return text;
}

std::string SectFormatValue(void* value, int type, int len) {
  switch (type) {
    case T_CHAR:
      return formatNumber<std::int8_t>(value);
    case T_SHORT:
      return formatNumber<std::int16_t>(value);
    case T_INT:
    case T_LONG:
      return formatNumber<std::int32_t>(value);
    case T_HEX:
      return SectHexEncode(static_cast<const unsigned char*>(value), len);
    case T_STRING:
      return formatText(static_cast<char*>(value), len);
    case T_IPADDR:
      return formatAddress(value);
    default:
      return {};
  }
}

int WriteKey(SectHandle* handle, const char* key, void* value, int type, int len) {
  if (handle == nullptr) return -1;
  sectTrace("WriteKey: hd=%x key=%s rflg=%x\n", sectTraceId(handle), key,
            static_cast<unsigned>(handle->rflg));
  if (handle->damaged) return refuse(handle, "File Error", key);
  if (handle->refusal != nullptr) return refuse(handle, handle->refusal, key);
  if (const char* trouble = troubleWith(std::string_view(key))) return refuse(handle, trouble, key);
  const std::string text = SectFormatValue(value, type, len);
  if (text.empty() && type != T_STRING) return -1;
  const char* position = FindKey(handle, key);
  const int result = position == nullptr ? insertLine(handle, key, text)
                                         : replaceValue(handle, key, position, text, type);
  if (result != 0) return result;
  ++handle->wflg;
  sectTrace("WriteKey: wflg=%d\n", handle->wflg);
  return 0;
}
