#include "text/mlndictionary.h"

#include <gtest/gtest.h>

#include "core/text.h"
#include "tests/support/dictionaryfiles.h"
#include "tests/support/memoryfiles.h"

namespace morlan {
namespace {

constexpr std::string_view kBitsFile = "c:\\morlan7s.tst", kAutomatonFile = "c:\\morlan7i.tst", kUserFile = "c:\\morlan7u.tst";

struct MlnDictionaryTest : testing::Test {
  MemoryFiles files;
  MlnDictionary control{files};
  std::string log;  // what the events told

  MlnDictionaryTest() {
    const std::vector<std::string_view> words = {"ala", "ma", "kota", "Polska", "biały"_pl, "biało"_pl, "kennedy", "adad", "e-mail"};
    files.Write(kBitsFile, BitsOf(words));
    files.Write(kAutomatonFile, AutomatonOf(words));
    control.File = {std::string(kBitsFile), std::string(kAutomatonFile), std::string(kUserFile)};
    control.MlnDictionary_MissSpeld = [this](const std::string& word, std::string&, std::size_t start, std::size_t length) {
      log += Concat(
          {ToUtf8(word), " ", NumberText(static_cast<std::int64_t>(start)), " ", NumberText(static_cast<std::int64_t>(length)), "|"});
    };
  }
  // The unknown words of a text with their starts and lengths.
  std::string Check(std::string_view text) {
    log.clear();
    control.Text = text;
    control.Start();
    return log;
  }
};

TEST_F(MlnDictionaryTest, RaisesAnEventForEachUnknownWordCountedFromOne) {
  EXPECT_EQ(Check("ala ma psa i kota"), "psa 8 3|i 12 1|");
  EXPECT_EQ(Check("psa"), "psa 1 3|");
  EXPECT_EQ(Check("ala ma kota"), "");
  EXPECT_EQ(Check(""), "");
}

TEST_F(MlnDictionaryTest, SelectsTheWordBeforeItTellsIt) {
  control.MlnDictionary_MissSpeldSelection = [this](std::size_t start, std::size_t length) {
    log += Concat({"select ", NumberText(static_cast<std::int64_t>(start)), " ", NumberText(static_cast<std::int64_t>(length)), "|"});
  };
  EXPECT_EQ(Check("ala psa"), "select 5 3|psa 5 3|");
}

TEST_F(MlnDictionaryTest, AKnownWordIsKnownWithACapitalAndInCapitals) {
  EXPECT_EQ(Check("Ala ALA Polska POLSKA Biały BIAŁY"_pl), "");
  EXPECT_EQ(Check("aLA AlA polska PolskA"), "aLA 1 3|AlA 5 3|polska 9 6|PolskA 16 6|");
}

TEST_F(MlnDictionaryTest, TellsALengthInThePageNotInLetters) { EXPECT_EQ(Check("<P>k&oacute;t</P>"), "kót 4 10|"); }

TEST_F(MlnDictionaryTest, LooksUpThePartsOfAWordWithHyphens) {
  EXPECT_EQ(Check("biało-biały ala-ma e-mail Ala-Polska"_pl), "");
  EXPECT_EQ(Check("biało-pies-kot ma"_pl), "pies 7 4|") << "the first part that is unknown";
  EXPECT_EQ(Check("10-kota"), "");
}

TEST_F(MlnDictionaryTest, TakesEndingsBehindAnApostropheByTheLanguage) {
  EXPECT_EQ(Check("Kennedy'ego ala's ala'x"), "ala'x 19 5|");
  control.Language = 1;
  EXPECT_EQ(Check("Kennedy'ego ala's"), "ala's 13 5|");
  control.Language = 2;
  EXPECT_EQ(Check("Kennedy'ego ala's"), "Kennedy'ego 1 11|");
}

TEST_F(MlnDictionaryTest, LeavesOutWordsWithDigitsIfToldTo) {
  EXPECT_EQ(Check("x1 12 ala2"), "x1 1 2|ala2 7 4|");
  control.IgnoreNumbers = true;
  EXPECT_EQ(Check("x1 12 ala2 x"), "x 12 1|");
}

TEST_F(MlnDictionaryTest, LeavesOutWordsInCapitalsIfToldTo) {
  EXPECT_EQ(Check("PKP Pkp X"), "PKP 1 3|Pkp 5 3|X 9 1|");
  control.IgnoreUpperCase = true;
  EXPECT_EQ(Check("PKP Pkp X ŁÓDŹ PKS-em"_pl), "Pkp 5 3|em 20 2|");
}

TEST_F(MlnDictionaryTest, UserWordsAreKnownInAnyLetterCase) {
  files.Write(kUserFile, Concat({"psa\r\n\r\n", "źrebak"_pl, CrLf}));
  EXPECT_EQ(Check("psa Psa PSA źrebak Źrebak psy"_pl), "psy 27 3|");
}

TEST_F(MlnDictionaryTest, AWordAddedCountsAtOnce) {
  control.MlnDictionary_MissSpeld = [this](const std::string& word, std::string&, std::size_t, std::size_t) {
    log += word + "|";
    if (word == "psa") files.Append(kUserFile, "psa\r\n");
  };
  EXPECT_EQ(Check("psa kot psa Psa kot"), "psa|kot|kot|");
}

TEST_F(MlnDictionaryTest, TheExactDictionaryDecidesWhereTheBitsAreWrong) {
  EXPECT_EQ(Check("adad ahaa"), "ahaa 6 4|") << "both have one number";
}

TEST_F(MlnDictionaryTest, TheBitsAloneDecideWhereTheExactDictionaryIsMissingOrGarbled) {
  files.Write(kAutomatonFile, "MlnWord1 and so on");
  EXPECT_EQ(Check("adad ahaa ala Ala psa"), "psa 19 3|");
  files.Delete(kAutomatonFile);
  EXPECT_EQ(Check("adad ahaa ala Ala psa"), "psa 19 3|");
}

TEST_F(MlnDictionaryTest, TheExactDictionaryIsEnough) {
  files.Delete(kBitsFile);
  EXPECT_EQ(Check("ala psa"), "psa 5 3|");
}

TEST_F(MlnDictionaryTest, BitsThatAreCutShortKnowWhatIsLeft) {
  files.Delete(kAutomatonFile);
  files.Write(kBitsFile, BitsOf({"ma", "kota"}).substr(0, WordNumber("ma") / 8 + 1));
  EXPECT_EQ(Check("ma kota"), "kota 4 4|");
}

TEST_F(MlnDictionaryTest, WithoutADictionaryNothingIsCheckedAndThatIsTold) {
  files.Delete(kBitsFile);
  files.Delete(kAutomatonFile);
  files.Write(kUserFile, "psa\r\n");
  control.MlnDictionary_NoDictionary = [this] { log += "none|"; };
  control.MlnDictionary_CheckingFinished = [this] { log += "finished|"; };
  EXPECT_EQ(Check("ala"), "none|");
}

TEST_F(MlnDictionaryTest, TellsTheEndAndThatItWasStopped) {
  control.MlnDictionary_CheckingFinished = [this] { log += "finished|"; };
  control.MlnDictionary_CheckingStoped = [this] { log += "stopped|"; };
  EXPECT_EQ(Check("psa kot"), "psa 1 3|kot 5 3|finished|");
  control.MlnDictionary_MissSpeldSelection = [this](std::size_t, std::size_t) { control.Stop(); };
  EXPECT_EQ(Check("psa kot"), "psa 1 3|stopped|");
}

TEST_F(MlnDictionaryTest, TellsHowFarItIsWithTheWordsSoFar) {
  control.MlnDictionary_NextPartDone = [this](int percent, std::size_t words) {
    log += Concat({NumberText(std::int64_t{percent}), "% ", NumberText(static_cast<std::int64_t>(words)), "|"});
  };
  EXPECT_EQ(Check("ala ma kota"), "100% 3|");
  EXPECT_EQ(Check(""), "100% 0|");
  std::string text;
  while (text.size() < 32'768) text += "ala ";
  EXPECT_EQ(Check(text), "50% 4097|100% 8192|");
}

TEST_F(MlnDictionaryTest, AStartWithinACheckIsVoid) {
  control.MlnDictionary_NextPartDone = [this](int, std::size_t) {
    log += "part|";
    control.Start();
  };
  EXPECT_EQ(Check("ala"), "part|");
}

TEST_F(MlnDictionaryTest, SimilarWordsHaveTheLetterCaseOfTheWord) {
  ASSERT_TRUE(control.OpenDictionaries());
  EXPECT_EQ(control.Similar("kotta"), std::vector<std::string>{"kota"});
  EXPECT_EQ(control.Similar("Kotta"), std::vector<std::string>{"Kota"});
  EXPECT_EQ(control.Similar("KOTTA"), std::vector<std::string>{"KOTA"});
  EXPECT_EQ(control.Similar("Polzka"), std::vector<std::string>{"Polska"});
}

}  // namespace
}  // namespace morlan
