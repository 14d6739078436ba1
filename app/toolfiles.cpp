#include "app/toolfiles.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>
#include <utility>

namespace morlan {

std::optional<std::string> ReadToolFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  std::ostringstream bytes;
  // An empty file gives the stream nothing to take, which is no fault.
  if (file && file.peek() != std::ifstream::traits_type::eof()) bytes << file.rdbuf();
  if (file.is_open() && bytes) return std::move(bytes).str();
  std::cerr << path << ": cannot be read\n";
  return std::nullopt;
}

bool WriteToolFile(const std::string& path, const std::string& bytes) {
  const std::string fresh = path + ".new";
  std::ofstream file(fresh, std::ios::binary);
  file << bytes << std::flush;
  std::error_code error;
  if (file) std::filesystem::rename(fresh, path, error);
  if (file && !error) return true;
  std::cerr << path << ": cannot be written\n";
  std::filesystem::remove(fresh, error);
  return false;
}

}  // namespace morlan
