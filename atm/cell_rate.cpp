#include "atm/cell_rate.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <string_view>

#include "foundation/odlog.h"

namespace {

constexpr std::uint32_t nonZeroFlag = 0x4000;
constexpr std::uint32_t mantissaMask = 0x1FF;
constexpr int mantissaBits = 9;

// How typed numbers of a unit scale to bits per second; half a unit is added in both directions.
constexpr std::uint32_t unitBits(RateUnit unit) {
  return unit == kilobitsPerSecond ? 1000 : unit == megabitsPerSecond ? 1000000 : 1;
}

const char* unitWord(RateUnit unit) {
  return unit == bitsPerSecond       ? "Bps"
         : unit == kilobitsPerSecond ? "Kbps"
         : unit == megabitsPerSecond ? "Mbps"
                                     : "";
}

// The whole of `text`, blanks around it aside, as a decimal number that fits.
bool stringToNum(std::string_view text, std::uint32_t& number) {
  constexpr std::string_view blanks = " \t";
  text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
  text = text.substr(0, text.find_last_not_of(blanks) + 1);
  const char* end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, number);
  return error == std::errc() && stop == end;
}

}  // namespace

CellRateValue& CellRateValue::operator=(const char* text) {
  units = cellsPerSecond;
  if (!stringToNum(text, cps)) {
    odlog << "stringToNum failed for '" << text << "'" << std::endl;
    cps = dfltCellRate;
  }
  value = cps;
  return *this;
}

std::uint32_t CellRateValue::cps2unit(std::uint32_t rate, RateUnit unit) {
  odlog << "cps2unit: " << rate << " to Units: " << unit << " Before == " << value << std::endl;
  if (unit == cellsPerSecond) {
    value = rate;
  } else {
    value = (cps_to_bps(rate) + unitBits(unit) / 2) / unitBits(unit);
  }
  units = unit;
  odlog << "cps2unit: After == " << value << std::endl;
  return value;
}

std::uint32_t CellRateValue::conv2cps(std::uint32_t number, RateUnit unit) {
  odlog << "conv2cps: " << number << " from Units: " << unit << " Before == " << cps << std::endl;
  if (unit == cellsPerSecond) {
    cps = number;
  } else {
    const std::uint32_t sval = number * unitBits(unit) + unitBits(unit) / 2;
    odlog << "conv2cps: sval == " << sval << std::endl;
    cps = float_to_cellrate(cellrate_to_float(bps_to_cps(sval)));
  }
  odlog << "conv2cps: After == " << cps << std::endl;
  return cps;
}

std::uint32_t CellRateValue::bps_to_cps(std::uint32_t bps) {
  return (bps * 26 + 11447) / 11448;
}

std::uint32_t CellRateValue::cps_to_bps(std::uint32_t rate) {
  return (rate * 11448 + 25) / 26;
}

std::uint16_t CellRateValue::cellrate_to_float(std::uint32_t rate) {
  const std::uint32_t counted = rate & 0xFFFFFF;
  if (counted == 0) return 0;
  const int exponent = static_cast<int>(std::bit_width(counted)) - 1;
  const std::uint32_t scaled = exponent < mantissaBits ? rate << (mantissaBits - exponent)
                                                       : rate >> (exponent - mantissaBits);
  return static_cast<std::uint16_t>(nonZeroFlag | static_cast<std::uint32_t>(exponent) << 9 |
                                    (scaled & mantissaMask));
}

std::uint32_t CellRateValue::float_to_cellrate(std::uint16_t rate) {
  if ((rate & nonZeroFlag) == 0) return 0;
  const int exponent = rate >> mantissaBits & 0x1F;
  if (exponent == 0) return 1;
  const std::uint32_t scaled = 0x200 | (rate & mantissaMask);
  return exponent < mantissaBits ? scaled >> (mantissaBits - exponent)
                                 : scaled << (exponent - mantissaBits);
}

std::ostream& operator<<(std::ostream& out, const CellRateValue& rate) {
  if (rate.units != cellsPerSecond) {
    out << rate.value << ' ' << unitWord(rate.units) << " == ";
  }
  return out << rate.cps << " Cell/s\n";
}
