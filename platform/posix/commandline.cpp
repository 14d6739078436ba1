#include "platform/posix/commandline.h"

#include <algorithm>

namespace morlan {
namespace {

bool IsBlank(char character) { return character == ' ' || character == '\t'; }

class Splitter {
 public:
  explicit Splitter(std::string_view line) : line_(line) {}

  bool SkipBlanks() {
    while (at_ < line_.size() && IsBlank(line_[at_])) ++at_;
    return at_ < line_.size();
  }

  std::string Program() {
    std::string argument;
    for (bool quoted = false; at_ < line_.size() && (quoted || !IsBlank(line_[at_])); ++at_) {
      if (line_[at_] == '"')
        quoted = !quoted;
      else
        argument += line_[at_];
    }
    return argument;
  }

  std::string Argument() {
    std::string argument;
    for (bool quoted = false; at_ < line_.size() && (quoted || !IsBlank(line_[at_]));) {
      if (line_[at_] == '\\')
        Backslashes(argument);
      else if (line_[at_] == '"')
        Quote(argument, quoted);
      else
        argument += line_[at_++];
    }
    return argument;
  }

 private:
  void Backslashes(std::string& argument) {
    const std::size_t end = std::min(line_.find_first_not_of('\\', at_), line_.size());
    const std::size_t count = end - at_;
    const bool beforeQuote = end < line_.size() && line_[end] == '"';
    at_ = end;
    argument.append(beforeQuote ? count / 2 : count, '\\');
    if (!beforeQuote || count % 2 == 0) return;
    argument += '"';
    ++at_;
  }

  void Quote(std::string& argument, bool& quoted) {
    ++at_;
    if (quoted && at_ < line_.size() && line_[at_] == '"') {
      argument += '"';
      ++at_;
    } else {
      quoted = !quoted;
    }
  }

  std::string_view line_;
  std::size_t at_ = 0;
};

}  // namespace

std::vector<std::string> SplitCommandLine(std::string_view commandLine) {
  std::vector<std::string> arguments;
  Splitter splitter(commandLine);
  while (splitter.SkipBlanks()) arguments.push_back(arguments.empty() ? splitter.Program() : splitter.Argument());
  return arguments;
}

}  // namespace morlan
