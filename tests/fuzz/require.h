// What must hold in a fuzz target, whatever the input.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

// Runs the target on one input; returns 0.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

inline void require(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "Broken: %s\n", what);
  std::abort();
}
