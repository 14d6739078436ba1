#include "tags/colouroptions.h"

#include "tests/support/tageditorfixture.h"

namespace morlan {
namespace {

struct OptionCase {
  std::string_view caption, word;
};

// Of the font's dialog; an empty word writes no colour.
constexpr OptionCase kOptions[] = {
    {"Niezdefiniowany", ""}, {"Amarant", "FUCHSIA"}, {"Ciemnozielony", "GREEN"}, {"Czarny", "BLACK"},
    {"Czerwony", "RED"},     {"Granatowy", "NAVY"},  {"Kasztanowy", "MAROON"},   {"Mlecznoniebieski", "AQUA"},
    {"Niebieski", "BLUE"},   {"Oliwkowy", "OLIVE"},  {"Purpurowy", "PURPLE"},    {"Srebrny", "SILVER"},
    {"Szary", "SILWER"},     {"Żółty"_pl, "YELLOW"}, {"Użytkownika"_pl, ""},     {"Biały"_pl, "WHITE"},
};
constexpr std::size_t kUser = 14, kWhite = 15;

class ColourOptionsTest : public TagEditorTest {
 protected:
  static std::string Option(std::size_t index) { return Concat({"kolory(", NumberText(static_cast<std::int64_t>(index)), ")"}); }
  static std::string WithColour(std::string_view name, std::string_view word) {
    return word.empty() ? Concat({"<", name, ">"}) : Concat({"<", name, " COLOR=\"", word, "\">"});
  }
  void ExpectWord(std::string_view name, std::size_t index) {
    const std::string tag = WithColour(name, kOptions[index].word);
    EXPECT_EQ(Rewritten(WithColour(name, ""), {{Option(index), "true"}}), tag) << index;
    ExpectRoundTrip(tag);
    EXPECT_EQ(Shown(tag, Option(index)), "true") << tag;
  }
};

TEST_F(ColourOptionsTest, StandInTheirOrder) {
  Rewritten("<FONT>", [](Form& form) {
    for (std::size_t i = 0; i < std::size(kOptions); ++i) EXPECT_EQ(form.Find(Option(i))->Caption(), kOptions[i].caption) << i;
  });
}

TEST_F(ColourOptionsTest, WriteTheirWordsInBothDialogs) {
  for (std::size_t i = 0; i < kUser; ++i) {
    ExpectWord("FONT", i);
    ExpectWord("BASEFONT", i);
    ExpectWord("HR", i);
  }
  ExpectWord("FONT", kWhite);
}

TEST_F(ColourOptionsTest, TheGreyOneWritesSilwerOnPurpose) {
  EXPECT_EQ(Rewritten("<FONT>", {{"kolory(12)", "true"}}), "<FONT COLOR=\"SILWER\">");
}

TEST_F(ColourOptionsTest, TheWhiteOneOfALineWritesNoColourOnPurpose) {
  EXPECT_EQ(Rewritten("<HR>", {{"kolory(15)", "true"}}), "<HR>");
  EXPECT_EQ(Shown("<HR COLOR=white>", "kolory(14)"), "true") << "a white line reads as a user's colour";
  EXPECT_EQ(Rewritten("<HR COLOR=\"white\">"), "<HR COLOR=\"HITE\">");
  Rewritten("<HR>", [](Form& form) { EXPECT_EQ(form.Find("kolory(15)")->Tag, "White"); });
}

TEST_F(ColourOptionsTest, AUserColourLosesADigitAtEachEditOnPurpose) {
  EXPECT_EQ(Rewritten("<HR COLOR=\"#FF0000\">"), "<HR COLOR=\"F0000\">");
  EXPECT_EQ(Rewritten("<HR COLOR=\"F0000\">"), "<HR COLOR=\"0000\">");
  EXPECT_EQ(Rewritten("<FONT COLOR=\"#12AB34\">"), "<FONT COLOR=\"2AB34\">");
}

TEST_F(ColourOptionsTest, AUserColourIsChosenInTheColourDialog) {
  for (const std::string_view name : {"HR", "FONT"}) {
    test_.windows.colours.push_back(RgbColour(0x12, 0xAB, 0x34));
    EXPECT_EQ(Rewritten(WithColour(name, ""), {{"kolory(14)", "true"}}), WithColour(name, "#12AB34"));
  }
}

TEST_F(ColourOptionsTest, TheSampleAsksForAUserColour) {
  test_.windows.colours.push_back(RgbColour(0x12, 0xAB, 0x34));
  EXPECT_EQ(Rewritten("<HR>", [](Form& form) { form.Find("wzor")->UserClicks(); }), "<HR COLOR=\"#12AB34\">");
}

TEST_F(ColourOptionsTest, AUserColourThatWasNeverChosenIsNone) {
  test_.windows.colours.push_back(std::nullopt);
  EXPECT_EQ(Rewritten("<HR>", {{"kolory(14)", "true"}}), "<HR>");
}

TEST_F(ColourOptionsTest, ACancelledColourDialogKeepsTheUserColour) {
  test_.windows.colours.push_back(RgbColour(0x12, 0xAB, 0x34));
  Rewritten("<HR>", {{"kolory(14)", "true"}});
  test_.windows.colours.push_back(std::nullopt);
  EXPECT_EQ(Inserted("Toolbar1", "line", {{"kolory(4)", "true"}, {"kolory(14)", "true"}}), "<HR COLOR=\"#12AB34\">x");
}

TEST_F(ColourOptionsTest, AValueIsReadInAnyCase) {
  EXPECT_EQ(Shown("<HR COLOR=ReD>", "kolory(4)"), "true");
  EXPECT_EQ(Shown("<FONT COLOR=WhiTe>", "kolory(15)"), "true");
  EXPECT_EQ(Shown("<FONT>", "kolory(0)"), "true");
}

TEST_F(ColourOptionsTest, ASampleShowsTheTrueColourOfAClickedOptionAndNoneForTheUndefinedOne) {
  Rewritten("<FONT>", [](Form& form) {
    auto& sample = *form.FindAs<ColourBox>("wzor");
    EXPECT_FALSE(sample.IsSet());
    form.FindAs<OptionButton>("kolory(6)")->UserSets();
    EXPECT_TRUE(sample.IsSet());
    EXPECT_EQ(sample.Value(), RgbColour(0x80, 0, 0));
    form.FindAs<OptionButton>("kolory(0)")->UserSets();
    EXPECT_FALSE(sample.IsSet());
  });
}

TEST_F(ColourOptionsTest, HaveSamplesOfTheirColours) {
  Rewritten("<FONT>", [](Form& form) {
    EXPECT_EQ(form.FindAs<OptionButton>("kolory(4)")->sample, RgbColour(0xFF, 0, 0));
    EXPECT_EQ(form.FindAs<OptionButton>("kolory(12)")->sample, RgbColour(0x80, 0x80, 0x80)) << "silwer is meant to be grey";
    for (const char* name : {"kolory(0)", "kolory(14)"}) {
      EXPECT_TRUE(form.FindAs<OptionButton>(name)->showsSample);
      EXPECT_FALSE(form.FindAs<OptionButton>(name)->sample);
    }
  });
}

}  // namespace
}  // namespace morlan
