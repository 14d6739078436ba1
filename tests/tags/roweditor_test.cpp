#include "tags/roweditor.h"

#include "tests/support/tageditorfixture.h"

namespace morlan {
namespace {

class RowEditor : public TagEditorTest {};

struct ChoiceCase {
  std::string_view field, label, attribute;
};

TEST_F(RowEditor, WritesItsAttributesInOrder) {
  EXPECT_EQ(RowText({}), "<TR>");
  EXPECT_EQ(RowText({.align = "Do prawej", .valign = "U podstawy linii", .backColour = RgbColour(0x12, 0xAB, 0x34)}),
            "<TR ALIGN=\"RIGHT\" VALIGN=\"BASELINE\" BGCOLOR=\"#12AB34\">");
}

TEST_F(RowEditor, EachRowOfTheListsHasItsWord) {
  constexpr ChoiceCase kCases[] = {
      {"Align", "Do lewej", " ALIGN=\"LEFT\""},
      {"Align", "Do prawej", " ALIGN=\"RIGHT\""},
      {"Align", "Wycentrowane", " ALIGN=\"CENTER\""},
      {"Align", "", ""},
      {"Valign", "U góry"_pl, " VALIGN=\"TOP\""},
      {"Valign", "Na środku"_pl, " VALIGN=\"CENTER\""},
      {"Valign", "Na dole", " VALIGN=\"BOTTOM\""},
      {"Valign", "U podstawy linii", " VALIGN=\"BASELINE\""},
      {"Valign", "", ""},
  };
  for (const ChoiceCase& row : kCases)
    EXPECT_EQ(Rewritten("<TR>", {{row.field, row.label}}), Concat({"<TR", row.attribute, ">"})) << ToUtf8(row.label);
}

TEST_F(RowEditor, ReadsEachField) {
  constexpr std::string_view kTag = "<tr bgcolor=#12AB34 valign=middle align=center>";
  EXPECT_EQ(Shown(kTag, "Align"), "Wycentrowane");
  EXPECT_EQ(Shown(kTag, "Valign"), "Na środku"_pl);
  EXPECT_EQ(Shown(kTag, "isbackcolor"), "true");
  EXPECT_EQ(test_.program.forms.Get<DTR>().fillwithcolor.Value(), RgbColour(0x12, 0xAB, 0x34));
  EXPECT_EQ(Shown("<TR>", "isbackcolor"), "false");
}

TEST_F(RowEditor, ATagIsWrittenBackAsItWas) {
  for (const std::string_view word : {"LEFT", "RIGHT", "CENTER"}) ExpectRoundTrip(Concat({"<TR ALIGN=\"", word, "\">"}));
  for (const std::string_view word : {"TOP", "BOTTOM", "BASELINE"}) ExpectRoundTrip(Concat({"<TR VALIGN=\"", word, "\">"}));
  ExpectRoundTrip("<TR ALIGN=\"RIGHT\" VALIGN=\"BASELINE\" BGCOLOR=\"#12AB34\">");
}

TEST_F(RowEditor, TheMiddleIsNotReadBackOnPurpose) {
  EXPECT_EQ(Rewritten("<TR VALIGN=middle>"), "<TR VALIGN=\"CENTER\">");
  EXPECT_EQ(Rewritten("<TR VALIGN=\"CENTER\">"), "<TR>");
}

TEST_F(RowEditor, ANamedColourHasItsChannelsExchangedOnPurpose) { EXPECT_EQ(Rewritten("<TR BGCOLOR=blue>"), "<TR BGCOLOR=\"#FF0000\">"); }

TEST_F(RowEditor, AChosenColourTicksItsBox) {
  test_.windows.colours.push_back(RgbColour(1, 2, 3));
  EXPECT_EQ(Rewritten("<TR>", [](Form& form) { form.Find("fillwithcolor")->UserClicks(); }), "<TR BGCOLOR=\"#010203\">");
}

TEST_F(RowEditor, InsertsAPair) {
  EXPECT_EQ(Inserted("Toolbar3", "metadtr", {{"Align", "Do lewej"}, {"Valign", "Na dole"}}), "<TR ALIGN=\"LEFT\" VALIGN=\"BOTTOM\">x</TR>");
}

TEST_F(RowEditor, CancelChangesNothing) {
  ExpectCancelKeeps("<tr align=left>");
  ExpectCancelInsertsNothing("Toolbar3", "metadtr");
  EXPECT_EQ(test_.program.DialogResult, "-1");
}

TEST_F(RowEditor, TellsOfItsWorkInTheStatusLine) { ExpectStatus("<TR>", "Generowanie znacznika tabeli..."); }

}  // namespace
}  // namespace morlan
