// How many services an adapter has and how long their names may be, terminators included.
#pragma once

constexpr int maxAdapters = 8;
constexpr int maxLecs = 16;  // LAN Emulation clients an adapter
constexpr int maxLess = 16;  // LAN Emulation servers an adapter

constexpr int elanNameBytes = 32;
constexpr int fileNameBytes = 256;
constexpr int ipTextBytes = 18;
