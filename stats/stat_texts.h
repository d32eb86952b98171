// The texts that the statistics pages put together. Each is good until the next one is made.
#pragma once

#include <cstdint>

#include "atm/limits.h"

const char* countText(std::uint32_t count);
const char* signedCountText(std::uint32_t count);
// "VPI/VCI" of a link's circuit, both right-aligned: "  0/  16".
const char* circuitText(short link, std::uint16_t vci);
// A name out of a record, which need not be terminated.
const char* nameText(const char (&name)[elanNameBytes]);

// The parts of the 20 bytes of an ATM address, and a MAC and an IP address.
const char* prefixText(const std::uint8_t* address);
const char* esiSelectorText(const std::uint8_t* address);
const char* macText(const std::uint8_t* address);
const char* ipText(const std::uint8_t* address);
