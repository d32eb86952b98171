// A directory of a test's own, which is the working directory while the object lives.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <string>

class ScratchDirectory {
 public:
  ScratchDirectory() : before_(std::filesystem::current_path()) {
    std::string name = (std::filesystem::temp_directory_path() / "ondrelle.XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr) std::abort();
    path_ = name;
    std::filesystem::current_path(path_);
  }
  ~ScratchDirectory() {
    std::filesystem::current_path(before_);
    std::filesystem::remove_all(path_);
  }
  ScratchDirectory(const ScratchDirectory&) = delete;
  ScratchDirectory& operator=(const ScratchDirectory&) = delete;

  const std::filesystem::path& path() const { return path_; }

 private:
  std::filesystem::path before_;
  std::filesystem::path path_;
};
