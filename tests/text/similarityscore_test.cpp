#include "text/similarityscore.h"

#include <gtest/gtest.h>

#include <string>

namespace morlan {
namespace {

// Distances from "0": "w" is 71, "i" 57, "n" 62, "d" 52, "o" 63, "s" 67, "-" -3. Sums: "1250" is 30, "windows" 28337.
TEST(SimilarityScore, EqualNamesScoreAHundred) { EXPECT_EQ(SimilarityScore("iso-8859-2", "iso-8859-2"), 100); }

TEST(SimilarityScore, TheOrderOfLettersDoesNotCount) { EXPECT_EQ(SimilarityScore("windows-1250", "0521-swodniw"), 100); }

TEST(SimilarityScore, LetterCaseDoesNotCount) { EXPECT_EQ(SimilarityScore("ISO-8859-2", "iso-8859-2"), 100); }

TEST(SimilarityScore, SmallDifferencesScoreNinetyNine) {
  EXPECT_EQ(SimilarityScore("windows1250", "windows-1250"), 99);    // 28367 of 28376
  EXPECT_EQ(SimilarityScore("windows-1250 ", "windows-1250"), 99);  // the blank is 16 below: 28376 of 28632
  EXPECT_EQ(SimilarityScore("windows-1251", "windows-1250"), 99);
}

TEST(SimilarityScore, IsTheWholePercentageOfTheSmallerSum) {
  EXPECT_EQ(SimilarityScore("1", "2"), 25);
  EXPECT_EQ(SimilarityScore("2", "1"), 25);
  EXPECT_EQ(SimilarityScore("2", "3"), 44);                   // 4 of 9
  EXPECT_EQ(SimilarityScore("win1250", "windows-1250"), 42);  // 12164 of 28376
}

TEST(SimilarityScore, CharactersBelowZeroCountByTheirDistance) { EXPECT_EQ(SimilarityScore("-", "3"), 100); }

TEST(SimilarityScore, EmptyNamesScoreNothing) {
  EXPECT_EQ(SimilarityScore("", ""), 0);
  EXPECT_EQ(SimilarityScore("0", "000"), 0) << "a sum of nothing on both sides";
  EXPECT_EQ(SimilarityScore("", "a"), 0);
}

TEST(SimilarityScore, CountsLettersAboveTheAscii) { EXPECT_EQ(SimilarityScore("\xA3", "\xB3"), 100) << "a capital and its small letter"; }

TEST(SimilarityScore, LongNamesDoNotOverflow) {
  EXPECT_EQ(SimilarityScore(std::string(5'000'000, '\xFF'), std::string(10'000'000, '\xFF')), 50);
}

}  // namespace
}  // namespace morlan
