#include "tags/frameseteditor.h"

#include "tests/support/tageditorfixture.h"

namespace morlan {
namespace {

class FrameSetEditor : public TagEditorTest {};

TEST_F(FrameSetEditor, WritesItsAttributesInOrder) {
  EXPECT_EQ(FrameSetText({}), "<FRAMESET>");
  EXPECT_EQ(FrameSetText({.cols = "20%,*", .rows = "1,2", .lnBorder = 0, .spacing = "3", .border = "4"}),
            "<FRAMESET COLS=\"20%,*\" ROWS=\"1,2\" FRAMEBORDER=\"YES\" FRAMESPACING=\"3\" BORDER=\"4\">");
}

TEST_F(FrameSetEditor, WritesTheBorderForTwoRowsAlone) {
  EXPECT_EQ(FrameSetText({.lnBorder = 1}), "<FRAMESET FRAMEBORDER=\"NO\">");
  EXPECT_EQ(FrameSetText({.lnBorder = 2}), "<FRAMESET>");
  EXPECT_EQ(FrameSetText({.lnBorder = -1}), "<FRAMESET>");
}

TEST_F(FrameSetEditor, WritesNumbersAboveZeroAlone) {
  EXPECT_EQ(FrameSetText({.spacing = "0", .border = "0"}), "<FRAMESET>");
  EXPECT_EQ(FrameSetText({.spacing = "-1", .border = "x1"}), "<FRAMESET>");
  EXPECT_EQ(FrameSetText({.spacing = "5x", .border = " 2"}), "<FRAMESET FRAMESPACING=\"5x\" BORDER=\" 2\">");
}

TEST_F(FrameSetEditor, ReadsEachField) {
  constexpr std::string_view kTag = "<frameset border=4 framespacing=\"3\" frameborder=No rows=\"1, 2\" cols=\"20%,*\" x=y>";
  EXPECT_EQ(Shown(kTag, "cols"), "20%,*");
  EXPECT_EQ(Shown(kTag, "rows"), "1, 2");
  EXPECT_EQ(Shown(kTag, "spacing"), "3");
  EXPECT_EQ(Shown(kTag, "border"), "4");
  EXPECT_EQ(Shown(kTag, "lnBorder"), "NIE");
  EXPECT_EQ(Shown("<FRAMESET FRAMEBORDER=yes>", "lnBorder"), "TAK");
  EXPECT_EQ(Shown("<FRAMESET FRAMEBORDER=1>", "lnBorder"), "");
}

TEST_F(FrameSetEditor, ATagIsWrittenBackAsItWas) {
  ExpectRoundTrip("<FRAMESET COLS=\"20%,*\" ROWS=\"1,2\" FRAMEBORDER=\"NO\" FRAMESPACING=\"3\" BORDER=\"4\">");
  ExpectRoundTrip("<FRAMESET ROWS=\"*\" FRAMEBORDER=\"YES\">");
  ExpectRoundTrip("<FRAMESET>");
}

TEST_F(FrameSetEditor, AnUnquotedWidthReadsWronglyOnPurpose) {
  EXPECT_EQ(Rewritten("<FRAMESET COLS=1,2 ROWS=\"*\">"), "<FRAMESET COLS=\"*\" ROWS=\"*\">");
}

TEST_F(FrameSetEditor, RewritesWhatTheUserChanged) {
  EXPECT_EQ(Rewritten("<frameset cols=\"1,2\" onload=\"f()\">", {{"cols", ""}, {"rows", "50%,50%"}, {"lnBorder", "TAK"}}),
            "<FRAMESET ROWS=\"50%,50%\" FRAMEBORDER=\"YES\">");
  Undo();
  EXPECT_EQ(test_.Text(), "ab<frameset cols=\"1,2\" onload=\"f()\">yz");
}

TEST_F(FrameSetEditor, InsertsAPair) {
  EXPECT_EQ(Inserted("Toolbar4", "dset", {{"cols", "1,*"}, {"lnBorder", "NIE"}, {"spacing", "2"}, {"border", "1"}}),
            "<FRAMESET COLS=\"1,*\" FRAMEBORDER=\"NO\" FRAMESPACING=\"2\" BORDER=\"1\">x</FRAMESET>");
  EXPECT_EQ(test_.program.ActiveEditor->SelStart(),
            std::string_view("<FRAMESET COLS=\"1,*\" FRAMEBORDER=\"NO\" FRAMESPACING=\"2\" BORDER=\"1\">").size());
}

TEST_F(FrameSetEditor, AnEditedTagIsNoNewOne) {
  Rewritten("<FRAMESET COLS=\"1\">");
  EXPECT_EQ(Inserted("Toolbar4", "dset"), "<FRAMESET COLS=\"1\">x</FRAMESET>") << "the fields keep what they held";
}

TEST_F(FrameSetEditor, CancelChangesNothing) {
  ExpectCancelKeeps("<frameset cols=1>");
  ExpectCancelInsertsNothing("Toolbar4", "dset");
  EXPECT_EQ(test_.program.DialogResult, "-1");
}

TEST_F(FrameSetEditor, TellsOfItsWorkInTheStatusLine) { ExpectStatus("<FRAMESET>", "Generowanie znacznika ramki..."); }

TEST_F(FrameSetEditor, ABlankRowTakesTheBorderBack) {
  EXPECT_EQ(Rewritten("<FRAMESET FRAMEBORDER=YES>", {{"lnBorder", ""}}), "<FRAMESET>");
}

}  // namespace
}  // namespace morlan
