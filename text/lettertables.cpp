#include "text/lettertables.h"

#include <algorithm>
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
  std::transform(text.begin(), text.end(), text.begin(),
                 [&](char byte) { return static_cast<char>(local[static_cast<unsigned char>(byte)]); });
  return text;
}

std::string LettersToSymbols(std::string text, const CharSetCodes& codes) {
  std::array<bool, 256> isLetter{};
  for (const unsigned char code : codes) isLetter[code] = code != 0 && !IsOfSymbols(code);
  const auto next = [&](std::size_t from) {
    while (from < text.size() && !isLetter[ByteAt(text, from)]) ++from;
    return from;
  };
  std::size_t hit = next(0), done = 0;
  if (hit == text.size()) return text;
  std::string result;
  for (; hit < text.size(); hit = next(done)) {
    result.append(text, done, hit - done).append("&#").append(NumberText(std::int64_t{ByteAt(text, hit)}));
    done = hit + 1;
  }
  return result.append(text, done);
}

ReadSymbols SymbolsToCharacters(std::string text) {
  constexpr std::string_view kMark = "&#";
  constexpr std::size_t kMostDigits = 3;
  std::string result;
  std::size_t done = 0;
  for (std::size_t mark = text.find(kMark); mark != std::string::npos; mark = text.find(kMark, mark + kMark.size())) {
    const std::size_t start = mark + kMark.size();
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
  const auto copyUpTo = [&](std::size_t end) {
    while (from < end) {
      const char letter = LetterAt(text, from);
      text[to++] = letter ? letter : text[from];
      from += letter ? 2 : 1;
    }
  };
  while (from + kWord <= text.size()) {
    std::uint64_t word;
    std::memcpy(&word, text.data() + from, kWord);
    if ((word & kHighBits) != 0) {
      copyUpTo(from + kWord);
      continue;
    }
    std::memcpy(text.data() + to, &word, kWord);
    from += kWord;
    to += kWord;
  }
  copyUpTo(text.size());
  text.resize(to);
  return text;
}

}  // namespace morlan
