#include "atm/cell_rate.h"

#include <gtest/gtest.h>

#include <sstream>
#include <tuple>

namespace {

TEST(CellRate, TypedRatesBecomeCells) {
  const std::tuple<std::uint32_t, RateUnit, std::uint32_t> rows[] = {
      {155, megabitsPerSecond, 352768},
      {0, cellsPerSecond, 0},
      {0, megabitsPerSecond, 1136},
      {353163, cellsPerSecond, 353163},
      {0, bitsPerSecond, 0},
      {1, bitsPerSecond, 1},
      {0, kilobitsPerSecond, 2},
      {64, kilobitsPerSecond, 147},
      {165190500, bitsPerSecond, 374784},
      {165191050, bitsPerSecond, 1},
  };
  for (const auto& [typed, unit, cps] : rows) {
    CellRateValue rate;
    EXPECT_EQ(rate.conv2cps(typed, unit), cps) << typed << " in " << unit;
    EXPECT_EQ(rate, (CellRateValue{cps, dfltCellRate, cellsPerSecond})) << "only cps changes";
  }
}

TEST(CellRate, CellsShownInAUnit) {
  const std::tuple<std::uint32_t, std::uint32_t, std::uint32_t> rows[] = {
      {352768, 0, 155326464}, {352768, 1, 352768}, {352768, 2, 155326}, {352768, 3, 155},
      {352768, 9, 155326464}, {1136, 3, 1},        {1, 0, 441},         {375172, 0, 68},
  };
  for (const auto& [cps, number, value] : rows) {
    CellRateValue rate;
    const RateUnit unit = static_cast<RateUnit>(number);
    EXPECT_EQ(rate.cps2unit(cps, unit), value) << cps << " in " << unit;
    EXPECT_EQ(rate, (CellRateValue{dfltCellRate, value, unit})) << "cps stays";
  }
}

TEST(CellRate, RateFormat) {
  const std::tuple<std::uint32_t, std::uint16_t, std::uint32_t> rows[] = {
      {0, 0, 0},
      {1, 0x4000, 1},
      {3, 0x4300, 3},
      {511, 0x51fe, 511},
      {512, 0x5200, 512},
      {1023, 0x53ff, 1023},
      {1025, 0x5400, 1024},
      {353163, 0x64b1, 352768},
      {0xFFFFFF, 0x6fff, 0xFFC000},
      {0x1000000, 0, 0},
      {0xFF000000, 0, 0},
  };
  for (const auto& [rate, format, back] : rows) {
    EXPECT_EQ(CellRateValue::cellrate_to_float(rate), format) << rate;
    EXPECT_EQ(CellRateValue::float_to_cellrate(format), back) << rate;
  }
  EXPECT_EQ(CellRateValue::float_to_cellrate(0x3FFF), 0u);
  EXPECT_EQ(CellRateValue::float_to_cellrate(0x41FF), 1u) << "no mantissa at exponent 0";
  EXPECT_EQ(CellRateValue::float_to_cellrate(0x7FFF), 0x3FFu << 22);
}

TEST(CellRate, FromText) {
  const std::tuple<const char*, std::uint32_t> rows[] = {
      {"1234", 1234},
      {" 7 ", 7},
      {"4294967295", 4294967295},
      {"4294967296", dfltCellRate},
      {"abc", dfltCellRate},
      {"12x", dfltCellRate},
      {"", dfltCellRate},
      {"-1", dfltCellRate},
  };
  for (const auto& [text, cps] : rows) {
    CellRateValue rate{1, 2, megabitsPerSecond};
    rate = text;
    EXPECT_EQ(rate, (CellRateValue{cps, cps, cellsPerSecond})) << text;
  }
}

TEST(CellRate, LogForm) {
  std::ostringstream out;
  out << CellRateValue{352768, 155, megabitsPerSecond} << CellRateValue{147, 64, kilobitsPerSecond}
      << CellRateValue{5, 5, cellsPerSecond} << CellRateValue{1, 2, bitsPerSecond};
  EXPECT_EQ(out.str(),
            "155 Mbps == 352768 Cell/s\n64 Kbps == 147 Cell/s\n5 Cell/s\n"
            "2 Bps == 1 Cell/s\n");
}

}  // namespace
