// The entry of the benchmarks that run on a display: zAppEntry measures.
#include <benchmark/benchmark.h>

#include "framework/core/app.h"

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  ZAPPXMprogname = argv[0];
  app = new zApp(1, argv, "");
  app->zAppEntry();
  delete app;
  return 0;
}
