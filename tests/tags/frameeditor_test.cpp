#include "tags/frameeditor.h"

#include "tests/support/tageditorfixture.h"

namespace morlan {
namespace {

class FrameEditor : public TagEditorTest {};

TEST_F(FrameEditor, WritesItsAttributesInOrder) {
  EXPECT_EQ(FrameText({}), "<FRAME SRC=\"\" FRAMEBORDER=\"NO\">");
  EXPECT_EQ(FrameText({.src = "a b.html",
                       .name = "menu",
                       .marginwidth = "1",
                       .marginheight = "2",
                       .noresize = true,
                       .frameBorder = true,
                       .spacing = "3",
                       .scrolling = 0}),
            "<FRAME SRC=\"a b.html\" NAME=\"menu\" MARGINWIDTH=\"1\" MARGINHEIGHT=\"2\" NORESIZE FRAMEBORDER=\"YES\" FRAMESPACING=\"3\" "
            "SCROLLING=\"AUTO\">");
}

TEST_F(FrameEditor, WritesNumbersAboveZeroAlone) {
  EXPECT_EQ(FrameText({.marginwidth = "0", .marginheight = "x", .spacing = "-3"}), "<FRAME SRC=\"\" FRAMEBORDER=\"NO\">");
}

TEST_F(FrameEditor, WritesAWordForEachRowOfScrolling) {
  EXPECT_EQ(FrameText({.scrolling = 1}), "<FRAME SRC=\"\" FRAMEBORDER=\"NO\" SCROLLING=\"YES\">");
  EXPECT_EQ(FrameText({.scrolling = 2}), "<FRAME SRC=\"\" FRAMEBORDER=\"NO\" SCROLLING=\"NO\">");
  EXPECT_EQ(FrameText({.scrolling = 3}), "<FRAME SRC=\"\" FRAMEBORDER=\"NO\">");
}

TEST_F(FrameEditor, ReadsEachField) {
  constexpr std::string_view kTag =
      "<frame scrolling=No frameborder=Yes noresize marginheight=2 marginwidth=\"1\" framespacing=3 name=\"menu\" src=\"a b.html\">";
  EXPECT_EQ(Shown(kTag, "src"), "a b.html");
  EXPECT_EQ(Shown(kTag, "name_"), "menu");
  EXPECT_EQ(Shown(kTag, "marginwidth"), "1");
  EXPECT_EQ(Shown(kTag, "marginheight"), "2");
  EXPECT_EQ(Shown(kTag, "spacing_"), "3");
  EXPECT_EQ(Shown(kTag, "noresize"), "true");
  EXPECT_EQ(Shown(kTag, "FrameBorder"), "true");
  EXPECT_EQ(Shown(kTag, "scrolling"), "Nie");
  EXPECT_EQ(Shown("<FRAME SCROLLING=AUTO>", "scrolling"), "Automatyczne");
  EXPECT_EQ(Shown("<FRAME SCROLLING=\"yes\">", "scrolling"), "Tak");
}

TEST_F(FrameEditor, OnlyYesTicksTheBorder) {
  for (const std::string_view tag : {"<FRAME>", "<FRAME FRAMEBORDER=NO>", "<FRAME FRAMEBORDER=1>", "<FRAME FRAMEBORDER>"})
    EXPECT_EQ(Shown(tag, "FrameBorder"), "false") << tag;
}

TEST_F(FrameEditor, ATagIsWrittenBackAsItWas) {
  ExpectRoundTrip(
      "<FRAME SRC=\"a b.html\" NAME=\"menu\" MARGINWIDTH=\"1\" MARGINHEIGHT=\"2\" NORESIZE FRAMEBORDER=\"YES\" FRAMESPACING=\"3\" "
      "SCROLLING=\"AUTO\">");
  ExpectRoundTrip("<FRAME SRC=\"a\" FRAMEBORDER=\"NO\">");
}

TEST_F(FrameEditor, AnUnquotedAddressIsLostOnPurpose) { EXPECT_EQ(Rewritten("<frame src=a.html>"), "<FRAME SRC=\"\" FRAMEBORDER=\"NO\">"); }

TEST_F(FrameEditor, RewritesWhatTheUserChanged) {
  EXPECT_EQ(Rewritten("<frame src=\"a.html\" class=x>",
                      {{"name_", "dol"}, {"FrameBorder", "true"}, {"noresize", "true"}, {"scrolling", "Tak"}, {"marginwidth", "7"}}),
            "<FRAME SRC=\"a.html\" NAME=\"dol\" MARGINWIDTH=\"7\" NORESIZE FRAMEBORDER=\"YES\" SCROLLING=\"YES\">");
  Undo();
  EXPECT_EQ(test_.Text(), "ab<frame src=\"a.html\" class=x>yz");
}

TEST_F(FrameEditor, InsertsATagWithoutAnEnd) {
  EXPECT_EQ(Inserted("Toolbar4", "dfra", {{"src", "a.html"}, {"spacing_", "2"}, {"marginheight", "3"}}),
            "<FRAME SRC=\"a.html\" MARGINHEIGHT=\"3\" FRAMEBORDER=\"NO\" FRAMESPACING=\"2\">x");
}

TEST_F(FrameEditor, AsksForAPage) { EXPECT_EQ(ChosenFile("<FRAME>", "srcFile", "src", "work\\ramki\\menu.html"), "ramki/menu.html"); }

TEST_F(FrameEditor, CancelChangesNothing) {
  ExpectCancelKeeps("<frame src=\"a\">");
  ExpectCancelInsertsNothing("Toolbar4", "dfra");
}

TEST_F(FrameEditor, TellsOfItsWorkInTheStatusLine) { ExpectStatus("<FRAME>", "Generowanie znacznika ramki..."); }

}  // namespace
}  // namespace morlan
