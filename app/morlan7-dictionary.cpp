// Builds the dictionary of a language from lists of words: the field of bits and the exact automaton.
#include <algorithm>
#include <filesystem>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

#include "app/toolfiles.h"
#include "platform/encoding.h"
#include "text/spellingbits.h"
#include "text/wordautomatonbuilder.h"

namespace morlan {
namespace {

constexpr const char* kUsage =
    "morlan7-dictionary FOLDER EXTENSION LIST...\n"
    "Builds FOLDER/morlan7s.EXTENSION and FOLDER/morlan7i.EXTENSION from all lists together. A list is a text in UTF-8 with a\n"
    "word a line, in the letter case in which the word is right; words that Windows-1250 cannot hold are left out.\n";

// Adds the lines of a list in Windows-1250, each ended by a line feed, without those that it cannot hold.
void AddLines(std::string_view list, std::string& lines) {
  std::size_t start = lines.size();
  bool isHeld = true;
  for (std::size_t i = 0; i < list.size();) {
    const DecodedCodePoint decoded = DecodeUtf8At(list, i);
    const int byte = decoded.valid ? ByteOf(decoded.value) : -1;
    i += decoded.length;
    isHeld = isHeld && byte >= 0;
    if (byte >= 0 && byte != '\r') lines += static_cast<char>(byte);
    if (byte != '\n') continue;
    if (!isHeld) lines.resize(start);
    start = lines.size();
    isHeld = true;
  }
  if (!isHeld) lines.resize(start);
  if (lines.size() != start) lines += '\n';
}

// Each word once, in the order of its bytes. They lie in `lines`.
std::vector<std::string_view> SortedWords(std::string_view lines) {
  std::vector<std::string_view> words;
  for (std::size_t start = 0; start < lines.size();) {
    const std::size_t end = lines.find('\n', start);
    if (end != start) words.push_back(lines.substr(start, end - start));
    start = end + 1;
  }
  std::sort(words.begin(), words.end());
  words.erase(std::unique(words.begin(), words.end()), words.end());
  return words;
}

int Build(const std::string& folder, const std::string& extension, const std::vector<std::string>& lists) {
  std::string lines;
  for (const std::string& path : lists) {
    const auto text = ReadToolFile(path);
    if (!text) return 1;
    AddLines(*text, lines);
  }
  std::string bits = EmptyWordBits();
  WordAutomatonBuilder builder;
  for (const std::string_view word : SortedWords(lines)) {
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
  return WriteToolFile(folder + "/morlan7s." + extension, bits) && WriteToolFile(folder + "/morlan7i." + extension, *automaton) ? 0 : 1;
}

int Main(const std::vector<std::string>& arguments) {
  if (arguments.size() >= 3) return Build(arguments[0], arguments[1], {arguments.begin() + 2, arguments.end()});
  std::cerr << kUsage;
  return 2;
}

}  // namespace
}  // namespace morlan

int main(int count, char** arguments) { return morlan::Main({arguments + 1, arguments + count}); }
