// usage: NAME_fuzz FOLDER   Runs the fuzz target on every file of the folder.
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "require.h"

int main(int argc, char** argv) {
  require(argc == 2, "usage: NAME_fuzz FOLDER");
  int inputs = 0;
  for (const auto& entry : std::filesystem::directory_iterator(argv[1])) {
    std::fprintf(stderr, "%s\n", entry.path().c_str());
    std::ifstream stream(entry.path(), std::ios::binary);
    const std::string input(std::istreambuf_iterator<char>(stream), {});
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.data()), input.size());
    ++inputs;
  }
  require(inputs > 0, "there are inputs");
  std::fprintf(stderr, "%d inputs\n", inputs);
}
