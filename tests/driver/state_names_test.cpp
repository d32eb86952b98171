#include "driver/state_names.h"

#include <gtest/gtest.h>

#include <string>

namespace {

// The words of the values 0 to `last`, then that of 254, which no function knows, and of 255.
template <class Argument>
std::string words(const char* (*name)(Argument), int last) {
  std::string all;
  for (int value = 0; value <= last; ++value)
    all += name(static_cast<Argument>(value)) + std::string("|");
  return all + name(static_cast<Argument>(254)) + "|" + name(static_cast<Argument>(255));
}

TEST(StateNames, EveryValueHasItsWord) {
  EXPECT_EQ(words(MtuTypeToString, 5), "XXXX|1516|4544|9234|18190|XXXX|XXXX|XXXX");
  EXPECT_EQ(words(ElanTypeToString, 3), "XXXX|Ethernet|Token Ring|XXXX|XXXX|XXXX");
  EXPECT_EQ(words(BusStateToString, 4), "Idle|Signalling A|Signalling B|Active|XXXX|XXXX|XXXX");
  EXPECT_EQ(words(SaalStateToString, 10),
            "SSCOP Idle|Outgoing Connection Pending|Incoming Connection Pending|"
            "Outgoing disconnection pending|Outgoing resync pending|Incoming resync pending|"
            "Outgoing recovery pending|Incoming recovery pending|Recovery response pending|"
            "Data transfer ready|XXXX|XXXX|SSCOP Not configured");
  EXPECT_EQ(words(SigStateToString, 2),
            "Signalling Disconnected|Signalling Ready|XXXX|XXXX|Signalling Not configured");
  EXPECT_EQ(words(IlmiStateToString, 4),
            "ILMI Disabled|ILMI Registering|ILMI Registered|ILMI Static Registration|XXXX|XXXX|"
            "ILMI Not configured");
  EXPECT_EQ(words(LmacStateToString, 6),
            "Unused MAC entry|Waiting for VCC connection|Active|Waiting for ARP response|"
            "Waiting for InARP response|Reverifying connection|XXXX|XXXX|XXXX");
}

TEST(StateNames, EveryStateHasItsColor) {
  const auto colors = [](unsigned (*color)(unsigned char)) {
    std::string all;
    for (const int state : {0, 1, 2, 3, 4, 8, 9, 10, 254, 255})
      all += std::to_string(color(static_cast<unsigned char>(state)));
    return all;
  };
  EXPECT_EQ(colors(IlmiStateToColor), "0122111110");
  EXPECT_EQ(colors(SaalStateToColor), "1111112110");
  EXPECT_EQ(colors(SigStateToColor), "1211111110");
}

}  // namespace
