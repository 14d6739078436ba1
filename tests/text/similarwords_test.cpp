#include "text/similarwords.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "platform/encoding.h"
#include "text/wordautomatonbuilder.h"

namespace morlan {
namespace {

struct SimilarWordsTest : testing::Test {
  std::string file;
  // The similar words of a dictionary of these, in UTF-8.
  std::string Similar(std::string_view word, std::vector<std::string_view> words, std::size_t most = 10) {
    std::sort(words.begin(), words.end());
    WordAutomatonBuilder builder;
    for (const std::string_view held : words) builder.Add(held);
    file = builder.Finish().value();
    std::string all;
    for (const std::string& similar : SimilarWords(WordAutomaton(file), word, most)) all += ToUtf8(similar) + "|";
    return all;
  }
};

TEST_F(SimilarWordsTest, UndoesOneSlipOfEachKind) {
  EXPECT_EQ(Similar("strrona", {"strona"}), "strona|") << "a letter too many";
  EXPECT_EQ(Similar("stona", {"strona"}), "strona|") << "one that is missing";
  EXPECT_EQ(Similar("stromp", {"stromy"}), "stromy|") << "a wrong one";
  EXPECT_EQ(Similar("storna", {"strona"}), "strona|") << "two that changed places";
}

TEST_F(SimilarWordsTest, LettersThatSoundAlikeOrDifferByTheirMarkComeFirst) {
  EXPECT_EQ(Similar("gura", {"góra"_pl, "mura", "gra"}), "góra|gra|mura|");
  EXPECT_EQ(Similar("zolw", {"żółw"_pl}), "żółw|");
  EXPECT_EQ(Similar("rzaba", {"żaba"_pl}), "żaba|");
  EXPECT_EQ(Similar("stronnie", {"stronie", "strojnie"}), "stronie|strojnie|");
  EXPECT_EQ(Similar("pana", {"panna", "pan"}), "panna|pan|");
}

TEST_F(SimilarWordsTest, ASmallWordThatRanIntoTheNextIsParted) {
  EXPECT_EQ(Similar("wogóle"_pl, {"ogóle"_pl, "w"}), "w ogóle|ogóle|");
  EXPECT_EQ(Similar("narazie", {"razie", "nakazie"}), "na razie|nakazie|");
}

TEST_F(SimilarWordsTest, NamesComeLastForAWordInSmallLetters) {
  EXPECT_EQ(Similar("gura", {"Hura", "mura"}), "mura|Hura|");
  EXPECT_EQ(Similar("Gura", {"Hura"}), "Hura|");
}

TEST_F(SimilarWordsTest, AWordWithACapitalFindsNamesAndOtherWordsByTheirNearness) {
  EXPECT_EQ(Similar("Wiatam", {"Fiata", "witam", "Witam"}), "Witam|");
  EXPECT_EQ(Similar("Gura", {"Hura", "góra"_pl}), "Góra|Hura|");
  EXPECT_EQ(Similar("GURA", {"góra"_pl}), "GÓRA|");
}

TEST_F(SimilarWordsTest, TwoSlipsAreLookedForWhereOneFindsNothing) {
  EXPECT_EQ(Similar("tsorna", {"strona"}), "strona|");
  EXPECT_EQ(Similar("abcdef", {"strona"}), "");
  EXPECT_EQ(Similar("tosk", {"stok", "kot"}), "") << "in short words that would find nearly everything";
}

TEST_F(SimilarWordsTest, GivesTheNearestUpToTheWantedNumber) {
  EXPECT_EQ(Similar("kot", {"kota", "kod", "ko", "kót"_pl}, 2), "kod|kót|");
  EXPECT_EQ(Similar("kot", {"kota"}, 0), "");
}

TEST_F(SimilarWordsTest, AnEmptyOrAVeryLongWordHasNone) {
  EXPECT_EQ(Similar("", {"a"}), "");
  EXPECT_EQ(Similar(std::string(41, 'a'), {std::string(40, 'a')}), "");
  EXPECT_TRUE(SimilarWords(WordAutomaton(), "kot", 5).empty());
}

}  // namespace
}  // namespace morlan
