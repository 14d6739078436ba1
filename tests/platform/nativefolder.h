// A folder of the machine that a test fills as it likes; it goes with the object.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

namespace morlan {

class NativeFolder {
 public:
  NativeFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "morlan7-test-XXXXXX").string();
    path = ::mkdtemp(name.data());
  }
  ~NativeFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path, ignored);
  }
  NativeFolder(const NativeFolder&) = delete;
  NativeFolder& operator=(const NativeFolder&) = delete;

  std::string Put(const std::string& name, const std::string& bytes) const {
    std::ofstream(path / name, std::ios::binary) << bytes;
    return (path / name).string();
  }
  std::string Get(const std::string& name) const {
    std::ifstream file(path / name, std::ios::binary);
    return file ? std::string(std::istreambuf_iterator<char>(file), {}) : "(no file)";
  }
  bool Has(const std::string& name) const { return std::filesystem::exists(std::filesystem::symlink_status(path / name)); }

  std::filesystem::path path;
};

}  // namespace morlan
