#include "text/lettertables.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

#include "core/text.h"

namespace morlan {
namespace {

// Codes by the letters' order: ę Ę ó Ó ą Ą ś Ś ł Ł ż Ż ź Ź ć Ć ń Ń and two spare places.
CharSetCodes Codes(std::string_view bytes) {
  CharSetCodes codes{};
  for (std::size_t i = 0; i < bytes.size(); ++i) codes[i] = static_cast<unsigned char>(bytes[i]);
  return codes;
}

const CharSetCodes kWindows = Codes("\xEA\xCA\xF3\xD3\xB9\xA5\x9C\x8C\xB3\xA3\xBF\xAF\x9F\x8F\xE6\xC6\xF1\xD1");
const CharSetCodes kIso = Codes("\xEA\xCA\xF3\xD3\xB1\xA1\xB6\xA6\xB3\xA3\xBF\xAF\xBC\xAC\xE6\xC6\xF1\xD1");
const CharSetCodes kMazovia = Codes("\x91\x90\xA2\xA3\x86\x8F\x9E\x98\x92\x9C\xA7\xA1\xA6\xA0\x8D\x95\xA4\xA5");

// The exchange as it is told: each letter in turn overwrites all its occurrences in the whole text.
std::string StepByStep(std::string text, const CharSetCodes& source, const CharSetCodes& target) {
  for (std::size_t i = 0; i < kCharSetCodeCount; ++i)
    for (char& character : text)
      if (source[i] != 0 && target[i] != 0 && character == static_cast<char>(source[i])) character = static_cast<char>(target[i]);
  return text;
}

std::string AllBytes() {
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
  return bytes;
}

TEST(LetterTables, ExchangesTheLettersAlone) {
  EXPECT_EQ(Substituted("za\xBF\xF3\xB3\xE6 g\xEA\xB6l\xB1 \xFF", ChainedTable(kIso, kWindows)), "za\xBF\xF3\xB3\xE6 g\xEA\x9Cl\xB9 \xFF");
  EXPECT_EQ(Substituted("\x9C\x8C\xB9\xA5\x9F\x8F", ChainedTable(kWindows, kIso)), "\xB6\xA6\xB1\xA1\xBC\xAC");
}

TEST(LetterTables, ALaterLetterTakesWhatAnEarlierOneHasProduced) {
  // The third letter becomes what is the fourth letter's code, and that one is exchanged behind it.
  CharSetCodes source{}, target{};
  source[2] = 'a', target[2] = 'b';
  source[3] = 'b', target[3] = 'c';
  EXPECT_EQ(Substituted("abc", ChainedTable(source, target)), "ccc");
  // The other way round nothing is chained.
  EXPECT_EQ(Substituted("abc", ChainedTable(target, source)), "aab");
}

TEST(LetterTables, TheSparePlacesAreExchangedToo) {
  CharSetCodes source{}, target{};
  source[19] = 'x', target[19] = 'y';
  EXPECT_EQ(Substituted("xyz", ChainedTable(source, target)), "yyz");
}

TEST(LetterTables, ALetterWithoutACodeOnEitherSideStays) {
  CharSetCodes source{}, target{};
  source[0] = 'a', target[1] = 'b';
  EXPECT_EQ(Substituted(std::string("a\0b", 3), ChainedTable(source, target)), std::string("a\0b", 3));
}

TEST(LetterTables, OnePassGivesWhatTheExchangeLetterByLetterGives) {
  std::mt19937 random(7);
  for (int round = 0; round < 500; ++round) {
    CharSetCodes source, target;
    // Few different codes, so that they chain.
    for (std::size_t i = 0; i < kCharSetCodeCount; ++i) source[i] = random() % 12, target[i] = random() % 12;
    EXPECT_EQ(Substituted(AllBytes(), ChainedTable(source, target)), StepByStep(AllBytes(), source, target)) << round;
  }
}

TEST(LetterTables, MixesUpLettersOfDosSetsOnPurpose) {
  // ś becomes 9C, which is the Ł of Mazovia, and is taken for it.
  EXPECT_EQ(Substituted("\x9E", ChainedTable(kMazovia, kWindows)), "\xA3");
  EXPECT_EQ(ToUtf8(MixedLetters(kMazovia, kWindows)), "ÓĄś");
  EXPECT_EQ(MixedLetters(kIso, kWindows), "");
  EXPECT_EQ(MixedLetters(CharSetCodes{}, kWindows), "") << "letters that are not there are not mixed up";
}

TEST(LetterTables, SymbolsAreDecimalCodesWithoutASemicolon) {
  EXPECT_EQ(LettersToSymbols("a\xEA;\xB9", kWindows), "a&#234;&#185");
  EXPECT_EQ(LettersToSymbols("\xB1\xB9", kIso), "&#177\xB9");
  EXPECT_EQ(LettersToSymbols("bez", kWindows), "bez");
  EXPECT_EQ(LettersToSymbols("\xEA", CharSetCodes{}), "\xEA");
}

TEST(LetterTables, CharactersOfSymbolsAreNoLetters) { EXPECT_EQ(LettersToSymbols("&#7A", Codes("&#7A")), "&#7&#65"); }

TEST(LetterTables, ReadsSymbols) {
  struct Row {
    std::string_view text, read;
    bool replaced;
  };
  const Row rows[] = {
      {"a&#234b",
       "a\xEA"
       "b",
       true},
      {"&#234;", "\xEA;", true},    // the ";" stays
      {"&#261;", "&#261;", false},  // above 255
      {"&#2345",
       "\xEA"
       "5",
       true},                      // three characters are read
      {"&#65;&#66", "A;B", true},  // fewer digits
      {"&#9x", "\tx", true},
      {"&#065", "A", true},  // the zero in front goes with its number
      {"&#0;", "&#0;", false},
      {"&#;&#x41;", "&#;&#x41;", false},  // no number
      {"&#", "&#", false},
      {"&#1", "\x01", true},
      {"&&#38#65", "&&#65", true},  // what a symbol gave is not read again
      {"&#256&#255", "&#256\xFF", true},
      {"", "", false},
  };
  for (const Row& row : rows) {
    const ReadSymbols read = SymbolsToCharacters(std::string(row.text));
    EXPECT_EQ(read.text, row.read) << row.text;
    EXPECT_EQ(read.replaced, row.replaced) << row.text;
  }
}

TEST(LetterTables, AllLettersHaveTheirPairsInUtf8) {
  const std::string pairs = "ęĘóÓąĄśŚłŁżŻźŹćĆńŃ";
  EXPECT_EQ(LettersToUtf8(kNationalLetters), pairs);
  EXPECT_EQ(LettersFromUtf8(pairs), kNationalLetters);
  EXPECT_EQ(LettersToUtf8("\xEA"), "\xC4\x99");
}

TEST(LetterTables, OtherCharactersOfUtf8StayAsTheyAre) {
  EXPECT_EQ(LettersFromUtf8("é„ą”€\xC4"), "é„\xB9”€\xC4");
  EXPECT_EQ(LettersToUtf8("\xE9\x80\xFF"), "\xE9\x80\xFF");
}

TEST(LetterTables, EachLetterBecomesItsOwnPairOnce) {
  // The second byte of ó is the code of ł: it is not taken for a letter again.
  EXPECT_EQ(LettersToUtf8("\xF3\xB3"), "\xC3\xB3\xC5\x82");
  EXPECT_EQ(LettersFromUtf8("\xC3\xB3\xC5\x82"), "\xF3\xB3");
}

TEST(LetterTables, Utf8ComesBackAtEveryPlaceOfAWord) {
  for (std::size_t length = 0; length < 40; ++length) {
    for (std::size_t place = 0; place <= length; ++place) {
      std::string text(length, 'a');
      text.insert(place, "\xB9\x9C");
      const std::string utf8 = LettersToUtf8(text);
      ASSERT_EQ(utf8.size(), length + 4);
      ASSERT_EQ(utf8.substr(place, 4), "ąś");
      ASSERT_EQ(LettersFromUtf8(utf8), text);
    }
  }
}

TEST(LetterTables, AnyBytesGoThroughUtf8WithoutHarm) {
  std::mt19937 random(3);
  for (int round = 0; round < 200; ++round) {
    std::string bytes(random() % 20'000, '\0');
    for (char& byte : bytes) byte = "aą\xB9\xC4\xC5\xC3\xB3"[random() % 8];
    std::string expected;
    for (const char byte : bytes)
      expected += kNationalLetters.find(byte) != std::string_view::npos ? ToUtf8({&byte, 1}) : std::string(1, byte);
    ASSERT_EQ(LettersToUtf8(bytes), expected);
    ASSERT_LE(LettersFromUtf8(bytes).size(), bytes.size());
  }
}

}  // namespace
}  // namespace morlan
