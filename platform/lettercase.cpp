#include "platform/lettercase.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>

#include "platform/encoding.h"

namespace morlan {
namespace {

using CaseTable = std::array<char, 256>;

// Capital and small letters of the upper half, in bytes of Windows-1250. Letters without a partner (the sharp s) are absent.
constexpr std::pair<unsigned char, unsigned char> kPairs[] = {
    {0x8A, 0x9A}, {0x8C, 0x9C}, {0x8D, 0x9D}, {0x8E, 0x9E}, {0x8F, 0x9F},
    {0xA3, 0xB3}, {0xA5, 0xB9}, {0xAA, 0xBA}, {0xAF, 0xBF}, {0xBC, 0xBE},
};

constexpr CaseTable MakeTable(bool lower) {
  CaseTable table{};
  for (int i = 0; i < 256; ++i) table[static_cast<std::size_t>(i)] = static_cast<char>(i);
  const auto map = [&](int capital, int small) {
    table[static_cast<std::size_t>(lower ? capital : small)] = static_cast<char>(lower ? small : capital);
  };
  for (int c = 'A'; c <= 'Z'; ++c) map(c, c + 32);
  for (int c = 0xC0; c <= 0xDE; ++c)
    if (c != 0xD7) map(c, c + 32);
  for (const auto& [capital, small] : kPairs) map(capital, small);
  return table;
}

constexpr CaseTable kLower = MakeTable(true);
constexpr CaseTable kUpper = MakeTable(false);

// Most text is plain ASCII: such stretches are converted by arithmetic that the compiler turns into vector code.
template <char First, int Step>
std::string Converted(std::string_view text, const CaseTable& table) {
  constexpr std::size_t kBlock = 64;
  std::string result(text.size(), '\0');
  std::size_t i = 0;
  for (; i + kBlock <= text.size(); i += kBlock) {
    unsigned char high = 0;
    for (std::size_t k = 0; k < kBlock; ++k) high |= static_cast<unsigned char>(text[i + k]);
    if (high < 0x80) {
      for (std::size_t k = 0; k < kBlock; ++k) {
        const auto c = static_cast<unsigned char>(text[i + k]);
        const bool inRange = static_cast<unsigned char>(c - First) < 26;
        result[i + k] = static_cast<char>(c + (inRange ? Step : 0));
      }
    } else {
      for (std::size_t k = 0; k < kBlock; ++k) result[i + k] = table[static_cast<unsigned char>(text[i + k])];
    }
  }
  for (; i < text.size(); ++i) result[i] = table[static_cast<unsigned char>(text[i])];
  return result;
}

}  // namespace

char LowerCharacter(char character) { return kLower[static_cast<unsigned char>(character)]; }
char UpperCharacter(char character) { return kUpper[static_cast<unsigned char>(character)]; }
std::string LowerCase(std::string_view text) { return Converted<'A', 32>(text, kLower); }
std::string UpperCase(std::string_view text) { return Converted<'a', -32>(text, kUpper); }

bool EqualNoCase(std::string_view left, std::string_view right) {
  return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                    [](char a, char b) { return LowerCharacter(a) == LowerCharacter(b); });
}

}  // namespace morlan
