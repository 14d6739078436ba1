#include "text/wordsplitting.h"

#include <gtest/gtest.h>

#include "core/text.h"

namespace morlan {
namespace {

// The words in UTF-8, parted by "|".
std::string Words(std::string_view page) {
  WordReader reader(page);
  std::string all;
  for (Word word; reader.Next(word);) all += ToUtf8(word.Letters()) + "|";
  EXPECT_EQ(reader.Offset(), page.size());
  return all;
}

TEST(WordReader, SplitsAtEverythingThatIsNoLetter) {
  EXPECT_EQ(Words("Zażółć gęślą, jaźń! (kot) \"pies\"... „świt” – 5% x=y;z/w"_pl), "Zażółć|gęślą|jaźń|kot|pies|świt|x|y|z|w|");
  EXPECT_EQ(Words("  \r\n\t"), "");
}

TEST(WordReader, KeepsHyphensAndApostrophesBetweenLetters) {
  EXPECT_EQ(Words("biało-czerwony - pół- -nie Kennedy'ego don’t 'cudzysłów' o' rock'n'roll"_pl),
            "biało-czerwony|pół|nie|Kennedy'ego|don't|cudzysłów|o|rock'n'roll|");
}

TEST(WordReader, WordsMayHoldDigitsButNumbersAreNoWords) { EXPECT_EQ(Words("mp3 2000 10-letni 1999-2000 K2 3,14"), "mp3|10-letni|K2|"); }

TEST(WordReader, ReadsCharacterReferencesAsLetters) {
  EXPECT_EQ(Words("g&oacute;ra g&#243;ra g&#xF3;ra &#380;aba &Zdot;ycie don&rsquo;t ko&shy;tek"), "góra|góra|góra|żaba|Życie|don't|kotek|");
  EXPECT_EQ(Words("a&nbsp;b&amp;c AT&T &copy; d&lt;e&quot; f&#160;g &bull;"), "a|b|c|AT|T|d|e|f|g|");
}

TEST(WordReader, LeavesOutWordsWithLettersThatTheEncodingLacks) { EXPECT_EQ(Words("a na&iuml;ve &#1087;&#1086; b"), "a|b|"); }

TEST(WordReader, LeavesOutAddressesFilesAndIdentifiers) {
  EXPECT_EQ(
      Words("a http://www.x.pl/kuku?a=b b ala@wp.pl c www.onet.com.pl, d index.html. e jan.kowalski@firma.com.pl f c:\\gry\\quake.exe g "
            "nazwa_pliku h ftp.icm.edu.pl/pub i"),
      "a|b|c|d|e|f|g|h|i|");
}

TEST(WordReader, AMissingBlankBehindAFullStopHidesNoWords) { EXPECT_EQ(Words("Koniec.Poczatek i dalej"), "Koniec|Poczatek|i|dalej|"); }

TEST(WordReader, LeavesOutThePiecesOfAWordThatATagParts) {
  EXPECT_EQ(Words("<B>W</B>arszawa i <B>Wisła</B>, kot<BR>pies H<SUB>2</SUB>O"_pl), "i|Wisła|kot|pies|H|O|");
}

TEST(WordReader, ReadsAltAndTitleButNoTagsAndScripts) {
  EXPECT_EQ(Words("<IMG SRC=kot.gif ALT=\"Nasz dom\"><script>var x</script><p title=uwaga>tekst"), "Nasz|dom|uwaga|tekst|");
}

TEST(WordReader, TellsWhereThePageHasAWord) {
  WordReader reader("<P>ko&oacute;t-a x");
  Word word;
  ASSERT_TRUE(reader.Next(word));
  EXPECT_EQ(word.Letters(), "koót-a"_pl);
  EXPECT_EQ(word.Place(), (Stretch{3, 13}));
  EXPECT_EQ(word.PlaceOf(2, 1), (Stretch{5, 8})) << "the letter that is written as a reference";
  EXPECT_EQ(word.PlaceOf(5, 1), (Stretch{15, 1}));
  ASSERT_TRUE(reader.Next(word));
  EXPECT_EQ(word.Place(), (Stretch{17, 1}));
}

TEST(WordReader, WhatIsTooLongForAWordIsData) {
  EXPECT_EQ(Words(std::string(200, 'x')).size(), 201u);
  EXPECT_EQ(Words("a " + std::string(201, 'x') + " b"), "a|b|");
}

TEST(WordReader, ReadsLongRunsOfDotsInOneGo) {
  std::string page;
  for (int i = 0; i < 1'000'000; ++i) page += "a.";
  EXPECT_EQ(Words(page), "");
}

}  // namespace
}  // namespace morlan
