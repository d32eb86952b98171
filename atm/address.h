// The address value types: what every page shows, the files hold and the driver is sent. Plain
// records without constructors and without validation: the masked entry fields let only well-formed
// text through, and the parsers take what they get and never report a failure. Text that ends too
// early leaves the digits or bytes it doesn't reach as they were.
//
// The accessors that take a `char*` write a terminated text into it (at most 64 bytes) and return
// it. Their forms without argument write into `getBuffer`: the result holds until the next such
// call on any address, so callers copy it at once.
#pragma once

#include <iosfwd>

constexpr int addressTextBytes = 64;
extern char getBuffer[addressTextBytes];

constexpr int networkPrefixBytes = 13;
constexpr int esiBytes = 6;
constexpr int esiSelectorBytes = esiBytes + 1;
constexpr int atmAddressBytes = networkPrefixBytes + esiSelectorBytes;

// The value of a hexadecimal digit of either case; letters behind 'f' run on from 16, and any
// other character gives -1.
int atox(char digit);

// A 20-byte ATM end system address (NSAP format, ATM Forum UNI 3.1) as 40 hexadecimal digits in
// the case they came in: 26 of network prefix, 12 of end system identifier, 2 of selector. The
// 41st byte is a terminator only behind fromHex, so the array as a whole is no C string.
struct atmAddress {
  char text[2 * atmAddressBytes + 1];

  // Takes the first 40 hexadecimal digits of `source` and skips everything between them.
  atmAddress& operator=(const char* source);

  char* GetNetworkPrefix() const;  // 26 digits
  char* GetNetworkPrefix(char* out) const;
  char* GetESISelector() const;  // 14 digits
  char* GetESISelector(char* out) const;
  char* GetFNetworkPrefix() const;  // 13 pairs joined by ':'
  char* GetFNetworkPrefix(char* out) const;
  char* GetFESISelector() const;  // "00:00:00:00:00:00-00"
  char* GetFESISelector(char* out) const;

  // The first `count` bytes, up to 20, of the address; returns the digits used, two a byte.
  int toHex(unsigned char* out, int count = atmAddressBytes) const;
  // Writes `count` bytes, up to 20, as lower-case digits and a terminator behind them. Digits
  // beyond keep their value.
  void fromHex(const unsigned char* in, int count = atmAddressBytes);

  bool operator==(const atmAddress&) const = default;
};

// All 20 bytes as pairs joined by ':'.
std::ostream& operator<<(std::ostream& out, const atmAddress& address);

namespace detail {
constexpr atmAddress zeroAddress() {
  atmAddress address{};
  for (char& digit : address.text) digit = '0';
  address.text[0] = '4';
  return address;
}
}  // namespace detail

// What a record's address holds until it is set: '4' and forty '0', unterminated.
constexpr atmAddress dfltAtmAddress = detail::zeroAddress();

// Six bytes in wire order.
struct macAddress {
  unsigned char bytes[esiBytes];

  // "aa:bb:cc:dd:ee:ff" with any one separator character. Of each field the low 8 bits count, and
  // a field that doesn't parse repeats the one before it.
  macAddress& operator=(const char* source);

  char* GetFMacAddress() const;  // "aa:bb:cc:dd:ee:ff", lower case
  char* GetFMacAddress(char* out) const;

  // Reverses the bits of each byte: canonical form to Token Ring form and back.
  void formSwap();
  // A number made of the last four bytes, the ones in which a maker's boards differ.
  unsigned hash() const;

  bool operator==(const macAddress&) const = default;
};

// Twelve digits without separators. Writing leaves the stream at base ten and filling with blanks;
// reading skips white space.
std::ostream& operator<<(std::ostream& out, const macAddress& address);
std::istream& operator>>(std::istream& in, macAddress& address);

// The form the hash dictionaries take.
unsigned myMacHashFunction(const macAddress& address);

// The part of an ATM address that the end system chooses: six bytes of ESI, one of selector.
struct esiSelector {
  unsigned char bytes[esiSelectorBytes];

  // "aa:bb:cc:dd:ee:ff-ss", one separator of any kind behind each pair.
  esiSelector& operator=(const char* source);

  char* GetF2EsiSelector() const;  // "aa:bb:cc:dd:ee:ff-ss"
  char* GetF2EsiSelector(char* out) const;
  char* GetFEsiSelector() const;  // "aabbccddeeff/ss"
  char* GetFEsiSelector(char* out) const;

  bool operator==(const esiSelector&) const = default;
};

// The form of GetFEsiSelector, which the client side files hold. Stream state as for macAddress.
std::ostream& operator<<(std::ostream& out, const esiSelector& address);
std::istream& operator>>(std::istream& in, esiSelector& address);

// Four bytes, the most significant first.
struct ipAddress {
  unsigned char bytes[4];

  // "a.b.c.d", decimal, with any one separator character; fields as in macAddress.
  ipAddress& operator=(const char* source);

  char* GetFIPAddress() const;  // "a.b.c.d" without leading zeros
  char* GetFIPAddress(char* out) const;

  bool operator==(const ipAddress&) const = default;
};

// The dotted form. Reading an incomplete address leaves the stream failed.
std::ostream& operator<<(std::ostream& out, const ipAddress& address);
std::istream& operator>>(std::istream& in, ipAddress& address);

// The well-known address of the LAN Emulation configuration server (LAN Emulation 1.0), in the
// form of the masked fields.
struct WellKnownAddress {
  const char* prefix;
  const char* esiSelector;
};
extern const WellKnownAddress wellKnownAddress;

// The network prefix that ILMI address registration starts from when none is configured.
extern const unsigned char dfltIlmiPrefix[networkPrefixBytes];
