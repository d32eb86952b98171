#include "driver/state_names.h"

#include <cstddef>

namespace {

template <class Meaning>
struct State {
  int value;
  Meaning meaning;
};
using StateName = State<const char*>;
using StateColor = State<LayerColor>;

template <class Meaning, std::size_t count>
Meaning lookUp(const State<Meaning> (&states)[count], int value, Meaning otherwise) {
  for (const State<Meaning>& state : states) {
    if (state.value == value) return state.meaning;
  }
  return otherwise;
}

template <std::size_t count>
const char* nameOf(const StateName (&names)[count], int value) {
  return lookUp(names, value, "XXXX");
}

template <std::size_t count>
unsigned colorOf(const StateColor (&colors)[count], int value) {
  return lookUp(colors, value, layerInTransition);
}

constexpr int notConfigured = 255;

constexpr StateName mtuTypes[] = {{1, "1516"}, {2, "4544"}, {3, "9234"}, {4, "18190"}};

constexpr StateName elanTypes[] = {{1, "Ethernet"}, {2, "Token Ring"}};

constexpr StateName busStates[] = {
    {0, "Idle"}, {1, "Signalling A"}, {2, "Signalling B"}, {3, "Active"}};

constexpr StateName saalStates[] = {
    {0, "SSCOP Idle"},
    {1, "Outgoing Connection Pending"},
    {2, "Incoming Connection Pending"},
    {3, "Outgoing disconnection pending"},
    {4, "Outgoing resync pending"},
    {5, "Incoming resync pending"},
    {6, "Outgoing recovery pending"},
    {7, "Incoming recovery pending"},
    {8, "Recovery response pending"},
    {9, "Data transfer ready"},
    {notConfigured, "SSCOP Not configured"},
};

constexpr StateName sigStates[] = {
    {0, "Signalling Disconnected"},
    {1, "Signalling Ready"},
    {notConfigured, "Signalling Not configured"},
};

constexpr StateName ilmiStates[] = {
    {0, "ILMI Disabled"},
    {1, "ILMI Registering"},
    {2, "ILMI Registered"},
    {3, "ILMI Static Registration"},
    {notConfigured, "ILMI Not configured"},
};

constexpr StateName lmacStates[] = {
    {0, "Unused MAC entry"},
    {1, "Waiting for VCC connection"},
    {2, "Active"},
    {3, "Waiting for ARP response"},
    {4, "Waiting for InARP response"},
    {5, "Reverifying connection"},
};

constexpr StateColor ilmiColors[] = {
    {0, layerNotRunning}, {notConfigured, layerNotRunning}, {2, layerUp}, {3, layerUp}};
constexpr StateColor saalColors[] = {{notConfigured, layerNotRunning}, {9, layerUp}};
constexpr StateColor sigColors[] = {{notConfigured, layerNotRunning}, {1, layerUp}};

}  // namespace

const char* MtuTypeToString(short type) {
  return nameOf(mtuTypes, type);
}
const char* ElanTypeToString(short type) {
  return nameOf(elanTypes, type);
}
const char* BusStateToString(short state) {
  return nameOf(busStates, state);
}
const char* SaalStateToString(unsigned char state) {
  return nameOf(saalStates, state);
}
const char* SigStateToString(unsigned char state) {
  return nameOf(sigStates, state);
}
const char* IlmiStateToString(unsigned char state) {
  return nameOf(ilmiStates, state);
}
const char* LmacStateToString(short state) {
  return nameOf(lmacStates, state);
}

unsigned IlmiStateToColor(unsigned char state) {
  return colorOf(ilmiColors, state);
}
unsigned SaalStateToColor(unsigned char state) {
  return colorOf(saalColors, state);
}
unsigned SigStateToColor(unsigned char state) {
  return colorOf(sigColors, state);
}
