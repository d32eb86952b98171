#include "driver/state_names.h"

#include <cstddef>
#include <cstdint>

#include "driver/value_words.h"

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

const char* nameOf(const ValueWords& names, int value) {
  const auto place = static_cast<std::uint32_t>(value) - names.first;
  return place < names.words.size() ? names.words[place] : "XXXX";
}

template <std::size_t count>
unsigned colorOf(const StateColor (&colors)[count], int value) {
  return lookUp(colors, value, layerInTransition);
}

constexpr int notConfigured = 255;

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
  return nameOf(words::frameSizes, type);
}
const char* ElanTypeToString(short type) {
  return nameOf(words::serverElanTypes, type);
}
const char* BusStateToString(short state) {
  return nameOf(words::busStates, state);
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
