#include "text/wordautomaton.h"

#include <gtest/gtest.h>

#include <cstring>
#include <set>
#include <string>
#include <vector>

#include "text/wordautomatonbuilder.h"

namespace morlan {
namespace {

std::string FileOf(const std::vector<std::string>& words) {
  WordAutomatonBuilder builder;
  for (const std::string& word : words) EXPECT_TRUE(builder.Add(word)) << word;
  return builder.Finish().value();
}

void CollectWords(const WordAutomaton& automaton, WordAutomaton::Place place, const std::string& walked, std::set<std::string>& words) {
  automaton.VisitArcs(place, [&](WordAutomaton::Arc arc) {
    const std::string longer = walked + arc.Letter();
    if (arc.WordEnds()) words.insert(longer);
    CollectWords(automaton, arc.Next(), longer, words);
  });
}

TEST(WordAutomaton, HoldsItsWordsAndNoOthers) {
  const std::string file = FileOf({"Ala", "ala", "alarm", "kot", "kota", "psa"});
  const WordAutomaton automaton(file);
  ASSERT_TRUE(automaton.IsValid());
  for (const char* word : {"Ala", "ala", "alarm", "kot", "kota", "psa"}) EXPECT_TRUE(automaton.Holds(word)) << word;
  for (const char* word : {"", "a", "al", "ALA", "alar", "alarma", "ko", "pso", "Alarm", "x"}) EXPECT_FALSE(automaton.Holds(word)) << word;
}

TEST(WordAutomaton, TakesLettersOfAnyCode) {
  const std::string file = FileOf({std::string("a\0b", 3), "\x7F", "\x80\xFF"});
  const WordAutomaton automaton(file);
  EXPECT_TRUE(automaton.Holds(std::string_view("a\0b", 3)));
  EXPECT_TRUE(automaton.Holds("\x80\xFF"));
  EXPECT_FALSE(automaton.Holds("\x80"));
}

TEST(WordAutomaton, OfNoWordsIsValidAndEmpty) {
  const std::string file = FileOf({});
  EXPECT_TRUE(WordAutomaton(file).IsValid());
  EXPECT_FALSE(WordAutomaton(file).Holds("a"));
  EXPECT_FALSE(WordAutomaton(file).Holds(std::string_view("\0", 1)));
}

TEST(WordAutomaton, GivesBackExactlyTheWordsThatWereAdded) {
  std::set<std::string> words;
  std::uint32_t dice = 1;
  for (int i = 0; i < 3000; ++i) {
    std::string word;
    for (std::uint32_t left = (dice = dice * 1103515245 + 12345) >> 16 & 7; left != 8; left = left == 0 ? 8 : left - 1)
      word += static_cast<char>('a' + ((dice = dice * 1103515245 + 12345) >> 16) % 5);
    words.insert(word);
  }
  const std::string file = FileOf({words.begin(), words.end()});
  std::set<std::string> found;
  const WordAutomaton automaton(file);
  CollectWords(automaton, automaton.Start(), "", found);
  EXPECT_EQ(found, words);
}

TEST(WordAutomaton, KeepsCommonEndsOnce) {
  // Three letters in front, one common end: 3 arcs and the 4 of "kota", beside the arc that is not used.
  EXPECT_EQ(FileOf({"akota", "bkota", "ckota"}).size(), WordAutomaton::kHeaderSize + 8 * WordAutomaton::kArcSize);
}

TEST(WordAutomaton, PutsTheArcFirstThatLeadsToMostWords) {
  const std::string file = FileOf({"a", "ba", "bb"});
  const WordAutomaton automaton(file);
  std::string letters;
  automaton.VisitArcs(automaton.Start(), [&](WordAutomaton::Arc arc) { letters += arc.Letter(); });
  EXPECT_EQ(letters, "ba");
}

TEST(WordAutomaton, CutShortAnywhereIsNotValid) {
  const std::string file = FileOf({"ala", "kot"});
  for (std::size_t length = 0; length < file.size(); ++length) {
    const WordAutomaton automaton(std::string_view(file).substr(0, length));
    EXPECT_FALSE(automaton.IsValid()) << length;
    EXPECT_FALSE(automaton.Holds("ala")) << length;
  }
}

TEST(WordAutomaton, GarbledAnywhereIsNotValid) {
  const std::string file = FileOf({"ala", "kot"});
  for (std::size_t i = 0; i < file.size(); ++i) {
    std::string garbled = file;
    garbled[i] = static_cast<char>(garbled[i] ^ 0x10);
    // The first arc is the one number of the header that the checksum does not cover.
    EXPECT_TRUE((i >= 12 && i < 16) || !WordAutomaton(garbled).IsValid()) << i;
  }
  EXPECT_FALSE(WordAutomaton(file + "    ").IsValid());
}

TEST(WordAutomaton, WithArcsThatLeadNowhereFindsNothing) {
  std::string file = FileOf({"ala", "kot"});
  for (std::size_t i = WordAutomaton::kHeaderSize; i < file.size(); ++i) file[i] = '\xFF';
  const std::uint64_t sum = WordAutomaton::ChecksumOf(std::string_view(file).substr(WordAutomaton::kHeaderSize));
  std::memcpy(file.data() + 16, &sum, sizeof sum);
  const WordAutomaton automaton(file);
  EXPECT_TRUE(automaton.IsValid());
  EXPECT_FALSE(automaton.Holds("ala"));
  EXPECT_FALSE(automaton.Holds("\xFF\xFF"));
}

TEST(WordAutomatonBuilder, RefusesAWordOutOfOrder) {
  WordAutomatonBuilder builder;
  EXPECT_TRUE(builder.Add("kot"));
  EXPECT_TRUE(builder.Add("kot"));
  EXPECT_FALSE(builder.Add("ala"));
  EXPECT_FALSE(builder.Add("ko"));
  const std::string file = builder.Finish().value();
  EXPECT_TRUE(WordAutomaton(file).Holds("kot"));
  EXPECT_FALSE(WordAutomaton(file).Holds("ala"));
}

}  // namespace
}  // namespace morlan
