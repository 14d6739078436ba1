// Builds the file of character sets from its readable source, and turns such a file back into a source.
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <optional>
#include <string>
#include <vector>

#include "text/charsetsource.h"

namespace morlan {
namespace {

constexpr const char* kUsage =
    "morlan7-charsets compile RESULT SOURCE...   build the file of character sets from all sources together\n"
    "morlan7-charsets source FILE                print the source of a file of character sets\n";

std::optional<std::string> ReadFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) {
    std::cerr << path << ": cannot be read\n";
    return std::nullopt;
  }
  return std::string(std::istreambuf_iterator<char>(file), {});
}

// The old file stays whole until the new one takes its name.
bool WriteFile(const std::string& path, const std::string& bytes) {
  const std::string fresh = path + ".new";
  std::ofstream file(fresh, std::ios::binary);
  file << bytes << std::flush;
  std::error_code error;
  if (file) std::filesystem::rename(fresh, path, error);
  const bool written = file && !error;
  std::error_code ignored;
  if (!written) std::filesystem::remove(fresh, ignored);
  return written;
}

int Compile(const std::string& result, const std::vector<std::string>& paths) {
  std::vector<CharSetSourceText> source;
  for (const std::string& path : paths) {
    auto text = ReadFile(path);
    if (!text) return 1;
    source.push_back({path, std::move(*text)});
  }
  const CompiledCharSets compiled = CompileCharSets(source);
  for (const std::string& fault : compiled.faults) std::cerr << fault << '\n';
  if (!compiled.faults.empty()) return 1;
  if (WriteFile(result, compiled.file.Bytes())) return 0;
  std::cerr << result << ": cannot be written\n";
  return 1;
}

int PrintSource(const std::string& path) {
  auto bytes = ReadFile(path);
  if (!bytes) return 1;
  const auto source = CharSetSourceOf(CharSetFile(std::move(*bytes)));
  if (!source) std::cerr << path << ": a record is damaged\n";
  std::cout << source.value_or("") << std::flush;
  return source && std::cout ? 0 : 1;
}

int Main(const std::vector<std::string>& arguments) {
  const std::string command = arguments.empty() ? "" : arguments.front();
  if (command == "compile" && arguments.size() > 2) return Compile(arguments[1], {arguments.begin() + 2, arguments.end()});
  if (command == "source" && arguments.size() == 2) return PrintSource(arguments[1]);
  std::cerr << kUsage;
  return 2;
}

}  // namespace
}  // namespace morlan

int main(int count, char** arguments) { return morlan::Main({arguments + 1, arguments + count}); }
