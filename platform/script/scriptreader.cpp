#include "platform/script/scriptreader.h"

#include <algorithm>

#include "platform/script/json.h"

namespace morlan {
namespace {

constexpr std::string_view kBlanks = " \t";
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

}  // namespace

Fault SplitWords(std::string_view line, Words& words) {
  for (std::size_t i = line.find_first_not_of(kBlanks); i < line.size(); i = line.find_first_not_of(kBlanks, i)) {
    if (line[i] != '"') {
      const std::size_t end = std::min(line.find_first_of(kBlanks, i), line.size());
      words.emplace_back(line.substr(i, end - i));
      i = end;
      continue;
    }
    const auto string = ReadJsonString(line, i);
    if (!string) return "a string is not well formed";
    if (i < line.size() && kBlanks.find(line[i]) == std::string_view::npos) return "a blank is missing behind a string";
    words.push_back(*string);
  }
  return std::nullopt;
}

std::optional<ScriptLine> ScriptReader::Next() {
  for (std::string text; std::getline(script_, text);) {
    std::string_view line = text;
    if (++linesRead_ == 1 && line.starts_with(kByteOrderMark)) line.remove_prefix(kByteOrderMark.size());
    if (line.ends_with('\r')) line.remove_suffix(1);
    const std::size_t first = line.find_first_not_of(kBlanks);
    if (first == std::string_view::npos || line[first] == '#') continue;
    ScriptLine read;
    read.number = linesRead_;
    read.fault = SplitWords(line, read.words);
    return read;
  }
  return std::nullopt;
}

}  // namespace morlan
