// What a key costs in a field with a picture: in the longest picture of the program, and as the
// picture grows.
#include <benchmark/benchmark.h>

#include <string>

#include "framework/entry/picture_formatter.h"

namespace {

constexpr unsigned long fill = 0x200000;
constexpr int prefixDigits = 26;

// Pairs of hex digits with colons between, of so many elements.
std::string pairs(int elements) {
  std::string picture;
  for (int i = 0; i < elements; ++i) picture += i % 3 == 2 ? "':'" : "[0-9A-Fa-f]";
  return picture;
}

// A key in a field that holds so many digits, with the caret in front of or behind them.
void key(benchmark::State& state, unsigned long style, int elements, int digits, bool inFront) {
  zPictFormatter formatter(style, pairs(elements).c_str());
  std::string text;
  zRange caret;
  formatter.addChars(text, "", 0, caret);
  for (int i = 0; i < digits; ++i) formatter.addChars(text, "7", 1, caret);
  if (inFront) caret = {};
  for (auto _ : state) {
    std::string field = text;
    zRange sel = caret;
    benchmark::DoNotOptimize(formatter.addChars(field, "a", 1, sel));
  }
  state.SetComplexityN(elements);
}

void prefixKey(benchmark::State& state, int digits, bool inFront) {
  key(state, fill, prefixDigits + prefixDigits / 2 - 1, digits, inFront);
}

void growing(benchmark::State& state, unsigned long style) {
  const int elements = static_cast<int>(state.range(0));
  key(state, style, elements, elements / 3, true);
}

BENCHMARK_CAPTURE(prefixKey, empty, 0, true);
BENCHMARK_CAPTURE(prefixKey, lastDigit, prefixDigits - 1, false);
BENCHMARK_CAPTURE(prefixKey, refusedWhenFull, prefixDigits, false);
BENCHMARK_CAPTURE(prefixKey, frontOfFull, prefixDigits, true);
BENCHMARK_CAPTURE(growing, filled, fill)->RangeMultiplier(2)->Range(8, 256)->Complexity();
BENCHMARK_CAPTURE(growing, gapsNotShown, 0)->RangeMultiplier(2)->Range(8, 256)->Complexity();

}  // namespace

BENCHMARK_MAIN();
