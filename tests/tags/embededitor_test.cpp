#include "tags/embededitor.h"

#include "tests/support/tageditorfixture.h"

namespace morlan {
namespace {

class EmbedEditor : public TagEditorTest {};

TEST_F(EmbedEditor, WritesItsAttributesInOrderAndALineEnd) {
  EXPECT_EQ(EmbedText({}), "<EMBED SRC=\"\">\r\n");
  EXPECT_EQ(
      EmbedText(
          {.source = "a b.mid", .szerokosc = "1", .wysokosc = "2", .ramka = "0", .wyrownanie = "TEXTOP", .autoStart = true, .loop = false}),
      "<EMBED SRC=\"a b.mid\" WIDTH=1 HEIGHT=2 BORDER=0 ALIGN=TEXTOP AUTOSTART=True LOOP=False>\r\n");
}

TEST_F(EmbedEditor, OnlyASoundHasItsSwitchesWritten) {
  EXPECT_EQ(EmbedText({.source = "a.avi", .autoStart = true, .loop = true}), "<EMBED SRC=\"a.avi\">\r\n");
  EXPECT_EQ(EmbedText({.source = "amid", .loop = true}), "<EMBED SRC=\"amid\">\r\n") << "the extension counts";
  EXPECT_EQ(EmbedText({.source = "../A.MID", .loop = true}), "<EMBED SRC=\"../A.MID\" AUTOSTART=False LOOP=True>\r\n");
}

TEST_F(EmbedEditor, ReadsEachField) {
  constexpr std::string_view kTag = "<embed align=textop border=3 height=2 width=1 loop=true autostart=True src=\"a.mid\">";
  EXPECT_EQ(Shown(kTag, "source"), "a.mid");
  EXPECT_EQ(Shown(kTag, "szerokosc"), "1");
  EXPECT_EQ(Shown(kTag, "wysokosc"), "2");
  EXPECT_EQ(Shown(kTag, "ramka"), "3");
  EXPECT_EQ(Shown(kTag, "wyrownanie"), "TEXTOP");
  EXPECT_EQ(Shown(kTag, "midi(0)"), "true");
  EXPECT_EQ(Shown(kTag, "midi(1)"), "true");
  EXPECT_EQ(Shown("<EMBED LOOP=False>", "midi(1)"), "false");
  EXPECT_EQ(Shown("<EMBED LOOP>", "midi(1)"), "true");
}

TEST_F(EmbedEditor, EachAlignmentIsReadAndWritten) {
  for (const std::string_view word : {"TOP", "MIDDLE", "BOTTOM", "RIGHT", "LEFT", "TEXTOP"})
    EXPECT_EQ(Rewritten(Concat({"<embed src=a align=", word, ">"})), Concat({"<EMBED SRC=\"a\" ALIGN=", word, ">\r\n"}));
}

// The line end that follows the tag is no part of it, so that each edit adds one.
TEST_F(EmbedEditor, EachEditAddsALineEndOnPurpose) {
  EXPECT_EQ(Rewritten("<EMBED SRC=\"a.avi\" WIDTH=1>"), "<EMBED SRC=\"a.avi\" WIDTH=1>\r\n");
  EXPECT_EQ(Rewritten("<EMBED SRC=\"a.mid\" AUTOSTART=True LOOP=False>"), "<EMBED SRC=\"a.mid\" AUTOSTART=True LOOP=False>\r\n");
}

TEST_F(EmbedEditor, AnAddressEndsAtItsFirstBlankUnlessItIsQuoted) {
  EXPECT_EQ(Shown("<EMBED SRC=\"a b.mid\">", "source"), "a b.mid");
  EXPECT_EQ(Shown("<EMBED SRC=a b.mid>", "source"), "a");
}

TEST_F(EmbedEditor, TheSwitchesAreShownForSoundsAlone) {
  Rewritten("<EMBED SRC=\"a.avi\">", [](Form& form) {
    auto& dialog = static_cast<embed&>(form);
    EXPECT_FALSE(dialog.midi0.Visible() || dialog.midi1.Visible());
    dialog.source.UserSets("b.MID");
    EXPECT_TRUE(dialog.midi0.Visible() && dialog.midi1.Visible());
    dialog.source.UserSets("b.mi");
    EXPECT_FALSE(dialog.midi0.Visible() || dialog.midi1.Visible());
  });
  Rewritten("<EMBED SRC=\"a.mid\">", [](Form& form) { EXPECT_TRUE(static_cast<embed&>(form).midi0.Visible()); });
}

TEST_F(EmbedEditor, InsertsATagWithoutAnEnd) {
  EXPECT_EQ(Inserted("Toolbar13", "embed", {{"source", "a.mid"}, {"midi(1)", "true"}, {"wyrownanie", "LEFT"}}),
            "<EMBED SRC=\"a.mid\" ALIGN=LEFT AUTOSTART=False LOOP=True>\r\nx");
}

TEST_F(EmbedEditor, AsksForASound) {
  EXPECT_EQ(ChosenFile("<EMBED SRC=a>", "sourceFile", "source", "work\\dzwieki\\a.mid"), "dzwieki/a.mid");
}

TEST_F(EmbedEditor, AnEmptySourceCountsAsCancelled) {
  ExpectCancelKeeps("<embed src=a.mid>");
  ExpectCancelInsertsNothing("Toolbar13", "embed");
  EXPECT_EQ(test_.program.forms.Get<embed>().source.Text(), "");
  EXPECT_EQ(Rewritten("<embed src=a.mid>", {{"source", ""}}), "<embed src=a.mid>");
}

}  // namespace
}  // namespace morlan
