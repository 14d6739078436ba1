#include "text/charsetsource.h"

#include <algorithm>

#include "core/text.h"

namespace morlan {
namespace {

constexpr std::string_view kLetters = "litery";
constexpr std::string_view kNoCode = "--";
constexpr char kComment = '#';
constexpr char kSeparator = '|';
constexpr std::string_view kDigits = "0123456789ABCDEF";

std::vector<std::string_view> Parted(std::string_view text, char separator) {
  std::vector<std::string_view> parts;
  for (std::size_t end = text.find(separator); end != std::string_view::npos; end = text.find(separator)) {
    parts.push_back(Trim(text.substr(0, end)));
    text.remove_prefix(end + 1);
  }
  parts.push_back(Trim(text));
  return parts;
}

std::vector<std::string_view> WordsOf(std::string_view text) {
  std::vector<std::string_view> words = Parted(text, ' ');
  std::erase(words, std::string_view());
  return words;
}

std::string LetterRow() {
  std::string row;
  for (const char letter : kNationalLetters) row += Concat({row.empty() ? "" : " ", std::string(1, letter)});
  return row;
}

// A code from its two digits; nothing for what is none.
std::optional<unsigned char> CodeOf(std::string_view word) {
  if (word == kNoCode) return static_cast<unsigned char>(0);
  if (word.size() != 2) return std::nullopt;
  const std::size_t high = kDigits.find(word[0]), low = kDigits.find(word[1]);
  if (high == std::string_view::npos || low == std::string_view::npos) return std::nullopt;
  return static_cast<unsigned char>(high * 16 + low);
}

std::string TextOfCode(unsigned char code) {
  if (code == 0) return std::string(kNoCode);
  return {kDigits[code / 16], kDigits[code % 16]};
}

// Reads the source line by line; each step answers with what is wrong, in UTF-8, or with nothing.
class Reader {
 public:
  void Read(const CharSetSourceText& source) {
    std::size_t number = 0;
    for (std::string_view line : Parted(source.utf8, '\n')) {
      ++number;
      if (line.ends_with('\r')) line.remove_suffix(1);
      if (line.empty() || line.front() == kComment) continue;
      const std::string fault = ReadLine(line);
      if (!fault.empty()) result_.faults.push_back(Concat({source.name, ":", NumberText(static_cast<std::int64_t>(number)), ": ", fault}));
    }
  }
  CompiledCharSets Result() { return std::move(result_); }

 private:
  std::string ReadLine(std::string_view utf8) {
    const std::string line = FromUtf8(utf8);
    if (ToUtf8(line) != utf8) return "a character that Windows-1250 lacks";
    const std::vector<std::string_view> fields = Parted(line, kSeparator);
    if (fields.front() == kLetters) return ReadLetters(fields);
    return lettersRead_ ? ReadSet(fields) : "the row of letters is missing";
  }

  std::string ReadLetters(const std::vector<std::string_view>& fields) {
    const std::vector<std::string_view> letters = fields.size() == 2 ? WordsOf(fields[1]) : std::vector<std::string_view>();
    std::string joined;
    for (const std::string_view letter : letters) joined += letter;
    if (joined != kNationalLetters) return Concat({"the letters are not \"", ToUtf8(LetterRow()), "\""});
    lettersRead_ = true;
    return "";
  }

  std::string ReadSet(const std::vector<std::string_view>& fields) {
    if (fields.size() != 3) return "a set has a name, codes and a description";
    CharSetRecord record;
    record.name = fields[0];
    record.info = fields[2];
    if (record.name.empty() || record.name.size() > kCharSetNameSize) return "the name is empty or too long";
    if (record.info.size() > kCharSetInfoSize) return "the description is too long";
    const std::vector<std::string_view> words = WordsOf(fields[1]);
    if (words.size() < kNationalLetters.size() || words.size() > kCharSetCodeCount) return "the number of codes is wrong";
    for (std::size_t i = 0; i < words.size(); ++i) {
      const auto code = CodeOf(words[i]);
      if (!code) return Concat({"\"", ToUtf8(words[i]), "\" is no code"});
      record.codes[i] = *code;
    }
    if (result_.file.CharSetByName(record.name)) return Concat({"\"", ToUtf8(record.name), "\" stands twice"});
    return result_.file.CharSetSave(record) ? "" : "there are too many sets";
  }

  CompiledCharSets result_;
  bool lettersRead_ = false;
};

bool FitsAField(std::string_view text) { return text.find_first_of("|\r\n") == std::string_view::npos; }

}  // namespace

CompiledCharSets CompileCharSets(const std::vector<CharSetSourceText>& source) {
  Reader reader;
  for (const CharSetSourceText& text : source) reader.Read(text);
  return reader.Result();
}

std::optional<std::string> CharSetSourceOf(const CharSetFile& file) {
  std::string source = Concat({kLetters, " | ", LetterRow(), "\n"});
  for (std::size_t index = 1; index <= file.CharSetCount(); ++index) {
    const CharSetRecord record = *file.CharSetByIndex(index);
    const bool isReadBack = !record.name.empty() && record.name.front() != kComment && record.name != kLetters;
    if (!isReadBack || !FitsAField(record.name) || !FitsAField(record.info)) return std::nullopt;
    source += Concat({record.name, " |"});
    for (const unsigned char code : record.codes) source += Concat({" ", TextOfCode(code)});
    source += Concat({" | ", record.info, "\n"});
  }
  return ToUtf8(source);
}

}  // namespace morlan
