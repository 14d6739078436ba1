#include "tags/iframeeditor.h"

#include "tests/support/tageditorfixture.h"

namespace morlan {
namespace {

class IFrameEditor : public TagEditorTest {};

TEST_F(IFrameEditor, WritesItsAttributesInOrder) {
  EXPECT_EQ(IFrameText({}), "<IFRAME SRC=\"\" FRAMEBORDER=\"NO\">");
  EXPECT_EQ(IFrameText({.src = "a b.html",
                        .name = "menu",
                        .height = "1",
                        .width = "50%",
                        .marginwidth = "3",
                        .marginheight = "4",
                        .frameBorder = true,
                        .scrolling = 2,
                        .align = 1}),
            "<IFRAME SRC=\"a b.html\" NAME=\"menu\" HEIGHT=\"1\" WIDTH=\"50%\" MARGINWIDTH=\"3\" MARGINHEIGHT=\"4\" FRAMEBORDER=\"YES\" "
            "SCROLLING=\"NO\" ALIGN=\"MIDDLE\">");
}

TEST_F(IFrameEditor, WritesNumbersAboveZeroAlone) {
  EXPECT_EQ(IFrameText({.height = "0", .width = "x", .marginwidth = "-1", .marginheight = "00"}), "<IFRAME SRC=\"\" FRAMEBORDER=\"NO\">");
}

struct AlignCase {
  std::string_view label, word;
};

TEST_F(IFrameEditor, ReadsAndWritesEachAlignment) {
  constexpr AlignCase kCases[] = {
      {"Na górze"_pl, "TOP"}, {"Na środku"_pl, "MIDDLE"}, {"Na dole", "BOTTOM"}, {"Po lewej", "LEFT"}, {"Po prawej", "RIGHT"}};
  for (const AlignCase& row : kCases) {
    const std::string tag = Concat({"<IFRAME SRC=\"a\" FRAMEBORDER=\"NO\" ALIGN=\"", row.word, "\">"});
    EXPECT_EQ(Shown(tag, "align"), row.label);
    EXPECT_EQ(Rewritten("<IFRAME SRC=\"a\">", {{"align", row.label}}), tag);
    ExpectRoundTrip(tag);
  }
  EXPECT_EQ(Shown("<IFRAME ALIGN=center>", "align"), "");
}

TEST_F(IFrameEditor, ReadsEachField) {
  constexpr std::string_view kTag =
      "<iframe scrolling=auto align=top frameborder=yes marginheight=4 marginwidth=3 width=50% height=1 name=menu src=\"a b.html\">";
  EXPECT_EQ(Shown(kTag, "src"), "a b.html");
  EXPECT_EQ(Shown(kTag, "name_"), "menu");
  EXPECT_EQ(Shown(kTag, "height_"), "1");
  EXPECT_EQ(Shown(kTag, "width_"), "50%");
  EXPECT_EQ(Shown(kTag, "marginwidth"), "3");
  EXPECT_EQ(Shown(kTag, "marginheight"), "4");
  EXPECT_EQ(Shown(kTag, "FrameBorder"), "true");
  EXPECT_EQ(Shown(kTag, "scrolling"), "Automatyczne");
}

TEST_F(IFrameEditor, ATagIsWrittenBackAsItWas) {
  ExpectRoundTrip(
      "<IFRAME SRC=\"a b.html\" NAME=\"menu\" HEIGHT=\"1\" WIDTH=\"50%\" MARGINWIDTH=\"3\" MARGINHEIGHT=\"4\" FRAMEBORDER=\"YES\" "
      "SCROLLING=\"YES\" ALIGN=\"RIGHT\">");
}

TEST_F(IFrameEditor, AMarginIsNoSizeOfTheFrame) { EXPECT_EQ(Shown("<IFRAME MARGINWIDTH=3 MARGINHEIGHT=4>", "width_"), ""); }

TEST_F(IFrameEditor, InsertsAPair) {
  EXPECT_EQ(Inserted("Toolbar4", "dif",
                     {{"src", "a.html"}, {"height_", "100"}, {"width_", "200"}, {"FrameBorder", "true"}, {"scrolling", "Nie"}}),
            "<IFRAME SRC=\"a.html\" HEIGHT=\"100\" WIDTH=\"200\" FRAMEBORDER=\"YES\" SCROLLING=\"NO\">x</IFRAME>");
}

TEST_F(IFrameEditor, AsksForAPage) { EXPECT_EQ(ChosenFile("<IFRAME>", "srcFile", "src", "work\\a.html"), "a.html"); }

TEST_F(IFrameEditor, CancelChangesNothing) {
  ExpectCancelKeeps("<iframe src=\"a\">");
  ExpectCancelInsertsNothing("Toolbar4", "dif");
}

TEST_F(IFrameEditor, TellsOfItsWorkInTheStatusLine) { ExpectStatus("<IFRAME>", "Generowanie znacznika ramki..."); }

}  // namespace
}  // namespace morlan
