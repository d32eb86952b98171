// What the adapter table and the status line say about an adapter: words made from the records
// alone, without a widget.
#pragma once

#include <string>

#include "atm/devices.h"
#include "framework/drawing/color.h"

constexpr zColor rowGreen{0, 255, 0};
constexpr zColor rowYellow{255, 255, 0};
constexpr zColor rowRed{255, 0, 0};
constexpr zColor rowGrey{192, 192, 192};

// The columns of an adapter's row that change, its colour, and the sentence of the status line.
struct AdapterStatus {
  const char* type = "";
  std::string dataLink = " ";
  std::string macAddress = "-";
  const char* status = "?";
  const char* switchConfig = "";
  std::string sentence;
  zColor color = rowGrey;
};

// Whether an adapter number names one of the adapters there can be; a negative one does not.
inline bool isAdapter(int number) {
  return static_cast<unsigned>(number) < maxAdapters;
}

// Describes adapter `adapter` (0 to 7). Odd states are logged.
AdapterStatus describeAdapter(const AtmDevices& devices, int adapter);

// How many rows the table has: as many as the driver has boards, up to the adapters there can be.
int adapterRows(const AtmDevices& devices);
