#include "text/lettertables.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>

#include "core/text.h"

namespace morlan {
namespace {

constexpr std::size_t kWord = sizeof(std::uint64_t);
constexpr std::uint64_t kHighBits = 0x8080808080808080;

unsigned char ByteAt(std::string_view text, std::size_t offset) { return static_cast<unsigned char>(text[offset]); }

constexpr ByteTable kIdentity = [] {
  ByteTable table{};
  for (std::size_t byte = 0; byte < table.size(); ++byte) table[byte] = static_cast<unsigned char>(byte);
  return table;
}();

// A pair begins with one of three bytes.
constexpr unsigned char kFirstLead = 0xC3;
constexpr std::size_t kLeadCount = 3;

struct Utf8Tables {
  // The bytes that a character becomes, one or two of them.
  std::array<char, 256> first{}, second{};
  std::array<unsigned char, 256> length{};
  // The letter of a pair by its two bytes, 0 for none.
  std::array<std::array<char, 256>, kLeadCount> letter{};
};

constexpr Utf8Tables kUtf8 = [] {
  Utf8Tables tables;
  for (std::size_t byte = 0; byte < 256; ++byte) {
    tables.first[byte] = static_cast<char>(byte);
    tables.length[byte] = 1;
  }
  for (const char letter : kNationalLetters) {
    const auto code = static_cast<unsigned char>(letter);
    const char32_t point = CodePointOf(code);
    const auto lead = static_cast<unsigned char>(0xC0 | point >> 6), next = static_cast<unsigned char>(0x80 | (point & 0x3F));
    tables.first[code] = static_cast<char>(lead);
    tables.second[code] = static_cast<char>(next);
    tables.length[code] = 2;
    tables.letter[lead - kFirstLead][next] = letter;
  }
  return tables;
}();

// The bytes of a word in front of the first one that has its high bit set, of which there is one.
std::size_t PlainBytes(std::uint64_t highBits) {
  const int zeros = std::endian::native == std::endian::little ? std::countr_zero(highBits) : std::countl_zero(highBits);
  return static_cast<std::size_t>(zeros) / 8;
}

// Writes at most two bytes a character and answers with the place behind them.
char* WriteAsUtf8(const char* text, const char* end, char* target) {
  for (; text != end; ++text) {
    const auto code = static_cast<unsigned char>(*text);
    target[0] = kUtf8.first[code];
    target[1] = kUtf8.second[code];
    target += kUtf8.length[code];
  }
  return target;
}

// The letter of the pair at an offset; 0 where there is none.
char LetterAt(std::string_view text, std::size_t offset) {
  const auto lead = static_cast<std::size_t>(ByteAt(text, offset) - kFirstLead);
  return lead < kLeadCount && offset + 1 < text.size() ? kUtf8.letter[lead][ByteAt(text, offset + 1)] : '\0';
}

constexpr std::string_view kSymbolMark = "&#";

bool IsOfSymbols(unsigned char code) { return code == '&' || code == '#' || (code >= '0' && code <= '9'); }

}  // namespace

ByteTable ChainedTable(const CharSetCodes& source, const CharSetCodes& target) {
  ByteTable table = kIdentity;
  for (std::size_t i = 0; i < kCharSetCodeCount; ++i)
    if (source[i] != 0 && target[i] != 0) std::replace(table.begin(), table.end(), source[i], target[i]);
  return table;
}

std::string MixedLetters(const CharSetCodes& set, const CharSetCodes& edited) {
  const ByteTable reading = ChainedTable(set, edited), writing = ChainedTable(edited, set);
  std::string letters;
  for (std::size_t i = 0; i < kNationalLetters.size(); ++i)
    if (set[i] != 0 && edited[i] != 0 && (reading[set[i]] != edited[i] || writing[edited[i]] != set[i])) letters += kNationalLetters[i];
  return letters;
}

std::string Substituted(std::string text, const ByteTable& table) {
  if (table == kIdentity) return text;
  const ByteTable local = table;
  char* from = text.data();
  char* const end = from + text.size();
  // Eight look-ups for one store: it is the stores that take the time.
  for (; end - from >= static_cast<std::ptrdiff_t>(kWord); from += kWord) {
    std::array<unsigned char, kWord> word;
    std::memcpy(word.data(), from, kWord);
    word = {local[word[0]], local[word[1]], local[word[2]], local[word[3]], local[word[4]], local[word[5]], local[word[6]], local[word[7]]};
    std::memcpy(from, word.data(), kWord);
  }
  for (; from != end; ++from) *from = static_cast<char>(local[static_cast<unsigned char>(*from)]);
  return text;
}

std::string LettersToSymbols(std::string text, const CharSetCodes& codes) {
  std::array<std::string, 256> symbols;
  for (const unsigned char code : codes)
    if (code != 0 && !IsOfSymbols(code)) symbols[code] = Concat({kSymbolMark, NumberText(std::int64_t{code})});
  std::string result;
  std::size_t done = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const std::string& symbol = symbols[ByteAt(text, i)];
    if (symbol.empty()) continue;
    result.append(text, done, i - done).append(symbol);
    done = i + 1;
  }
  return done == 0 ? std::move(text) : std::move(result.append(text, done));
}

ReadSymbols SymbolsToCharacters(std::string text) {
  constexpr std::size_t kMostDigits = 3;
  std::string result;
  std::size_t done = 0;
  for (std::size_t mark = text.find(kSymbolMark); mark != std::string::npos; mark = text.find(kSymbolMark, mark + kSymbolMark.size())) {
    const std::size_t start = mark + kSymbolMark.size();
    std::size_t end = start;
    int number = 0;
    while (end < text.size() && end < start + kMostDigits && text[end] >= '0' && text[end] <= '9')
      number = number * 10 + (text[end++] - '0');
    if (number == 0 || number > 255) continue;
    result.append(text, done, mark - done).push_back(static_cast<char>(number));
    done = end;
  }
  if (done == 0) return {std::move(text), false};
  return {std::move(result.append(text, done)), true};
}

std::string LettersToUtf8(std::string_view text) {
  constexpr std::size_t kStretch = 8 * 1024;
  std::array<char, 2 * kStretch> buffer;
  std::string result;
  result.reserve(text.size() + text.size() / kWord);
  while (!text.empty()) {
    const std::string_view stretch = text.substr(0, kStretch);
    const char* const end = stretch.data() + stretch.size();
    char* target = buffer.data();
    const char* from = stretch.data();
    for (std::uint64_t word; from + kWord <= end; from += kWord) {
      std::memcpy(&word, from, kWord);
      if ((word & kHighBits) == 0) {
        std::memcpy(target, &word, kWord);
        target += kWord;
      } else {
        target = WriteAsUtf8(from, from + kWord, target);
      }
    }
    target = WriteAsUtf8(from, end, target);
    result.append(buffer.data(), static_cast<std::size_t>(target - buffer.data()));
    text.remove_prefix(stretch.size());
  }
  return result;
}

std::string LettersFromUtf8(std::string text) {
  std::size_t from = 0, to = 0;
  // The text gets shorter in its own place: what is written never reaches what is still to be read.
  const auto step = [&] {
    const char letter = LetterAt(text, from);
    text[to++] = letter ? letter : text[from];
    from += letter ? 2 : 1;
  };
  while (from + kWord <= text.size()) {
    std::uint64_t word;
    std::memcpy(&word, text.data() + from, kWord);
    const std::uint64_t marks = word & kHighBits;
    if (marks != 0 && from - to < kWord) {
      step();
      continue;
    }
    std::memcpy(text.data() + to, &word, kWord);
    const std::size_t plain = marks == 0 ? kWord : PlainBytes(marks);
    from += plain;
    to += plain;
    if (marks != 0) step();
  }
  while (from < text.size()) step();
  text.resize(to);
  return text;
}

}  // namespace morlan
