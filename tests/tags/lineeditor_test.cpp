#include "tags/lineeditor.h"

#include "tests/support/tageditorfixture.h"

namespace morlan {
namespace {

class LineEditor : public TagEditorTest {};

TEST_F(LineEditor, WritesItsAttributesInOrder) {
  EXPECT_EQ(LineText({}), "<HR>");
  EXPECT_EQ(LineText({.dlugosc = "50%", .wysokosc = "3", .wyrownanie = "Centruj", .bezCienia = true, .colour = "RED"}),
            "<HR WIDTH=50% SIZE=3 ALIGN=\"center\" NOSHADE COLOR=\"RED\">");
}

TEST_F(LineEditor, WhatIsNoNumberIsWrittenAllTheSame) {
  EXPECT_EQ(LineText({.dlugosc = "0", .wysokosc = "gruba"}), "<HR WIDTH=0 SIZE=gruba>");
}

TEST_F(LineEditor, EachLabelHasItsWord) {
  EXPECT_EQ(Rewritten("<HR>", {{"Wyrownanie", "Do lewej"}}), "<HR ALIGN=\"left\">");
  EXPECT_EQ(Rewritten("<HR>", {{"Wyrownanie", "Centruj"}}), "<HR ALIGN=\"center\">");
  EXPECT_EQ(Rewritten("<HR>", {{"Wyrownanie", "Do prawej"}}), "<HR ALIGN=\"right\">");
}

TEST_F(LineEditor, ReadsEachField) {
  constexpr std::string_view kTag = "<hr color=red noshade align=center size=3 width=\"50%\">";
  EXPECT_EQ(Shown(kTag, "Dlugosc"), "50%");
  EXPECT_EQ(Shown(kTag, "Wysokosc"), "3");
  EXPECT_EQ(Shown(kTag, "BezCienia"), "true");
  EXPECT_EQ(Shown(kTag, "Wyrownanie"), "Centruj");
  EXPECT_EQ(Shown(kTag, "kolory(4)"), "true");
  EXPECT_EQ(Shown("<HR NOSHADE=false ALIGN=left>", "BezCienia"), "false");
  EXPECT_EQ(Shown("<HR ALIGN=left>", "Wyrownanie"), "Do lewej");
}

TEST_F(LineEditor, ATagIsWrittenBackAsItWas) {
  ExpectRoundTrip("<HR WIDTH=50% SIZE=3 ALIGN=\"center\" NOSHADE COLOR=\"RED\">");
  ExpectRoundTrip("<HR ALIGN=\"left\">");
  ExpectRoundTrip("<HR>");
}

TEST_F(LineEditor, ATagIsWrittenAnewFromTheDialog) { EXPECT_EQ(Rewritten("<hr width=50 class=x>"), "<HR WIDTH=50>"); }

TEST_F(LineEditor, ALineAlignedToTheRightLosesItsAlignmentOnPurpose) {
  EXPECT_EQ(Shown("<HR ALIGN=\"right\">", "Wyrownanie"), "");
  EXPECT_EQ(Rewritten("<HR ALIGN=\"right\">"), "<HR>");
}

TEST_F(LineEditor, AWidthInBlanksReadsAsTrueOnPurpose) { EXPECT_EQ(Rewritten("<HR WIDTH = 5>"), "<HR WIDTH=true>"); }

TEST_F(LineEditor, TheSampleShowsTheColourOfTheTag) {
  Rewritten("<HR COLOR=red>", [](Form& form) { EXPECT_EQ(static_cast<lineedit&>(form).wzor.Value(), RgbColour(0xFF, 0, 0)); });
  Rewritten("<HR>", [](Form& form) { EXPECT_FALSE(static_cast<lineedit&>(form).wzor.IsSet()); });
}

TEST_F(LineEditor, TheSampleShowsAUsersColourWithItsChannelsExchangedOnPurpose) {
  const auto look = [](Form& form) { EXPECT_EQ(static_cast<lineedit&>(form).wzor.Value(), 0x123456u); };
  Rewritten("<HR COLOR=0123456>", look);
}

TEST_F(LineEditor, TheButtonsHaveTheirNamesSwappedOnPurpose) {
  const lineedit& form = test_.program.forms.Get<lineedit>();
  EXPECT_EQ(form.Command1.Caption(), "&Ok");
  EXPECT_EQ(form.Command2.Caption(), "&Anuluj");
  EXPECT_EQ(form.defaultButton, &form.Command1);
}

TEST_F(LineEditor, CancelLeavesMinusOneInTheWidth) {
  ExpectCancelKeeps("<hr width=5>");
  EXPECT_EQ(test_.program.forms.Get<lineedit>().Dlugosc.Text(), "-1");
  EXPECT_EQ(Rewritten("<HR>", {{"Dlugosc", "-1"}}), "<HR>") << "a width of -1 counts as cancelled on purpose";
  EXPECT_FALSE(test_.program.ActiveDocument->IsModified());
}

TEST_F(LineEditor, InsertsALine) {
  EXPECT_EQ(Inserted("Toolbar1", "line", {{"Dlugosc", "5"}, {"Wysokosc", "2"}, {"BezCienia", "true"}, {"kolory(4)", "true"}}),
            "<HR WIDTH=5 SIZE=2 NOSHADE COLOR=\"RED\">x");
}

TEST_F(LineEditor, ALineCanBeInsertedAfterACancelledOne) {
  ExpectCancelInsertsNothing("Toolbar1", "line");
  EXPECT_EQ(Inserted("Toolbar1", "line"), "<HR>x");
}

}  // namespace
}  // namespace morlan
