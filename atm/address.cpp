#include "atm/address.h"

#include <algorithm>
#include <cctype>
#include <cstring>
#include <iomanip>
#include <istream>
#include <ostream>
#include <sstream>

#include "foundation/bounded_stream.h"

char getBuffer[addressTextBytes];

const WellKnownAddress wellKnownAddress = {"47:00:79:00:00:00:00:00:00:00:00:00:00",
                                           "00:A0:3E:00:00:01-00"};

const unsigned char dfltIlmiPrefix[networkPrefixBytes] = {0x47};

namespace {

constexpr int prefixDigits = 2 * networkPrefixBytes;
constexpr int esiDigits = 2 * esiBytes;
constexpr int addressDigits = 2 * atmAddressBytes;

// The longest form of an address: two digits and a separator for each byte.
constexpr int longestForm = 3 * atmAddressBytes;

// Whole tables of addresses are written several times a second, so these use no streams. Both
// return the end of what they have written.

// Pairs of characters joined by ':'.
char* putPairs(char* out, const char* digits, int pairs) {
  for (int i = 0; i < pairs; ++i) {
    if (i > 0) *out++ = ':';
    *out++ = digits[2 * i];
    *out++ = digits[2 * i + 1];
  }
  return out;
}

// Bytes as two hexadecimal digits each, with `separator` between them unless it is NUL.
char* putHexBytes(char* out, const unsigned char* bytes, int count, char separator) {
  constexpr char digits[] = "0123456789abcdef";
  for (int i = 0; i < count; ++i) {
    if (i > 0 && separator != '\0') *out++ = separator;
    *out++ = digits[bytes[i] >> 4];
    *out++ = digits[bytes[i] & 15];
  }
  return out;
}

// Leaves the stream as a formatted number would: aligned to the right, decimal, filled with blanks.
void writeHexBytes(std::ostream& out, const unsigned char* bytes, int count) {
  char text[longestForm];
  out.write(text, putHexBytes(text, bytes, count, '\0') - text);
  out.setf(std::ios_base::right, std::ios_base::adjustfield);
  out << std::dec << std::setfill(' ');
  out.width(0);
}

// `count` bytes of two characters each. A byte that the stream ends before keeps its value.
void readHexPairs(std::istream& in, unsigned char* bytes, int count) {
  for (int i = 0; i < count; ++i) {
    char high, low;
    if (in >> high >> low) bytes[i] = static_cast<unsigned char>(atox(high) * 16 + atox(low));
  }
}

// `count` numbers in the stream's base, one character of any kind between them.
void readFields(std::istream& in, unsigned char* bytes, int count) {
  unsigned short number = 0;
  for (int i = 0; i < count; ++i) {
    unsigned short field;
    if (in >> field) number = field;
    bytes[i] = static_cast<unsigned char>(number);
    char separator;
    if (i + 1 < count) in >> separator;
  }
}

char* copyDigits(char* out, const char* digits, int count) {
  std::memcpy(out, digits, static_cast<std::size_t>(count));
  out[count] = '\0';
  return out;
}

unsigned char reverseBits(unsigned char byte) {
  unsigned reversed = 0;
  for (int bit = 0; bit < 8; ++bit) reversed |= ((byte >> bit) & 1u) << (7 - bit);
  return static_cast<unsigned char>(reversed);
}

}  // namespace

int atox(char digit) {
  if (digit >= '0' && digit <= '9') return digit - '0';
  if (digit >= 'a' && digit <= 'z') return digit - 'a' + 10;
  if (digit >= 'A' && digit <= 'Z') return digit - 'A' + 10;
  return -1;
}

atmAddress& atmAddress::operator=(const char* source) {
  for (int stored = 0; stored < addressDigits && *source != '\0'; ++source) {
    if (std::isxdigit(static_cast<unsigned char>(*source))) text[stored++] = *source;
  }
  return *this;
}

char* atmAddress::GetNetworkPrefix() const {
  return GetNetworkPrefix(getBuffer);
}

char* atmAddress::GetNetworkPrefix(char* out) const {
  return copyDigits(out, text, prefixDigits);
}

char* atmAddress::GetESISelector() const {
  return GetESISelector(getBuffer);
}

char* atmAddress::GetESISelector(char* out) const {
  return copyDigits(out, text + prefixDigits, addressDigits - prefixDigits);
}

char* atmAddress::GetFNetworkPrefix() const {
  return GetFNetworkPrefix(getBuffer);
}

char* atmAddress::GetFNetworkPrefix(char* out) const {
  *putPairs(out, text, networkPrefixBytes) = '\0';
  return out;
}

char* atmAddress::GetFESISelector() const {
  return GetFESISelector(getBuffer);
}

char* atmAddress::GetFESISelector(char* out) const {
  char* end = putPairs(out, text + prefixDigits, esiBytes);
  *end++ = '-';
  *putPairs(end, text + prefixDigits + esiDigits, 1) = '\0';
  return out;
}

int atmAddress::toHex(unsigned char* out, int count) const {
  count = std::clamp(count, 0, atmAddressBytes);
  for (int i = 0; i < count; ++i) {
    out[i] = static_cast<unsigned char>(atox(text[2 * i]) * 16 + atox(text[2 * i + 1]));
  }
  return 2 * count;
}

void atmAddress::fromHex(const unsigned char* in, int count) {
  *putHexBytes(text, in, std::clamp(count, 0, atmAddressBytes), '\0') = '\0';
}

std::ostream& operator<<(std::ostream& out, const atmAddress& address) {
  char text[longestForm];
  return out.write(text, putPairs(text, address.text, atmAddressBytes) - text);
}

macAddress& macAddress::operator=(const char* source) {
  std::istringstream in(source);
  in >> std::hex;
  readFields(in, bytes, esiBytes);
  return *this;
}

char* macAddress::GetFMacAddress() const {
  return GetFMacAddress(getBuffer);
}

char* macAddress::GetFMacAddress(char* out) const {
  *putHexBytes(out, bytes, esiBytes, ':') = '\0';
  return out;
}

void macAddress::formSwap() {
  for (unsigned char& byte : bytes) byte = reverseBits(byte);
}

unsigned macAddress::hash() const {
  return bytes[2] + (unsigned{bytes[3]} << 8) + (unsigned{bytes[4]} << 16) +
         (unsigned{bytes[5]} << 24);
}

std::ostream& operator<<(std::ostream& out, const macAddress& address) {
  writeHexBytes(out, address.bytes, esiBytes);
  return out;
}

std::istream& operator>>(std::istream& in, macAddress& address) {
  readHexPairs(in, address.bytes, esiBytes);
  return in;
}

unsigned myMacHashFunction(const macAddress& address) {
  return address.hash();
}

esiSelector& esiSelector::operator=(const char* source) {
  std::istringstream in(source);
  for (int i = 0; i < esiBytes; ++i) {
    readHexPairs(in, bytes + i, 1);
    char separator;
    in >> separator;
  }
  readHexPairs(in, bytes + esiBytes, 1);
  return *this;
}

char* esiSelector::GetF2EsiSelector() const {
  return GetF2EsiSelector(getBuffer);
}

char* esiSelector::GetF2EsiSelector(char* out) const {
  char* end = putHexBytes(out, bytes, esiBytes, ':');
  *end++ = '-';
  *putHexBytes(end, bytes + esiBytes, 1, '\0') = '\0';
  return out;
}

char* esiSelector::GetFEsiSelector() const {
  return GetFEsiSelector(getBuffer);
}

char* esiSelector::GetFEsiSelector(char* out) const {
  BoundedStream stream(out, addressTextBytes);
  stream << *this;
  stream.terminate();
  return out;
}

std::ostream& operator<<(std::ostream& out, const esiSelector& address) {
  writeHexBytes(out, address.bytes, esiBytes);
  out << '/';
  writeHexBytes(out, address.bytes + esiBytes, 1);
  return out;
}

std::istream& operator>>(std::istream& in, esiSelector& address) {
  readHexPairs(in, address.bytes, esiBytes);
  char separator;
  in >> separator;
  readHexPairs(in, address.bytes + esiBytes, 1);
  return in;
}

ipAddress& ipAddress::operator=(const char* source) {
  std::istringstream in(source);
  in >> *this;
  return *this;
}

char* ipAddress::GetFIPAddress() const {
  return GetFIPAddress(getBuffer);
}

char* ipAddress::GetFIPAddress(char* out) const {
  BoundedStream stream(out, addressTextBytes);
  stream << *this;
  stream.terminate();
  return out;
}

std::ostream& operator<<(std::ostream& out, const ipAddress& address) {
  out << std::dec;
  for (int i = 0; i < 4; ++i) {
    if (i > 0) out << '.';
    out << unsigned{address.bytes[i]};
  }
  return out;
}

std::istream& operator>>(std::istream& in, ipAddress& address) {
  in >> std::dec;
  readFields(in, address.bytes, 4);
  return in;
}
