// A traffic rate as the user typed it and as the driver takes it.
#pragma once

#include <cstdint>
#include <iosfwd>

// Units of a typed rate; the numbers are also the places in the unit list of the client page and
// what the configuration file holds, which may be any other number too.
enum RateUnit : std::uint32_t {
  bitsPerSecond = 0,
  cellsPerSecond = 1,
  kilobitsPerSecond = 2,
  megabitsPerSecond = 3,
};

constexpr std::uint32_t dfltCellRate = 352768;  // 155 Mb/s, in cells per second

// Unsigned 32-bit arithmetic throughout, wrapping. A rate typed in anything but cells per second
// goes through the 16-bit floating-point rate of ATM signalling (UNI 3.1), so that the rate kept
// is one that the message can carry.
struct CellRateValue {
  std::uint32_t cps = dfltCellRate;    // cells per second
  std::uint32_t value = dfltCellRate;  // the number the user sees, in `units`
  RateUnit units = cellsPerSecond;

  // A decimal number of cells per second; any other text gives the default rate and a log line.
  CellRateValue& operator=(const char* text);

  // Sets `value` and `units` to show `rate` (cells per second) in `unit`, and returns the value.
  std::uint32_t cps2unit(std::uint32_t rate, RateUnit unit);
  // Sets `cps` to what was typed, `number` in `unit`, and returns it.
  std::uint32_t conv2cps(std::uint32_t number, RateUnit unit);

  // Line bits to cells and back, rounded up: 424 bits a cell, of which SONET carries 26 in 27.
  static std::uint32_t bps_to_cps(std::uint32_t bps);
  static std::uint32_t cps_to_bps(std::uint32_t rate);

  // The rate format 2^e * (1 + m/512): bit 14 set unless the rate is 0, e in bits 13 to 9, m in
  // bits 8 to 0. Of a rate the low 24 bits count for e; with none of them set the result is 0.
  static std::uint16_t cellrate_to_float(std::uint32_t rate);
  static std::uint32_t float_to_cellrate(std::uint16_t rate);

  bool operator==(const CellRateValue&) const = default;
};

// One line for the log.
std::ostream& operator<<(std::ostream& out, const CellRateValue& rate);
