#include "tags/imageeditor.h"

#include "tests/support/tageditorfixture.h"

namespace morlan {
namespace {

constexpr std::string_view kWhole =
    "<IMG SRC=\"a b.gif\" ALT=\"a b\" USEMAP=\"#m\" WIDTH=1 HEIGHT=2 BORDER=0 VSPACE=4 HSPACE=5 ALIGN=MIDDLE ISMAP>";

class ImageEditor : public TagEditorTest {};

TEST_F(ImageEditor, WritesItsAttributesInOrder) {
  EXPECT_EQ(ImageText({}), "<IMG SRC=\"\">");
  EXPECT_EQ(ImageText({.source = "a b.gif",
                       .alt = "a b",
                       .usemap = "#m",
                       .szerokosc = "1",
                       .wysokosc = "2",
                       .ramka = "0",
                       .vspace = "4",
                       .hspace = "5",
                       .wyrownanie = "MIDDLE",
                       .ismap = true}),
            kWhole);
}

TEST_F(ImageEditor, AMapIsWrittenWithItsSign) {
  EXPECT_EQ(ImageText({.source = "a", .usemap = "m"}), "<IMG SRC=\"a\" USEMAP=\"#m\">");
  EXPECT_EQ(Rewritten("<IMG SRC=\"a\" USEMAP=\"m\">"), "<IMG SRC=\"a\" USEMAP=\"#m\">");
}

TEST_F(ImageEditor, ReadsEachField) {
  constexpr std::string_view kTag =
      "<img ismap align=middle hspace=5 vspace=4 border=0 height=2 width=1 usemap=\"#m\" alt=\"a b\" src=\"a b.gif\">";
  EXPECT_EQ(Shown(kTag, "source"), "a b.gif");
  EXPECT_EQ(Shown(kTag, "alt"), "a b");
  EXPECT_EQ(Shown(kTag, "usemap"), "#m");
  EXPECT_EQ(Shown(kTag, "szerokosc"), "1");
  EXPECT_EQ(Shown(kTag, "wysokosc"), "2");
  EXPECT_EQ(Shown(kTag, "ramka"), "0");
  EXPECT_EQ(Shown(kTag, "vspace"), "4");
  EXPECT_EQ(Shown(kTag, "hspace"), "5");
  EXPECT_EQ(Shown(kTag, "wyrownanie"), "MIDDLE");
  EXPECT_EQ(Shown(kTag, "ismap"), "true");
}

TEST_F(ImageEditor, ATagIsWrittenBackAsItWas) {
  ExpectRoundTrip(kWhole);
  ExpectRoundTrip("<IMG SRC=\"a\">");
  for (const std::string_view word : {"TOP", "MIDDLE", "BOTTOM", "RIGHT", "LEFT", "TEXTOP"})
    ExpectRoundTrip(Concat({"<IMG SRC=\"a\" ALIGN=", word, ">"}));
}

TEST_F(ImageEditor, AnUnquotedValueReadsWronglyOnPurpose) {
  EXPECT_EQ(Rewritten("<IMG SRC=a.gif ALT=\"x\">"), "<IMG SRC=\"x\" ALT=\"x\">");
}

TEST_F(ImageEditor, AnEmptySourceCountsAsCancelled) {
  ExpectCancelKeeps("<img src=\"a\">");
  EXPECT_EQ(test_.program.forms.Get<image>().source.Text(), "");
  EXPECT_EQ(Rewritten("<img src=a.gif>"), "<img src=a.gif>") << "an unquoted address alone reads as none";
  ExpectCancelInsertsNothing("Toolbar1", "image");
}

TEST_F(ImageEditor, RewritesWhatTheUserChanged) {
  EXPECT_EQ(Rewritten("<img src=\"a\" id=b>", {{"szerokosc", "120"}, {"ismap", "true"}, {"wyrownanie", "TOP"}}),
            "<IMG SRC=\"a\" WIDTH=120 ALIGN=TOP ISMAP>");
  EXPECT_EQ(Rewritten("<IMG SRC=\"a\" ALIGN=TOP>", {{"wyrownanie", ""}}), "<IMG SRC=\"a\">");
}

TEST_F(ImageEditor, InsertsATagWithoutAnEnd) {
  EXPECT_EQ(Inserted("Toolbar1", "image", {{"source", "a.gif"}, {"alt", "Ala"}, {"hspace", "x"}}),
            "<IMG SRC=\"a.gif\" ALT=\"Ala\" HSPACE=x>x");
}

TEST_F(ImageEditor, AsksForAPicture) {
  EXPECT_EQ(ChosenFile("<IMG SRC=\"a\">", "sourceFile", "source", "work\\rysunki\\a b.gif"), "rysunki/a b.gif");
}

}  // namespace
}  // namespace morlan
