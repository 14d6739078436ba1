#include "tags/celleditor.h"

#include "tests/support/tageditorfixture.h"

namespace morlan {
namespace {

constexpr std::string_view kRest =
    " ALIGN=\"LEFT\" VALIGN=\"BASELINE\" BACKGROUND=\"a b.gif\" BGCOLOR=\"#12AB34\" NOWARP WIDTH=\"1\" HEIGHT=\"2%\" ROWSPAWN=\"3\" "
    "COLSPAWN=\"4\">";

class CellEditor : public TagEditorTest {};

struct ChoiceCase {
  std::string_view field, label, attribute;
};

TEST_F(CellEditor, WritesItsAttributesInOrder) {
  const CellValues values = {.align = 1,
                             .valign = 3,
                             .tlo = "a b.gif",
                             .backColour = RgbColour(0x12, 0xAB, 0x34),
                             .nowarp = true,
                             .szer = "1",
                             .wys = "2%",
                             .rowspawn = "3",
                             .colspawn = "4"};
  EXPECT_EQ(CellText(CellKind::Cell, values), Concat({"<TD", kRest}));
  EXPECT_EQ(CellText(CellKind::Header, values), Concat({"<TH", kRest}));
  EXPECT_EQ(CellText(CellKind::Cell, {}), "<TD>");
}

TEST_F(CellEditor, WritesNumbersAboveZeroAlone) {
  EXPECT_EQ(CellText(CellKind::Cell, {.szer = "0", .wys = "x", .rowspawn = "-1", .colspawn = "0"}), "<TD>");
}

TEST_F(CellEditor, EachRowOfTheListsHasItsWord) {
  constexpr ChoiceCase kCases[] = {
      {"align", "Centrowany", " ALIGN=\"CENTER\""},
      {"align", "Do lewego marg.", " ALIGN=\"LEFT\""},
      {"align", "Prawego marg.", " ALIGN=\"RIGHT\""},
      {"align", "", ""},
      {"valign", "Na dole", " VALIGN=\"BOTTOM\""},
      {"valign", "Na górze"_pl, " VALIGN=\"TOP\""},
      {"valign", "Na środku"_pl, " VALIGN=\"CENTER\""},
      {"valign", "Podstawa tekstu", " VALIGN=\"BASELINE\""},
      {"valign", "", ""},
  };
  for (const ChoiceCase& row : kCases)
    EXPECT_EQ(Rewritten("<TD>", {{row.field, row.label}}), Concat({"<TD", row.attribute, ">"})) << ToUtf8(row.label);
}

TEST_F(CellEditor, ReadsEachField) {
  constexpr std::string_view kTag =
      "<td valign=middle align=right bgcolor=#12AB34 nowarp colspawn=4 rowspawn=3 height=2% width=1 background=\"a b.gif\">";
  EXPECT_EQ(Shown(kTag, "tlo"), "a b.gif");
  EXPECT_EQ(Shown(kTag, "szer"), "1");
  EXPECT_EQ(Shown(kTag, "wys"), "2%");
  EXPECT_EQ(Shown(kTag, "rowspawn"), "3");
  EXPECT_EQ(Shown(kTag, "colspawn"), "4");
  EXPECT_EQ(Shown(kTag, "nowarp2"), "true");
  EXPECT_EQ(Shown(kTag, "isbackcolor2"), "true");
  EXPECT_EQ(test_.program.forms.Get<DTH>().fillwithcolor2.Value(), RgbColour(0x12, 0xAB, 0x34));
  EXPECT_EQ(Shown(kTag, "align"), "Prawego marg.");
  EXPECT_EQ(Shown(kTag, "valign"), "Na środku"_pl);
  EXPECT_EQ(Shown("<TD VALIGN=top>", "valign"), "Na górze"_pl);
}

TEST_F(CellEditor, ATagIsWrittenBackAsItWas) {
  for (const std::string_view name : {"<TD", "<TH"}) {
    ExpectRoundTrip(Concat({name, kRest}));
    ExpectRoundTrip(Concat({name, ">"}));
    for (const std::string_view word : {"LEFT", "RIGHT", "CENTER"}) ExpectRoundTrip(Concat({name, " ALIGN=\"", word, "\">"}));
    for (const std::string_view word : {"TOP", "BOTTOM", "BASELINE"}) ExpectRoundTrip(Concat({name, " VALIGN=\"", word, "\">"}));
  }
}

TEST_F(CellEditor, TheMiddleIsNotReadBackOnPurpose) { EXPECT_EQ(Rewritten("<TD VALIGN=\"CENTER\">"), "<TD>"); }

TEST_F(CellEditor, TheSpansAreSpeltRowspawnAndColspawnOnPurpose) {
  EXPECT_EQ(Rewritten("<TD ROWSPAN=2 COLSPAN=3>"), "<TD>");
  EXPECT_EQ(Rewritten("<TD>", {{"rowspawn", "2"}, {"colspawn", "3"}}), "<TD ROWSPAWN=\"2\" COLSPAWN=\"3\">");
}

TEST_F(CellEditor, ItsTagNamesTheDialog) {
  Rewritten("<th>", [](Form& form) { EXPECT_EQ(form.Caption(), "Nagłówek tabeli"_pl); });
  Rewritten("<td>", [](Form& form) { EXPECT_EQ(form.Caption(), "Komórka tabeli"_pl); });
  Inserted("Toolbar3", "metadth", [](Form& form) { EXPECT_EQ(form.Caption(), "Nagłówek tabeli"_pl); });
  Inserted("Toolbar3", "metadtd", [](Form& form) { EXPECT_EQ(form.Caption(), "Komórka tabeli"_pl); });
}

TEST_F(CellEditor, AChosenColourTicksItsBox) {
  test_.windows.colours.push_back(RgbColour(1, 2, 3));
  EXPECT_EQ(Rewritten("<TD>", [](Form& form) { form.Find("fillwithcolor2")->UserClicks(); }), "<TD BGCOLOR=\"#010203\">");
}

TEST_F(CellEditor, InsertsAPair) {
  EXPECT_EQ(Inserted("Toolbar3", "metadtd", {{"szer", "50%"}, {"nowarp2", "true"}}), "<TD NOWARP WIDTH=\"50%\">x</TD>");
  EXPECT_EQ(Inserted("Toolbar3", "metadth", {{"wys", "7"}, {"nowarp2", "false"}}), "<TH WIDTH=\"50%\" HEIGHT=\"7\">x</TH>");
}

TEST_F(CellEditor, AsksForAPicture) { EXPECT_EQ(ChosenFile("<TD>", "tloFile", "tlo", "work\\a.gif"), "a.gif"); }

TEST_F(CellEditor, CancelChangesNothing) {
  ExpectCancelKeeps("<td width=1>");
  ExpectCancelKeeps("<th width=1>");
  ExpectCancelInsertsNothing("Toolbar3", "metadtd");
  ExpectCancelInsertsNothing("Toolbar3", "metadth");
}

TEST_F(CellEditor, TellsOfItsWorkInTheStatusLine) { ExpectStatus("<TH>", "Generowanie znacznika tabeli..."); }

}  // namespace
}  // namespace morlan
