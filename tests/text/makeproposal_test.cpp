#include "text/makeproposal.h"

#include <gtest/gtest.h>

#include <set>

#include "platform/encoding.h"

namespace morlan {
namespace {

using Words = std::vector<std::string>;

Words Texts(std::initializer_list<std::string_view> texts) { return {texts.begin(), texts.end()}; }

Proposals Propose(std::string_view word, std::initializer_list<std::string_view> held) {
  const std::set<std::string_view> words(held);
  return MakeProposal(word, [&](std::string_view candidate) { return words.contains(candidate); });
}

// All candidates of a word, in their order.
Words Candidates(std::string_view word) {
  return MakeProposal(word, [&](std::string_view candidate) { return candidate != word; }).words;
}

TEST(MakeProposal, AWordThatIsHeldHasNone) {
  const Proposals proposals = Propose("Kot", {"kot"});
  EXPECT_TRUE(proposals.wordIsHeld) << "it is looked up in lower case";
  EXPECT_TRUE(proposals.words.empty());
}

TEST(MakeProposal, ReplacesOneLetterByEachRowOfTheTable) {
  struct Row {
    std::string_view word, candidate;
  };
  constexpr Row kRows[] = {{"ża"_pl, "rza"}, {"ha", "cha"},    {"ća"_pl, "cia"}, {"ua", "óa"_pl}, {"óa"_pl, "ua"},
                           {"la", "ła"_pl},  {"śa"_pl, "sia"}, {"źa"_pl, "zia"}, {"ńa"_pl, "nia"}};
  for (const Row& row : kRows) EXPECT_EQ(Candidates(row.word), Texts({row.candidate})) << ToUtf8(row.word);
}

TEST(MakeProposal, ReplacesTwoLettersByEachRowOfTheTable) {
  EXPECT_EQ(Candidates("arz"), Texts({"aż"_pl}));
  EXPECT_EQ(Candidates("ach"), Texts({"acch", "ah"})) << "the h of a ch counts in the first pass too";
  EXPECT_EQ(Candidates("aci"), Texts({"ać"_pl}));
  EXPECT_EQ(Candidates("asi"), Texts({"aś"_pl}));
  EXPECT_EQ(Candidates("azi"), Texts({"aź"_pl}));
  EXPECT_EQ(Candidates("ani"), Texts({"ań"_pl}));
}

TEST(MakeProposal, NeverTurnsLWithAStrokeIntoL) { EXPECT_TRUE(Candidates("ła"_pl).empty()); }

TEST(MakeProposal, TakesOneSlipACandidateFirstPassFirst) { EXPECT_EQ(Candidates("rzuh"), Texts({"rzóh"_pl, "rzuch", "żuh"_pl})); }

TEST(MakeProposal, KeepsOnlyWhatTheDictionaryHolds) {
  EXPECT_EQ(Propose("gura", {"góra"_pl, "gora"}).words, Texts({"góra"_pl}));
  EXPECT_TRUE(Propose("qqq", {"góra"_pl}).words.empty());
  EXPECT_FALSE(Propose("qqq", {"góra"_pl}).wordIsHeld);
}

TEST(MakeProposal, AOneLetterWordHasOneCandidateAtMost) {
  EXPECT_EQ(Candidates("h"), Texts({"ch"}));
  EXPECT_TRUE(Candidates("a").empty());
  EXPECT_TRUE(Propose("", {"a"}).words.empty());
}

TEST(MakeProposal, LowersTheWord) { EXPECT_EQ(Propose("GURA", {"góra"_pl}).words, Texts({"góra"_pl})); }

TEST(MakeProposal, AWordThatSharesItsNumberWithAnotherIsProposed) {
  EXPECT_EQ(MakeProposal("zzzu", [](std::string_view word) { return word != "zzzu"; }).words, Texts({"zzzó"_pl}))
      << "the lookup decides, right or wrong";
}

}  // namespace
}  // namespace morlan
