#include "driver/state_names.h"

#include <gtest/gtest.h>

#include <string>

namespace {

// Each row goes through all values of the function, from `first` on, with "XXXX" for the rest.
TEST(StateNames, EveryValueHasItsWord) {
  const struct {
    const char* function;
    std::string (*name)(int);
    int last;
    const char* words;
  } cases[] = {
      {"Mtu", [](int v) -> std::string { return MtuTypeToString(static_cast<short>(v)); }, 5,
       "XXXX|1516|4544|9234|18190|XXXX|"},
      {"Elan", [](int v) -> std::string { return ElanTypeToString(static_cast<short>(v)); }, 3,
       "XXXX|Ethernet|Token Ring|XXXX|"},
      {"Bus", [](int v) -> std::string { return BusStateToString(static_cast<short>(v)); }, 4,
       "Idle|Signalling A|Signalling B|Active|XXXX|"},
      {"Saal",
       [](int v) -> std::string { return SaalStateToString(static_cast<unsigned char>(v)); }, 10,
       "SSCOP Idle|Outgoing Connection Pending|Incoming Connection Pending|"
       "Outgoing disconnection pending|Outgoing resync pending|Incoming resync pending|"
       "Outgoing recovery pending|Incoming recovery pending|Recovery response pending|"
       "Data transfer ready|XXXX|"},
      {"Sig", [](int v) -> std::string { return SigStateToString(static_cast<unsigned char>(v)); },
       2, "Signalling Disconnected|Signalling Ready|XXXX|"},
      {"Ilmi",
       [](int v) -> std::string { return IlmiStateToString(static_cast<unsigned char>(v)); }, 4,
       "ILMI Disabled|ILMI Registering|ILMI Registered|ILMI Static Registration|XXXX|"},
      {"Lmac", [](int v) -> std::string { return LmacStateToString(static_cast<short>(v)); }, 6,
       "Unused MAC entry|Waiting for VCC connection|Active|Waiting for ARP response|"
       "Waiting for InARP response|Reverifying connection|XXXX|"},
  };
  for (const auto& c : cases) {
    std::string words;
    for (int value = 0; value <= c.last; ++value) words += c.name(value) + "|";
    EXPECT_EQ(words, c.words) << c.function;
    EXPECT_EQ(c.name(254), "XXXX") << c.function;
  }
  EXPECT_STREQ(SaalStateToString(255), "SSCOP Not configured");
  EXPECT_STREQ(SigStateToString(255), "Signalling Not configured");
  EXPECT_STREQ(IlmiStateToString(255), "ILMI Not configured");
  EXPECT_STREQ(LmacStateToString(-1), "XXXX");
}

TEST(StateNames, EveryStateHasItsColor) {
  const struct {
    unsigned (*color)(unsigned char);
    const char* upTo10;
  } cases[] = {{IlmiStateToColor, "01221111111"},
               {SaalStateToColor, "11111111121"},
               {SigStateToColor, "12111111111"}};
  for (const auto& c : cases) {
    std::string colors;
    for (int state = 0; state <= 10; ++state)
      colors += std::to_string(c.color(static_cast<unsigned char>(state)));
    EXPECT_EQ(colors, c.upTo10);
    EXPECT_EQ(c.color(254), 1U);
    EXPECT_EQ(c.color(255), 0U);
  }
}

}  // namespace
