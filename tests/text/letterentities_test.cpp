#include "text/letterentities.h"

#include <gtest/gtest.h>

#include <string>

namespace morlan {
namespace {

TEST(ReadCharacterReference, ReadsNamesDecimalAndHexadecimalNumbers) {
  struct Row {
    const char* text;
    char32_t codePoint;
    std::size_t length;
  };
  constexpr Row kRows[] = {
      {"&oacute;", 0xF3, 8},
      {"&Oacute;x", 0xD3, 8},
      {"&oacute", 0xF3, 7},
      {"&lstrok;", 0x142, 8},
      {"&#243;", 243, 6},
      {"&#243 ", 243, 5},
      {"&#xF3;", 0xF3, 6},
      {"&#Xf3;", 0xF3, 6},
      {"&#322;a", 0x142, 6},
      {"&rsquo;", 0x2019, 7},
      {"&shy;", 0xAD, 5},
      {"&apos;", '\'', 6},
      {"&#99999999;", 0x110000, 11},
      {"&alpha;", 0, 0},
      {"&nbsp;", 0, 0},
      {"&amp;", 0, 0},
      {"&oacut;", 0, 0},
      {"&OACUTE;", 0, 0},
      {"&#;", 0, 0},
      {"&#x;", 0, 0},
      {"& oacute;", 0, 0},
      {"&", 0, 0},
      {"", 0, 0},
      {"oacute;", 0, 0},
  };
  for (const Row& row : kRows) {
    const auto reference = ReadCharacterReference(row.text);
    EXPECT_EQ(reference ? reference->codePoint : 0, row.codePoint) << row.text;
    EXPECT_EQ(reference ? reference->length : 0, row.length) << row.text;
  }
}

TEST(IsLetter, KnowsLettersOfAllScriptsThatHaveThem) {
  for (const char32_t letter : {U'a', U'Z', U'ł', U'Ż', U'é', U'ß', U'å', U'ж', U'α', U'א', U'中', U'ệ'})
    EXPECT_TRUE(IsLetter(letter)) << std::uint32_t{letter};
  for (const char32_t sign : {U'1', U' ', U'-', U'×', U'÷', U'µ', U'\u00A0', U'„', U'€', U'ˇ', U'—', U'☺'})
    EXPECT_FALSE(IsLetter(sign)) << std::uint32_t{sign};
}

}  // namespace
}  // namespace morlan
