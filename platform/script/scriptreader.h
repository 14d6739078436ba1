// The script language: commands of words, one command a line, in UTF-8. Blank lines and lines that begin with "#" are
// skipped. A word that begins with a quote is a JSON string; any other word stands as it is, backslashes included.
#pragma once

#include <cstddef>
#include <istream>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace morlan {

using Words = std::vector<std::string>;  // UTF-8; the first one names the command

// What is wrong, in UTF-8 for the last line of a transcript; nothing when all went well.
using Fault = std::optional<std::string>;

// Appends the words of a line.
Fault SplitWords(std::string_view line, Words& words);

struct ScriptLine {
  std::size_t number = 0;  // from 1
  Words words;             // at least one, unless there is a fault
  Fault fault;
};

class ScriptReader {
 public:
  explicit ScriptReader(std::istream& script) : script_(script) {}

  // The next line with a command; nothing at the end. Reads no further than that line, so that another program can
  // drive the session.
  std::optional<ScriptLine> Next();
  std::size_t LinesRead() const { return linesRead_; }

 private:
  std::istream& script_;
  std::size_t linesRead_ = 0;
};

}  // namespace morlan
