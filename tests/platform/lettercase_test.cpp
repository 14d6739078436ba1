#include "platform/lettercase.h"

#include <gtest/gtest.h>

#include "platform/encoding.h"

namespace morlan {
namespace {

TEST(LetterCase, KnowsThePolishLetters) {
  EXPECT_EQ(LowerCase("ĄĆĘŁŃÓŚŹŻ"_pl), "ąćęłńóśźż"_pl);
  EXPECT_EQ(UpperCase("ąćęłńóśźż"_pl), "ĄĆĘŁŃÓŚŹŻ"_pl);
}

TEST(LetterCase, KnowsTheOtherLettersOfThePage) {
  EXPECT_EQ(LowerCase("ŠŤŽĽŞŔÄÖÜÝŢ"_pl), "šťžľşŕäöüýţ"_pl);
  EXPECT_EQ(UpperCase("šťžľşŕäöüýţ"_pl), "ŠŤŽĽŞŔÄÖÜÝŢ"_pl);
}

TEST(LetterCase, LeavesWhatHasNoOtherCase) {
  constexpr std::string_view kNone = "ß×÷˙123[]@`{€°"_pl;
  EXPECT_EQ(LowerCase(kNone), kNone);
  EXPECT_EQ(UpperCase(kNone), kNone);
}

TEST(LetterCase, LongTextsAndCharactersAgree) {
  std::string text;
  for (int i = 0; i < 1000; ++i) text += static_cast<char>(i % 3 == 0 ? i % 256 : i % 128);
  const std::string lower = LowerCase(text), upper = UpperCase(text);
  for (std::size_t i = 0; i < text.size(); ++i) {
    ASSERT_EQ(lower[i], LowerCharacter(text[i]));
    ASSERT_EQ(upper[i], UpperCharacter(text[i]));
  }
}

TEST(LetterCase, EqualNoCaseComparesWholeTexts) {
  EXPECT_TRUE(EqualNoCase("Łódź"_pl, "łÓDŹ"_pl));
  EXPECT_FALSE(EqualNoCase("Łódź"_pl, "lodz"));
  EXPECT_FALSE(EqualNoCase("a", "ab"));
  EXPECT_TRUE(EqualNoCase("", ""));
}

}  // namespace
}  // namespace morlan
