#include "tags/tableeditor.h"

#include "tests/support/tageditorfixture.h"

namespace morlan {
namespace {

constexpr std::string_view kWhole =
    "<TABLE BORDER=1 HEIGHT=\"2\" WIDTH=\"50%\" BACKGROUND=\"a b.gif\" BGCOLOR=\"#12AB34\" ALIGN=\"BLEEDRIGHT\" VALIGN=\"TOP\" NOFLOW "
    "NOWARP CELLSPACING=\"3\" CELLPADDING=\"4\">";

class TableEditor : public TagEditorTest {};

TEST_F(TableEditor, WritesItsAttributesInOrder) {
  EXPECT_EQ(TableText({}), "<TABLE>");
  EXPECT_EQ(TableText({.border = "1",
                       .height = "2",
                       .width = "50%",
                       .background = "a b.gif",
                       .backColour = RgbColour(0x12, 0xAB, 0x34),
                       .align = 2,
                       .valign = 1,
                       .noflow = true,
                       .nowarp = true,
                       .cellspacing = "3",
                       .cellpadding = "4"}),
            kWhole);
}

TEST_F(TableEditor, WritesNumbersAboveZeroAlone) {
  EXPECT_EQ(TableText({.border = "0", .height = "0", .width = "auto", .cellspacing = "-1", .cellpadding = "0"}), "<TABLE>");
  EXPECT_EQ(Rewritten("<TABLE BORDER=\"0\" CELLSPACING=0>"), "<TABLE>") << "a border of 0 is lost on purpose";
}

TEST_F(TableEditor, ReadsEachField) {
  constexpr std::string_view kTag =
      "<table cellpadding=4 cellspacing=3 nowarp noflow valign=top align=bleedright bgcolor=#12AB34 background=\"a b.gif\" width=50% "
      "height=2 border=1>";
  EXPECT_EQ(Shown(kTag, "border"), "1");
  EXPECT_EQ(Shown(kTag, "Height_"), "2");
  EXPECT_EQ(Shown(kTag, "Width_"), "50%");
  EXPECT_EQ(Shown(kTag, "background"), "a b.gif");
  EXPECT_EQ(Shown(kTag, "isbackcolor"), "true");
  EXPECT_EQ(test_.program.forms.Get<Tabela>().fillwithcolor.Value(), RgbColour(0x12, 0xAB, 0x34));
  EXPECT_EQ(Shown(kTag, "align"), "Na prawej krawędzi okna"_pl);
  EXPECT_EQ(Shown(kTag, "valign"), "Wysokość linii"_pl);
  EXPECT_EQ(Shown(kTag, "noflow"), "true");
  EXPECT_EQ(Shown(kTag, "nowarp"), "true");
  EXPECT_EQ(Shown(kTag, "cellspacing"), "3");
  EXPECT_EQ(Shown(kTag, "cellpadding"), "4");
}

struct ChoiceCase {
  std::string_view field, label, attribute;
};

TEST_F(TableEditor, EachRowOfTheListsHasItsWord) {
  constexpr ChoiceCase kCases[] = {
      {"align", "Formtauj jak tekst", " ALIGN=\"JUSTIFY\""},
      {"align", "Na lewej krawędzi okna"_pl, " ALIGN=\"BLEEDLEFT\""},
      {"align", "Na prawej krawędzi okna"_pl, " ALIGN=\"BLEEDRIGHT\""},
      {"align", "Na środku"_pl, " ALIGN=\"CENTER\""},
      {"align", "W miejscu najbardziej dogodnym", " ALIGN=\"FLOAT\""},
      {"align", "Z lewej", " ALIGN=\"LEFT\""},
      {"align", "Z prawej", " ALIGN=\"RIGHT\""},
      {"align", "", ""},
      {"valign", "Podstawa linii", " VALIGN=\"BOTTOM\""},
      {"valign", "Wysokość linii"_pl, " VALIGN=\"TOP\""},
      {"valign", "", ""},
  };
  for (const ChoiceCase& row : kCases) {
    const std::string tag = Concat({"<TABLE", row.attribute, ">"});
    EXPECT_EQ(Rewritten("<TABLE>", {{row.field, row.label}}), tag);
    ExpectRoundTrip(tag);
    EXPECT_EQ(Shown(tag, row.field), row.label);
  }
}

TEST_F(TableEditor, ATagIsWrittenBackAsItWas) {
  ExpectRoundTrip(kWhole);
  ExpectRoundTrip("<TABLE>");
}

TEST_F(TableEditor, TheWordForBrokenLinesIsMisspeltOnPurpose) {
  EXPECT_EQ(Rewritten("<TABLE NOWRAP>"), "<TABLE>");
  EXPECT_EQ(Rewritten("<TABLE NOWARP>"), "<TABLE NOWARP>");
}

TEST_F(TableEditor, ANamedColourHasItsChannelsExchangedOnPurpose) {
  EXPECT_EQ(Rewritten("<TABLE BGCOLOR=red>"), "<TABLE BGCOLOR=\"#0000FF\">");
}

TEST_F(TableEditor, AChosenColourTicksItsBox) {
  test_.windows.colours.push_back(RgbColour(1, 2, 3));
  EXPECT_EQ(Rewritten("<TABLE>", [](Form& form) { form.Find("fillwithcolor")->UserClicks(); }), "<TABLE BGCOLOR=\"#010203\">");
  test_.windows.colours.push_back(std::nullopt);
  EXPECT_EQ(Rewritten("<TABLE>", [](Form& form) { form.Find("fillwithcolor")->UserClicks(); }), "<TABLE>");
  EXPECT_EQ(Rewritten("<TABLE BGCOLOR=\"#010203\">", {{"isbackcolor", "false"}}), "<TABLE>");
}

TEST_F(TableEditor, InsertsAPair) {
  EXPECT_EQ(Inserted("Toolbar3", "metadtbl", {{"border", "1"}, {"Width_", "100%"}, {"nowarp", "true"}}),
            "<TABLE BORDER=1 WIDTH=\"100%\" NOWARP>x</TABLE>");
}

TEST_F(TableEditor, ANewTagAfterAnEditedOneIsInserted) {
  Rewritten("<TABLE BORDER=1>");
  EXPECT_EQ(Inserted("Toolbar3", "metadtbl"), "<TABLE BORDER=1>x</TABLE>");
}

TEST_F(TableEditor, AsksForAPicture) { EXPECT_EQ(ChosenFile("<TABLE>", "backgroundFile", "background", "work\\a.gif"), "a.gif"); }

TEST_F(TableEditor, CancelChangesNothing) {
  ExpectCancelKeeps("<table border=1>");
  ExpectCancelInsertsNothing("Toolbar3", "metadtbl");
  EXPECT_EQ(test_.program.DialogResult, "-1");
}

TEST_F(TableEditor, TellsOfItsWorkInTheStatusLine) { ExpectStatus("<TABLE>", "Generowanie znacznika tabeli..."); }

}  // namespace
}  // namespace morlan
