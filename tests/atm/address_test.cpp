#include "atm/address.h"

#include <gtest/gtest.h>

#include <cstring>
#include <iomanip>
#include <sstream>
#include <string>
#include <tuple>

namespace {

template <class Value>
Value fromText(const char* text, Value value = {}) {
  value = text;
  return value;
}

template <class Value>
Value fromStream(const char* text, Value value = {}) {
  std::istringstream in(text);
  in >> value;
  return value;
}

template <class Value>
std::string streamed(const Value& value) {
  std::ostringstream out;
  out << value;
  return out.str();
}

TEST(AtmAddress, TakesFortyDigitsOutOfAnyText) {
  const std::string digits =
      "47007900000000000000000000"
      "00A03E00000100";
  const char* const texts[] = {
      "4700790000000000000000000000A03E00000100",
      "47:00:79:00:00:00:00:00:00:00:00:00:00:00:A0:3E:00:00:01:00",
      "47.0079.0000 0000-0000/0000:0000 xyz 00A0 3E00 0001 00",
      "4700790000000000000000000000A03E0000010099999",
  };
  for (const char* text : texts) {
    const atmAddress address = fromText(text, dfltAtmAddress);
    EXPECT_EQ(std::string(address.text, 40), digits) << text;
    EXPECT_EQ(address.text[40], '0') << "no terminator is stored";
  }
}

TEST(AtmAddress, ShortTextLeavesTheOtherDigits) {
  EXPECT_EQ(std::string(fromText("39:aB", dfltAtmAddress).text, 6), "39aB00");
  EXPECT_EQ(fromText("", dfltAtmAddress), dfltAtmAddress);
}

TEST(AtmAddress, TextForms) {
  const atmAddress address = fromText<atmAddress>("39840f800000000000000000aa00a03e000001ff");
  EXPECT_STREQ(address.GetNetworkPrefix(), "39840f800000000000000000aa");
  EXPECT_STREQ(address.GetESISelector(), "00a03e000001ff");
  EXPECT_STREQ(address.GetFNetworkPrefix(), "39:84:0f:80:00:00:00:00:00:00:00:00:aa");
  EXPECT_STREQ(address.GetFESISelector(), "00:a0:3e:00:00:01-ff");
  EXPECT_EQ(streamed(address), "39:84:0f:80:00:00:00:00:00:00:00:00:aa:00:a0:3e:00:00:01:ff");
  EXPECT_STREQ(dfltAtmAddress.GetFNetworkPrefix(), "40:00:00:00:00:00:00:00:00:00:00:00:00");
  EXPECT_STREQ(dfltAtmAddress.GetFESISelector(), "00:00:00:00:00:00-00");
  EXPECT_EQ(address.GetNetworkPrefix(), dfltAtmAddress.GetESISelector()) << "one shared buffer";
  char own[addressTextBytes];
  EXPECT_EQ(address.GetFESISelector(own), own);
}

TEST(AtmAddress, BytesAndBack) {
  unsigned char bytes[20], again[20];
  for (int i = 0; i < 20; ++i) bytes[i] = static_cast<unsigned char>(i * 13 + 7);
  atmAddress address = dfltAtmAddress;
  address.fromHex(bytes);
  EXPECT_EQ(address.text[40], '\0');
  EXPECT_EQ(std::string(address.text, 8), "0714212e");
  EXPECT_EQ(address.toHex(again), 40);
  EXPECT_EQ(std::memcmp(bytes, again, 20), 0);

  address = dfltAtmAddress;
  address.fromHex(dfltIlmiPrefix, 13);
  EXPECT_STREQ(address.text, "47000000000000000000000000");
  EXPECT_EQ(address.text[27], '0');
  EXPECT_EQ(address.toHex(again, 0), 0);
  EXPECT_EQ(address.toHex(again, 1000), 40) << "no more than there is";
  address.fromHex(bytes, 20);
}

TEST(Atox, DigitsOfBothCases) {
  const std::tuple<char, int> rows[] = {{'0', 0},  {'9', 9},  {'a', 10}, {'F', 15},  {'g', 16},
                                        {'G', 16}, {'z', 35}, {':', -1}, {'\0', -1}, {'\xe4', -1}};
  for (const auto& [digit, value] : rows) EXPECT_EQ(atox(digit), value) << digit;
}

TEST(MacAddress, Parsing) {
  const std::tuple<const char*, const char*> rows[] = {
      {"00:A0:3E:00:00:01", "00:a0:3e:00:00:01"}, {"0-a0.3e_0:0:1", "00:a0:3e:00:00:01"},
      {"1ff:2:3:4:5:6", "ff:02:03:04:05:06"},     {"1:2:3", "01:02:03:03:03:03"},
      {"1:zz:3:4:5:6", "01:01:01:01:01:01"},      {"", "00:00:00:00:00:00"},
  };
  for (const auto& [text, form] : rows) {
    EXPECT_STREQ(fromText<macAddress>(text).GetFMacAddress(), form) << text;
  }
  EXPECT_STREQ(fromStream<macAddress>(" 00007788 99aA").GetFMacAddress(), "00:00:77:88:99:aa");
  EXPECT_STREQ(fromStream<macAddress>("0102", {{9, 9, 9, 9, 9, 9}}).GetFMacAddress(),
               "01:02:09:09:09:09");
}

TEST(MacAddress, StreamFormLeavesDecimalAndBlank) {
  std::ostringstream out;
  out << std::left << std::setfill('*') << std::hex << fromText<macAddress>("0:0:77:88:99:aa")
      << std::setw(4) << 10;
  EXPECT_EQ(out.str(), "0000778899aa  10");
}

TEST(MacAddress, SwapAndHash) {
  macAddress address = {{0x01, 0x80, 0x12, 0x34, 0xff, 0x06}};
  EXPECT_EQ(address.hash(), 0x06ff3412u);
  EXPECT_EQ(myMacHashFunction(address), 0x06ff3412u);
  address.formSwap();
  EXPECT_EQ(address, (macAddress{{0x80, 0x01, 0x48, 0x2c, 0xff, 0x60}}));
}

TEST(EsiSelector, Forms) {
  const esiSelector address = fromText<esiSelector>("00:a0:3e:00:00:01-0f");
  EXPECT_STREQ(address.GetF2EsiSelector(), "00:a0:3e:00:00:01-0f");
  EXPECT_STREQ(address.GetFEsiSelector(), "00a03e000001/0f");
  EXPECT_EQ(streamed(address), "00a03e000001/0f");
  EXPECT_EQ(fromStream<esiSelector>("00a03e000001/0f\n"), address);
  EXPECT_EQ(fromStream<esiSelector>("00a03e000001x0f"), address);
  EXPECT_EQ(fromText("aa:bb", address), (esiSelector{{0xaa, 0xbb, 0x3e, 0, 0, 1, 0x0f}}));
}

TEST(IpAddress, Forms) {
  const std::tuple<const char*, const char*, bool> rows[] = {
      {"192.168.1.7", "192.168.1.7", true},
      {"010.001.000.255", "10.1.0.255", true},
      {"300.1.1.1", "44.1.1.1", true},
      {"1/2/3/4", "1.2.3.4", true},
      {"1.2.3", "1.2.3.3", false},
      {"7.x.3.4", "7.7.7.7", false},
      {"", "0.0.0.0", false},
  };
  for (const auto& [text, form, good] : rows) {
    EXPECT_STREQ(fromText<ipAddress>(text).GetFIPAddress(), form) << text;
    std::istringstream in(text);
    ipAddress address = {};
    EXPECT_EQ(static_cast<bool>(in >> address), good) << text;
    EXPECT_EQ(streamed(address), form);
  }
}

}  // namespace
