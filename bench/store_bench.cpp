// What it costs to commit an adapter and to read the whole configuration, beside moving the same
// bytes by bare system calls. The argument is the number of full adapters in the file. The files
// are in a folder below the working directory, so on whatever disk that is.
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "atm/devices.h"
#include "store/driver_pdf_edit.h"

namespace {

constexpr char config[] = "./etc/atm/odconf";
constexpr char temporary[] = "./etc/atmOD";

// The product record, 2 sections of the physical layer, 3 of signalling, the clients and servers,
// the configuration server and IP over ATM.
constexpr int rewritesOfACommit = 1 + 2 + 3 + maxLecs + maxLess + 1 + 1;
// Signalling is opened three times, its children and the limits once each.
constexpr int openingsOfAnAdapter = 1 + 2 + 3 + 3 + maxLecs + maxLess + 1 + 1;

// A configuration of full adapters, made by the writers.
void makeConfig(long adapters) {
  std::filesystem::create_directories("etc/atm");
  std::ofstream out(config);
  out << "[Ondrelle0\n]\n[GlobalSigParams0\n]\n";
  for (long adapter = 0; adapter < adapters; ++adapter) {
    out << "# A board.\n[Adapter" << adapter
        << "\n\t[Signalling0\n\t\t[QSaalSection0\n\t\t]\n\t]\n]\n";
  }
  out.close();
  atmDevices = AtmDevices{};
  atmDevices.numAdapters = static_cast<std::uint32_t>(adapters);
  DriverPdfEdit(nullptr, false).WritePdf();
}

void reportFile(benchmark::State& state) {
  state.counters["bytes"] = static_cast<double>(std::filesystem::file_size(config));
}

std::vector<char> readFile() {
  const int file = open(config, O_RDONLY | O_CLOEXEC);
  struct stat status = {};
  fstat(file, &status);
  std::vector<char> bytes(static_cast<std::size_t>(status.st_size));
  if (read(file, bytes.data(), bytes.size()) != status.st_size) std::abort();
  close(file);
  return bytes;
}

void copyFile() {
  const std::vector<char> bytes = readFile();
  const int file = open(temporary, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
  if (write(file, bytes.data(), bytes.size()) != static_cast<ssize_t>(bytes.size())) std::abort();
  fsync(file);
  close(file);
  if (rename(temporary, config) != 0) std::abort();
  const int folder = open("./etc/atm", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  fsync(folder);
  close(folder);
}

void writeLink(benchmark::State& state) {
  makeConfig(state.range(0));
  DriverPdfEdit edit(nullptr, false);
  for (auto _ : state) {
    atmDevices.phy[0].VPI ^= 1;
    edit.WriteLink(0);
  }
  reportFile(state);
}

void copyAsOften(benchmark::State& state) {
  makeConfig(state.range(0));
  for (auto _ : state) {
    for (int i = 0; i < rewritesOfACommit; ++i) copyFile();
  }
}

void readPdf(benchmark::State& state) {
  makeConfig(state.range(0));
  for (auto _ : state) {
    atmDevices = AtmDevices{};
    DriverPdfEdit(nullptr, false).ReadPdf();
  }
  reportFile(state);
}

void readAsOften(benchmark::State& state) {
  makeConfig(state.range(0));
  const auto openings = 1 + openingsOfAnAdapter * state.range(0);
  for (auto _ : state) {
    for (long i = 0; i < openings; ++i) benchmark::DoNotOptimize(readFile());
  }
}

// The same by the C library's lines.
void readLinesAsOften(benchmark::State& state) {
  makeConfig(state.range(0));
  const auto openings = 1 + openingsOfAnAdapter * state.range(0);
  char line[sectLineBytes];
  for (auto _ : state) {
    for (long i = 0; i < openings; ++i) {
      std::FILE* file = std::fopen(config, "re");
      while (std::fgets(line, sizeof line, file) != nullptr) benchmark::DoNotOptimize(line);
      std::fclose(file);
    }
  }
}

BENCHMARK(writeLink)
    ->RangeMultiplier(2)
    ->Range(1, maxAdapters)
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(copyAsOften)
    ->RangeMultiplier(2)
    ->Range(1, maxAdapters)
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(readPdf)->Arg(maxAdapters)->Unit(benchmark::kMillisecond);
BENCHMARK(readAsOften)->Arg(maxAdapters)->Unit(benchmark::kMillisecond);
BENCHMARK(readLinesAsOften)->Arg(maxAdapters)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
  std::string folder = "./store_bench-XXXXXX";
  if (mkdtemp(folder.data()) == nullptr) return EXIT_FAILURE;
  std::filesystem::current_path(folder);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  std::filesystem::current_path("..");
  std::filesystem::remove_all(folder);
}
