// Builds the dictionary of a language from lists of words: the field of bits and the exact automaton.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/encoding.h"
#include "text/spellingbits.h"
#include "text/wordautomatonbuilder.h"

namespace morlan {
namespace {

constexpr const char* kUsage =
    "morlan7-dictionary FOLDER EXTENSION LIST...\n"
    "Builds FOLDER/morlan7s.EXTENSION and FOLDER/morlan7i.EXTENSION from all lists together. A list is a text in UTF-8 with a\n"
    "word a line, in the letter case in which the word is right; words that Windows-1250 cannot hold are left out.\n";

std::optional<std::string> ReadFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) {
    std::cerr << path << ": cannot be read\n";
    return std::nullopt;
  }
  std::error_code error;
  const auto size = std::filesystem::file_size(path, error);
  std::string bytes(error ? 0 : size, '\0');
  file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  bytes.resize(static_cast<std::size_t>(file.gcount()));
  bytes.append(std::istreambuf_iterator<char>(file), {});
  return bytes;
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
  if (!written) std::cerr << path << ": cannot be written\n";
  return written;
}

// The word in Windows-1250; nothing where that cannot hold it.
std::optional<std::string> WordOf(std::string_view utf8) {
  std::string word;
  for (std::size_t i = 0; i < utf8.size();) {
    const DecodedCodePoint decoded = DecodeUtf8At(utf8, i);
    const int byte = decoded.valid ? ByteOf(decoded.value) : -1;
    if (byte < 0) return std::nullopt;
    word += static_cast<char>(byte);
    i += decoded.length;
  }
  return word;
}

std::vector<std::string> WordsOf(std::string_view list) {
  std::vector<std::string> words;
  for (std::size_t start = 0; start < list.size();) {
    const std::size_t end = std::min(list.find('\n', start), list.size());
    std::string_view line = list.substr(start, end - start);
    if (line.ends_with('\r')) line.remove_suffix(1);
    auto word = WordOf(line);
    if (word && !word->empty()) words.push_back(std::move(*word));
    start = end + 1;
  }
  return words;
}

int Build(const std::string& folder, const std::string& extension, const std::vector<std::string>& lists) {
  std::vector<std::string> words;
  for (const std::string& path : lists) {
    const auto text = ReadFile(path);
    if (!text) return 1;
    auto more = WordsOf(*text);
    words.insert(words.end(), std::make_move_iterator(more.begin()), std::make_move_iterator(more.end()));
  }
  std::sort(words.begin(), words.end());
  words.erase(std::unique(words.begin(), words.end()), words.end());

  std::string bits = EmptyWordBits();
  WordAutomatonBuilder builder;
  for (const std::string& word : words) {
    SetWordBit(bits, word);
    builder.Add(word);
  }
  const auto automaton = builder.Finish();
  if (!automaton) {
    std::cerr << "the lists hold more than a dictionary can take\n";
    return 1;
  }
  std::error_code ignored;  // a folder that cannot be made shows when the files are written
  std::filesystem::create_directories(folder, ignored);
  return WriteFile(folder + "/morlan7s." + extension, bits) && WriteFile(folder + "/morlan7i." + extension, *automaton) ? 0 : 1;
}

int Main(const std::vector<std::string>& arguments) {
  if (arguments.size() >= 3) return Build(arguments[0], arguments[1], {arguments.begin() + 2, arguments.end()});
  std::cerr << kUsage;
  return 2;
}

}  // namespace
}  // namespace morlan

int main(int count, char** arguments) { return morlan::Main({arguments + 1, arguments + count}); }
