// A folder of its own for each test, with a configuration file in it, and what the program says.
#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <string>

class StoreTest : public testing::Test {
 protected:
  StoreTest() {
    // In memory, where forcing to disk costs nothing.
    std::string folder = access("/dev/shm", W_OK) == 0 ? "/dev/shm" : "/tmp";
    folder += "/ondrelle-store-XXXXXX";
    folder_ = mkdtemp(folder.data());
    std::filesystem::current_path(folder_);
    std::filesystem::create_directories("etc/atm");
  }
  ~StoreTest() override {
    std::filesystem::current_path("/");
    std::filesystem::remove_all(folder_);
  }

  static void write(const std::string& name, const std::string& text) {
    std::ofstream(name, std::ios::binary) << text;
  }
  static std::string read(const std::string& name) {
    std::ifstream stream(name, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
  }
  static std::string sample() { return read(ONDRELLE_SOURCE_DIR "/data/odconf.sample"); }
  static void writeConfig(const std::string& text) { write(config, text); }

  // What `action` prints to standard output.
  template <class Action>
  static std::string printed(Action action) {
    testing::internal::CaptureStdout();
    action();
    return testing::internal::GetCapturedStdout();
  }

  static constexpr char config[] = "./etc/atm/odconf";

 private:
  std::filesystem::path folder_;
};

// The lines that `action` logs.
std::string logged(const std::function<void()>& action);
