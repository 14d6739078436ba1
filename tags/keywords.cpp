#include "tags/keywords.h"

#include <cstddef>
#include <cstdint>

namespace morlan {
namespace {

constexpr std::size_t kLetters = 26;

// The keywords by their last letter, the longer ones first.
struct KeywordsByLastLetter {
  std::array<std::uint8_t, kLetters + 1> start{};
  std::array<std::uint8_t, kJavaKeywords.size()> keyword{};
};

constexpr KeywordsByLastLetter SortKeywords() {
  KeywordsByLastLetter sorted;
  std::size_t filled = 0;
  for (std::size_t letter = 0; letter < kLetters; ++letter) {
    sorted.start[letter] = static_cast<std::uint8_t>(filled);
    for (std::size_t length = 16; length > 0; --length)
      for (std::size_t i = 0; i < kJavaKeywords.size(); ++i)
        if (kJavaKeywords[i].size() == length && kJavaKeywords[i].back() == static_cast<char>('A' + letter))
          sorted.keyword[filled++] = static_cast<std::uint8_t>(i);
  }
  sorted.start[kLetters] = static_cast<std::uint8_t>(filled);
  return sorted;
}

constexpr KeywordsByLastLetter kSorted = SortKeywords();
static_assert(kSorted.start[kLetters] == kJavaKeywords.size());

// The keywords are letters of the Latin alphabet, and no other character of the encoding has one as its small form.
constexpr char UpperLetter(char character) { return static_cast<char>(character & ~0x20); }

bool EndsWith(std::string_view text, std::string_view keyword) {
  if (text.size() < keyword.size()) return false;
  const char* const tail = text.data() + (text.size() - keyword.size());
  for (std::size_t i = keyword.size(); i-- > 0;)
    if (UpperLetter(tail[i]) != keyword[i]) return false;
  return true;
}

}  // namespace

std::size_t KeywordAtEnd(std::string_view text) {
  if (text.empty()) return 0;
  const auto letter = static_cast<std::size_t>(static_cast<unsigned char>(UpperLetter(text.back())) - 'A');
  if (letter >= kLetters) return 0;
  for (std::size_t i = kSorted.start[letter]; i < kSorted.start[letter + 1]; ++i) {
    const std::string_view keyword = kJavaKeywords[kSorted.keyword[i]];
    if (EndsWith(text, keyword)) return keyword.size();
  }
  return 0;
}

}  // namespace morlan
