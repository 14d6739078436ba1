#include "tags/fonteditor.h"

#include "tests/support/tageditorfixture.h"

namespace morlan {
namespace {

class FontEditor : public TagEditorTest {};

TEST_F(FontEditor, WritesItsAttributesInOrder) {
  EXPECT_EQ(FontText("FONT", {}), "<FONT>");
  EXPECT_EQ(FontText("BASEFONT", {.znak = "+", .rozmiar = "2", .czcionka = "Sans", .colour = "RED"}),
            "<BASEFONT SIZE=+2 FACE=\"Sans\" COLOR=\"RED\">");
}

TEST_F(FontEditor, ASignWithoutANumberIsNotWritten) { EXPECT_EQ(FontText("FONT", {.znak = "+"}), "<FONT>"); }

TEST_F(FontEditor, ReadsEachField) {
  constexpr std::string_view kTag = "<font color=#12AB34 face=\"sans\" size=-3>";
  EXPECT_EQ(Shown(kTag, "Rozmiar"), "3");
  EXPECT_EQ(Shown(kTag, "Znak"), "-");
  EXPECT_EQ(Shown(kTag, "Czcionka"), "Sans") << "the name as the system has it";
  EXPECT_EQ(Shown(kTag, "kolory(14)"), "true");
  EXPECT_EQ(Shown("<FONT SIZE=+2>", "Znak"), "+");
  EXPECT_EQ(Shown("<FONT SIZE=2>", "Znak"), "");
  EXPECT_EQ(Shown("<FONT SIZE=duza>", "Rozmiar"), "0");
}

TEST_F(FontEditor, AMissingSizeLeavesTheFieldEmpty) { EXPECT_EQ(Shown("<FONT>", "Rozmiar"), ""); }

TEST_F(FontEditor, TheSampleShowsTheColourOfTheTag) {
  Rewritten("<FONT COLOR=\"#12AB34\">", [](Form& form) { EXPECT_EQ(static_cast<Fonty&>(form).wzor.Value(), RgbColour(0x12, 0xAB, 0x34)); });
  Rewritten("<FONT>", [](Form& form) { EXPECT_EQ(static_cast<Fonty&>(form).wzor.Caption(), "AaBbCc"); });
}

TEST_F(FontEditor, ATagIsWrittenBackAsItWas) {
  for (const std::string_view tag : {"<FONT SIZE=+1>", "<FONT SIZE=-2 FACE=\"Courier\">", "<BASEFONT SIZE=3>", "<FONT COLOR=\"WHITE\">",
                                     "<FONT FACE=\"Arial, Helvetica\">", "<FONT>", "<BASEFONT SIZE=3 FACE=\"Sans\" COLOR=\"RED\">"})
    ExpectRoundTrip(tag);
}

TEST_F(FontEditor, ItsTagNamesTheDialog) {
  Rewritten("<BASEFONT>", [](Form& form) { EXPECT_EQ(form.Caption(), "Czcionka podstawowa"); });
  Rewritten("<FONT>", [](Form& form) { EXPECT_EQ(form.Caption(), "Czcionka chwilowa"); });
  Inserted("Toolbar2", "basefont", [](Form& form) { EXPECT_EQ(form.Caption(), "Czcionka podstawowa"); });
  Inserted("Toolbar2", "quickfont", [](Form& form) { EXPECT_EQ(form.Caption(), "Czcionka chwilowa"); });
}

TEST_F(FontEditor, OffersTheFontsOfTheSystem) {
  EXPECT_EQ(test_.program.forms.Get<Fonty>().Czcionka.Rows(), (std::vector<std::string>{"Courier", "Sans"}));
}

TEST_F(FontEditor, OnlyTheQuickFontHasAnEnd) {
  EXPECT_EQ(Inserted("Toolbar2", "basefont", {{"Rozmiar", "3"}}), "<BASEFONT SIZE=3>x");
  EXPECT_EQ(Inserted("Toolbar2", "quickfont", {{"Znak", "+"}, {"Czcionka", "Sans"}, {"kolory(4)", "true"}}),
            "<FONT SIZE=+3 FACE=\"Sans\" COLOR=\"RED\">x</FONT>");
  EXPECT_EQ(Rewritten("<FONT SIZE=1>"), "<FONT SIZE=1>") << "an edited tag keeps the end that it has";
}

TEST_F(FontEditor, CancelLeavesItsOwnWord) {
  ExpectCancelKeeps("<font size=1>");
  ExpectCancelKeeps("<basefont size=1>");
  ExpectCancelInsertsNothing("Toolbar2", "basefont");
  ExpectCancelInsertsNothing("Toolbar2", "quickfont");
  EXPECT_EQ(test_.program.DialogResult, "cancel");
}

}  // namespace
}  // namespace morlan
