// The texts of the program, by number.
#include "framework/resources/resources.h"

namespace {

struct Text {
  int id;
  const char* text;  // of a block: texts one behind the other, each ended by a NUL, then another
};

constexpr Text strings[] = {
    {537, "Setup"},
    {538, "Statistics"},
    {539, "Global Settings"},
    {800, "Ondrelle"},
    {801, "Ondrelle ATM Configuration Applet"},
};

// clang-format off: one block a row
constexpr Text blocks[] = {
    {540,
     "Adapter\0"
     "Type\0"
     "Data Link\0"
     "Mac Address\0"
     "Status\0"
     "Switch Config\0"},
    {541,
     "On-Board\0"
     "Cell-FIFO\0"},
    {542,
     "Backup\0"
     "Primary\0"},
    {543,
     "None\0"
     "2\0"
     "3\0"
     "4\0"
     "5\0"
     "6\0"
     "7\0"
     "8\0"},
    {544,
     "AutoDetect\0"
     "3\0"
     "4\0"
     "5\0"
     "9\0"
     "10\0"
     "11\0"
     "12\0"
     "13\0"
     "14\0"
     "15\0"},
    {545,
     "3.0\0"
     "3.1\0"},
    {546,
     "bits/s\0"
     "Cells/s\0"
     "Kb/s\0"
     "Mb/s\0"},
    {547,
     "Ethernet\0"
     "TokenRing\0"},
    {548,
     "1516\0"
     "4544\0"
     "9234\0"},
    {549,
     "MAC Address\0"
     "VPI/VCI\0"
     "Encapsulation\0"
     "Broadcast\0"},
    {550,
     "1516\0"
     "4544\0"
     "9234\0"},
    {551,
     "1516\0"
     "4544\0"
     "9234\0"},
    {552,
     "1516\0"
     "4544\0"
     "9234\0"},
    {553,
     "IP Address\0"
     "VPI/VCI\0"
     "Encapsulation\0"},
    {554,
     "ILMI\0"
     "Signalling\0"},
    {555,
     "VPI/VCI\0"
     "Frames In\0"
     "Frames Out\0"},
    {556,
     "Control Dir\0"
     "Control Dist\0"
     "Multicast Send\0"
     "Multicast Fwd\0"},
    {557,
     "VPI/VCI\0"
     "Tx Packets\0"
     "Rx Packets\0"
     "NetworkPrefix\0"
     "ESI/Selector\0"},
    {558,
     "MAC Address\0"
     "VPI/VCI\0"
     "Tx Packets\0"
     "Rx Packets\0"
     "Network Prefix\0"
     "ESI/Selector\0"},
    {559,
     "LD Address\0"
     "State\0"
     "Ctl Dir VCI\0"
     "CD Tx Pkts\0"
     "CD Rx Pkts\0"
     "Mul Snd VCI\0"
     "MSTx Pkts\0"
     "MS Rx Pkts\0"
     "Network Prefix\0"
     "ESI/Selector\0"},
    {560,
     "IP Address\0"
     "VPI/VCI\0"
     "State\0"
     "Tx Packets\0"
     "Rx Packets\0"
     "Network Prefix\0"
     "ESI/Selector\0"},
    {561,
     "250\0"
     "500\0"
     "1000\0"
     "1500\0"
     "2000\0"
     "4000\0"},
    {562,
     "CBR\0"
     "VBR\0"
     "ABR\0"
     "UBR\0"},
    {563,
     "CBR\0"
     "VBR\0"
     "ABR\0"
     "UBR\0"},
};
// clang-format on

template <std::size_t N>
const char* find(const Text (&texts)[N], int id) {
  for (const Text& t : texts) {
    if (t.id == id) return t.text;
  }
  return nullptr;
}

}  // namespace

const char* ziFindString(int id) {
  return find(strings, id);
}

const char* ziFindStringBlock(int id) {
  return find(blocks, id);
}
