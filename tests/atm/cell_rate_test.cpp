#include "atm/cell_rate.h"

#include <gtest/gtest.h>

#include <sstream>

namespace {

TEST(CellRate, TypedRatesBecomeCells) {
  struct {
    std::uint32_t typed;
    RateUnit unit;
    std::uint32_t cps;
  } const rows[] = {
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
  for (const auto& row : rows) {
    CellRateValue rate;
    EXPECT_EQ(rate.conv2cps(row.typed, row.unit), row.cps) << row.typed << " in " << row.unit;
    EXPECT_EQ(rate, (CellRateValue{row.cps, dfltCellRate, cellsPerSecond})) << "only cps changes";
  }
}

TEST(CellRate, CellsShownInAUnit) {
  struct {
    std::uint32_t cps;
    std::uint32_t unit, value;
  } const rows[] = {
      {352768, 0, 155326464}, {352768, 1, 352768}, {352768, 2, 155326}, {352768, 3, 155},
      {352768, 9, 155326464}, {1136, 3, 1},        {1, 0, 441},         {375172, 0, 68},
  };
  for (const auto& row : rows) {
    CellRateValue rate;
    const RateUnit unit = static_cast<RateUnit>(row.unit);
    EXPECT_EQ(rate.cps2unit(row.cps, unit), row.value) << row.cps << " in " << row.unit;
    EXPECT_EQ(rate, (CellRateValue{dfltCellRate, row.value, unit})) << "cps stays";
  }
}

TEST(CellRate, RateFormat) {
  struct {
    std::uint32_t rate;
    std::uint16_t format;
    std::uint32_t back;
  } const rows[] = {
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
  for (const auto& row : rows) {
    EXPECT_EQ(CellRateValue::cellrate_to_float(row.rate), row.format) << row.rate;
    EXPECT_EQ(CellRateValue::float_to_cellrate(row.format), row.back) << row.rate;
  }
  EXPECT_EQ(CellRateValue::float_to_cellrate(0x3FFF), 0u);
  EXPECT_EQ(CellRateValue::float_to_cellrate(0x41FF), 1u) << "no mantissa at exponent 0";
  EXPECT_EQ(CellRateValue::float_to_cellrate(0x7FFF), 0x3FFu << 22);
}

TEST(CellRate, FromText) {
  struct {
    const char* text;
    std::uint32_t cps;
  } const rows[] = {
      {"1234", 1234},
      {" 7 ", 7},
      {"4294967295", 4294967295},
      {"4294967296", dfltCellRate},
      {"abc", dfltCellRate},
      {"12x", dfltCellRate},
      {"", dfltCellRate},
      {"-1", dfltCellRate},
  };
  for (const auto& row : rows) {
    CellRateValue rate{1, 2, megabitsPerSecond};
    rate = row.text;
    EXPECT_EQ(rate, (CellRateValue{row.cps, row.cps, cellsPerSecond})) << row.text;
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
