// Keys and values inside the text of one section.
#include <arpa/inet.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <string>

#include "store/section.h"
#include "store/section_internal.h"

namespace {

// The text of a section, walked from the front.
class Walk {
 public:
  explicit Walk(const SectHandle* handle)
      : at_(handle->data), end_(handle->data + handle->dataLength) {}

  bool atEnd() const { return at_ == end_; }
  char current() const { return *at_; }
  const char* position() const { return at_; }
  void step() { ++at_; }

  // Moves on to the first character for which `stop` holds, or the end.
  template <class Predicate>
  void to(Predicate stop) {
    at_ = std::find_if(at_, end_, stop);
  }

 private:
  const char* at_;
  const char* end_;
};

bool endsWord(char c) {
  return isBlank(c) || isLineEnd(c) || c == '=' || c == '#';
}

bool startsWord(char c) {
  return c == '#' || !endsWord(c);
}

// From the end of a key's word to its value; null if the line ends before the sign.
const char* valueBehind(Walk walk) {
  walk.to([](char c) { return c == '=' || isLineEnd(c); });
  if (walk.atEnd() || walk.current() != '=') return nullptr;
  walk.step();
  walk.to([](char c) { return !isBlank(c); });
  return walk.atEnd() ? nullptr : walk.position();
}

// The low `width` bytes of a number.
void storeNumber(long number, void* dst, std::size_t width) {
  const auto byte = static_cast<std::int8_t>(number);
  const auto half = static_cast<std::int16_t>(number);
  const auto word = static_cast<std::int32_t>(number);
  const void* source = width == 1   ? static_cast<const void*>(&byte)
                       : width == 2 ? static_cast<const void*>(&half)
                                    : &word;
  std::memcpy(dst, source, width);
}

void storeText(const std::string& value, char* dst, int len) {
  if (len <= 0) return;
  const std::size_t stored = value.copy(dst, static_cast<std::size_t>(len) - 1);
  std::memset(dst + stored, 0, static_cast<std::size_t>(len) - stored);
}

int storeValue(const std::string& value, void* dst, int type, int len) {
  switch (type) {
    case T_CHAR:
      storeNumber(std::strtol(value.c_str(), nullptr, 10), dst, 1);
      return 0;
    case T_SHORT:
      storeNumber(std::strtol(value.c_str(), nullptr, 10), dst, 2);
      return 0;
    case T_INT:
    case T_LONG:
      storeNumber(std::strtol(value.c_str(), nullptr, 10), dst, 4);
      return 0;
    case T_HEX:
      SectHexDecode(value, static_cast<unsigned char*>(dst), len);
      return 0;
    case T_STRING:
      storeText(value, static_cast<char*>(dst), len);
      return 0;
    case T_IPADDR: {
      const in_addr_t address = inet_addr(value.c_str());
      std::memcpy(dst, &address, sizeof address);
      return 0;
    }
    default:
      return -1;
  }
}

}  // namespace

const char* FindKey(const SectHandle* handle, std::string_view key) {
  sectTrace("FindKey: key=%.*s\n", static_cast<int>(key.size()), key.data());
  if (key.size() >= keyWordBytes) return nullptr;
  // Words on the value side of a line are looked at too, so a value can hide a key of its name.
  for (Walk walk(handle);;) {
    walk.to(startsWord);
    if (walk.atEnd()) return nullptr;
    if (walk.current() == '#') {
      walk.to(isLineEnd);
      continue;
    }
    const char* word = walk.position();
    walk.to(endsWord);
    if (walk.atEnd()) return nullptr;
    if (isLineEnd(walk.current()) || walk.current() == '#') {
      walk.step();
      continue;
    }
    if (key == std::string_view(word, static_cast<std::size_t>(walk.position() - word))) {
      return valueBehind(walk);
    }
  }
}

// Only text may hold blanks, and it loses those at its end.
std::string_view SectValueAt(const SectHandle* handle, const char* from, int type) {
  const char* end = handle->data + handle->dataLength;
  const char* stop = std::find_if(from, end, [type](char c) {
    return c == '#' || c == '\t' || isLineEnd(c) || (c == ' ' && type != T_STRING);
  });
  while (stop != from && stop[-1] == ' ') --stop;
  return {from, static_cast<std::size_t>(stop - from)};
}

int ReadKey(SectHandle* handle, const char* key, void* dst, int type, int len) {
  if (handle == nullptr) return -1;
  sectTrace("ReadKey: hd=%x key=%s\n", sectTraceId(handle), key);
  const char* position = FindKey(handle, key);
  if (position == nullptr) return -1;
  if (*position == '#' || isLineEnd(*position)) {
    if (type == T_STRING && len > 0) *static_cast<char*>(dst) = '\0';
    return 1;
  }
  const std::string value(SectValueAt(handle, position, type));
  sectTrace("ReadKey: val=%s\n", value.c_str());
  return storeValue(value, dst, type, len);
}

int SectHexDigit(char digit) {
  if (digit >= '0' && digit <= '9') return digit - '0';
  if (digit >= 'a' && digit <= 'f') return digit - 'a' + 10;
  if (digit >= 'A' && digit <= 'F') return digit - 'A' + 10;
  return -1;
}

int SectHexDecode(std::string_view text, unsigned char* dst, int len) {
  int stored = 0;
  for (std::size_t i = 0; i + 1 < text.size() && stored < len; i += 2) {
    const int high = SectHexDigit(text[i]);
    const int low = SectHexDigit(text[i + 1]);
    if (high < 0 || low < 0) break;
    dst[stored++] = static_cast<unsigned char>(high * 16 + low);
  }
  return stored;
}
