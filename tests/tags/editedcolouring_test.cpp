#include "tags/editedcolouring.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <iterator>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "core/editsurface.h"
#include "tags/colourscan.h"

namespace morlan {
namespace {

using Styles = std::vector<MlnEditor::Style>;
constexpr ColourStyles kColours = {1, 2, 3, MlnEditor::kBold};

Styles StylesOfRun(const std::string& text, const ColourStyles& colours) {
  Styles styles(text.size());
  PaintText(text, colours, styles.data());
  return styles;
}

std::string Drawn(const Styles& styles) {
  std::string drawn;
  for (const MlnEditor::Style style : styles) drawn += style == MlnEditor::kBold ? 'K' : ".tvc"[style & 3];
  return drawn;
}

// An edit surface that is coloured behind each edit.
class Typist {
 public:
  explicit Typist(std::string text, const ColourStyles& colours = kColours) : colours_(colours) {
    const Styles styles = StylesOfRun(text, colours_);
    editor_.SetText(std::move(text));
    editor_.SetStyles(0, styles);
  }
  void Replace(std::size_t offset, std::size_t length, std::string_view text) {
    editor_.Select(offset, length);
    editor_.SetSelText(text);
    ColourEdited(editor_, colours_, editor_.EditedFrom(), editor_.EditedTo());
  }
  void Type(std::size_t offset, std::string_view text) {
    for (const char character : text) Replace(offset++, 0, std::string_view(&character, 1));
  }
  std::size_t Length() const { return editor_.Length(); }
  const std::string& Text() const { return editor_.Text(); }
  std::string Paint() const {
    Styles styles(editor_.Length());
    editor_.CopyStyles(0, styles.size(), styles.data());
    return Drawn(styles);
  }
  std::string PaintOfRun() const { return Drawn(StylesOfRun(editor_.Text(), colours_)); }

 private:
  MlnEditor editor_;
  ColourStyles colours_;
};

TEST(EditedColouring, ATagTakesItsColourWhenItIsClosed) {
  Typist typist("a b");
  typist.Type(2, "<i");
  EXPECT_EQ(typist.Paint(), ".....");
  typist.Type(4, ">");
  EXPECT_EQ(typist.Paint(), "..ttt.");
}

TEST(EditedColouring, ATagThatLosesItsBeginningIsPlainAgain) {
  Typist typist("a<b c=d>e<i>");
  typist.Replace(1, 1, "");
  EXPECT_EQ(typist.Text(), "ab c=d>e<i>");
  EXPECT_EQ(typist.Paint(), "........ttt");
}

TEST(EditedColouring, ATagThatLosesItsEndRunsOnToTheNext) {
  Typist typist("<b>x</b>y");
  typist.Replace(2, 1, "");
  EXPECT_EQ(typist.Paint(), "ttttttt.");
}

TEST(EditedColouring, TypedValuesTakeTheirColour) {
  Typist typist("<a>x");
  typist.Type(2, " b=\"c");
  EXPECT_EQ(typist.Paint(), "ttttttvt.");
  typist.Type(7, "\"");
  EXPECT_EQ(typist.Paint(), "ttttttvtt.");
}

TEST(EditedColouring, AKeywordInACommentAppearsAndGoes) {
  Typist typist("<!-- ne -->");
  typist.Type(7, "w");
  EXPECT_EQ(typist.Paint(), "cccccKKKKcc.");
  typist.Type(6, "x");
  EXPECT_EQ(typist.Paint(), "cccccccccccc.");
}

TEST(EditedColouring, ACommentThatIsOpenedRunsUpToTheNextEnd) {
  Typist typist("a <b>c</b> <!-- d -->");
  typist.Type(2, "<!-");
  EXPECT_EQ(typist.Paint(), ".." + std::string(21, 'c') + ".");
  typist.Type(5, "->");
  EXPECT_EQ(typist.Paint(), typist.PaintOfRun());
}

// A whole run would leave all that follows plain; here only the tag that the opening ran into on the way turns plain.
TEST(EditedColouring, AnOpenCommentDoesNotTakeTheColoursBehindItAway) {
  Typist typist("a <b>c</b>");
  typist.Type(2, "<!-");
  EXPECT_EQ(typist.Paint(), ".........tttt");
  EXPECT_EQ(typist.PaintOfRun(), ".............");
}

TEST(EditedColouring, AnOpenCommentIsPaintedWhenItIsClosedFarBehind) {
  Typist typist("a <b>c</b> > d <i>");
  typist.Type(2, "<!--");
  typist.Type(17, "-->");
  EXPECT_EQ(typist.Text(), "a <!--<b>c</b> > -->d <i>");
  EXPECT_EQ(typist.Paint(), "..ccccccccccccccccc...ttt");
}

TEST(EditedColouring, WhatAnOpenCommentHeldBackIsPaintedWhenItsOpeningGoes) {
  Typist typist("a <!-- <b>c</b>");
  EXPECT_EQ(typist.Paint(), "...............");
  typist.Replace(2, 5, "");
  EXPECT_EQ(typist.Paint(), "..ttt.tttt");
}

TEST(EditedColouring, ATagOverSeveralLinesIsClosedLinesLater) {
  Typist typist("x <table\r\nborder=1\r\nwidth=2");
  typist.Type(typist.Length(), ">");
  EXPECT_EQ(typist.Paint(), typist.PaintOfRun());
  EXPECT_EQ(typist.Paint().back(), 't');
}

TEST(EditedColouring, ColoursThatLookAlikeAreRightToo) {
  Typist sameAsText("<!-- a --> <b c=d>", {0, 2, 3, MlnEditor::kBold});
  sameAsText.Type(6, "x>");
  EXPECT_EQ(sameAsText.Paint(), sameAsText.PaintOfRun());
  Typist sameAsTags("<!-- a --> <b c=d>", {1, 2, 1, MlnEditor::kBold});
  sameAsTags.Type(3, ">");
  EXPECT_EQ(sameAsTags.Paint(), sameAsTags.PaintOfRun());
}

constexpr std::array<std::string_view, 20> kPieces = {"<",    "a",   "b=\"x\"", "x=y",  " ",    "new ",          "int ",
                                                      "<!--", "-->", "->",      ">",    "\r\n", "<b>",           "</b>",
                                                      "--",   "\"",  "=",       "word", "<-",   "<!-- for x -->"};

// Every "<" finds its end in the tail, which is never edited.
constexpr std::string_view kTail = "<p>-->";

void TypeAtRandom(unsigned seed, const ColourStyles& colours) {
  std::mt19937 random(seed);
  const auto below = [&random](std::size_t limit) { return random() % limit; };
  const auto soup = [&](std::size_t pieces) {
    std::string text;
    for (std::size_t i = 0; i < pieces; ++i) text += kPieces[below(kPieces.size())];
    return text;
  };
  Typist typist(soup(below(40)) + std::string(kTail), colours);
  for (int edit = 0; edit < 40; ++edit) {
    const std::size_t reach = typist.Length() - kTail.size(), offset = below(reach + 1);
    const std::size_t length = below(3) == 0 ? below(std::min<std::size_t>(reach - offset, 12) + 1) : 0;
    const std::string before = typist.Text(), inserted = soup(below(3));
    typist.Replace(offset, length, inserted);
    ASSERT_EQ(typist.Paint(), typist.PaintOfRun())
        << "seed " << seed << ", " << length << " characters at " << offset << " give way to " << inserted << " in " << before;
  }
}

TEST(EditedColouring, ColoursAreThoseOfAWholeRunBehindAnyEdit) {
  constexpr ColourStyles kChoices[] = {kColours, {1, 0, 3, MlnEditor::kBold}, {1, 1, 3, MlnEditor::kBold}, {1, 3, 3, MlnEditor::kBold}};
  for (unsigned seed = 0; seed < 800; ++seed) TypeAtRandom(seed, kChoices[seed % std::size(kChoices)]);
}

TEST(EditedColouring, OneKeyInALongTextReadsOnlyItsSurroundings) {
  std::string text;
  while (text.size() < 8'000'000) text += "<b>tekst</b> ";
  Typist typist(std::move(text));
  for (int key = 0; key < 20'000; ++key) typist.Replace(4'000'001, 0, "x");
  EXPECT_EQ(typist.Paint(), typist.PaintOfRun());
}

}  // namespace
}  // namespace morlan
