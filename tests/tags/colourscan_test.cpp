#include "tags/colourscan.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "tags/keywords.h"

namespace morlan {
namespace {

// The paint of each character: "." nothing, "t" a tag, "v" a value, "c" a comment, "K" a keyword.
std::string PaintOf(std::string_view text) {
  constexpr ColourStyles kColours = {'t', 'v', 'c', 'K'};
  std::vector<std::uint8_t> styles(text.size(), '.');
  PaintText(text, kColours, styles.data());
  return {styles.begin(), styles.end()};
}

struct PaintCase {
  std::string_view text, paint;
};

void ExpectPaint(std::initializer_list<PaintCase> cases) {
  for (const PaintCase& row : cases) EXPECT_EQ(PaintOf(row.text), row.paint) << row.text;
}

TEST(ColourScan, PaintsTagsAndLeavesTheTextBetweenThem) {
  ExpectPaint({
      {"ab<B>c</B>d", "..ttt.tttt."},
      {"<!DOCTYPE x>", "tttttttttttt"},
      {"a > b", "....."},
      {"", ""},
  });
}

TEST(ColourScan, PaintsValuesBetweenTheirQuotesOrUpToABlank) {
  ExpectPaint({
      {"<A HREF=\"x y\">", "tttttttttvvvtt"},
      {"<A HREF=x y>", "ttttttttvttt"},
      {"<A B=x>", "tttttvt"},
      {"<A B=\"\" C=d>", "ttttttttttvt"},
      {"<A B= C=d>", "ttttttttvt"},
      {"<A B='x y'>", "tttttvvtttt"},
      {"<A B=\"x>y", "ttttttvt."},
      {"<A =>", "ttttt"},
      {"<A =\">", "tttttt"},
  });
}

TEST(ColourScan, APlainTagHasNoValues) { EXPECT_EQ(PaintOf("<TD NOWRAP>"), "ttttttttttt"); }

TEST(ColourScan, AnEqualsSignInsideAQuotedValueIsNoNewValue) { EXPECT_EQ(PaintOf("<A B=\"c=d e\" F=g>"), "ttttttvvvvvttttvt"); }

TEST(ColourScan, ALineEndDoesNotEndAValueOnPurpose) { EXPECT_EQ(PaintOf("<A B=x\r\nC=y>"), "tttttvvvvvvt"); }

TEST(ColourScan, BothFormsOfACommentAreCommentsAndTheirLastMarkIsNotPainted) {
  ExpectPaint({
      {"<!-- x -->", "ccccccccc."},
      {"<-- x -->", "cccccccc."},
      {"<!- x ->", "ccccccc."},
      {"<!->", "ccc."},
      {"<!x-- y>", "tttttttt"},
  });
}

TEST(ColourScan, TagsInACommentBelongToIt) { EXPECT_EQ(PaintOf("<!-- <b> -->\r\n<i>"), "ccccccccccc...ttt"); }

TEST(ColourScan, ACommentEndsAtTheFirstArrow) { EXPECT_EQ(PaintOf("<!-- x->y -->"), "ccccccc......"); }

TEST(ColourScan, NothingIsPaintedFromAnOpenTokenOn) {
  ExpectPaint({
      {"<b>x<a href", "ttt........"},
      {"<b>x<!-- <i> </i>", "ttt.............."},
      {"<<<<", "...."},
  });
}

TEST(ColourScan, ATagGoesOnToTheNextClosingMarkWhateverLiesBetween) { EXPECT_EQ(PaintOf("<a <b>c"), "tttttt."); }

TEST(ColourScan, KeywordsInCommentsTakeTheirBlankAlong) {
  ExpectPaint({
      {"<!-- new -->", "cccccKKKKcc."},
      {"<!-- NeW -->", "cccccKKKKcc."},
      {"<!--new-->", "ccccccccc."},
      {"<!-- new\t-->", "ccccccccccc."},
      {"new <b>", "....ttt"},
  });
}

TEST(ColourScan, AKeywordIsFoundAsTheTailOfAWordOnPurpose) { EXPECT_EQ(PaintOf("<!-- print -->"), "cccccccKKKKcc."); }

TEST(ColourScan, TheLongestOfSeveralKeywordsShows) {
  // "throws " alone, and "double " with "le " no keyword of its own.
  EXPECT_EQ(PaintOf("<!--throws double ->"), "ccccKKKKKKKKKKKKKKc.");
}

TEST(ColourScan, MisspeltKeywordsStand) {
  EXPECT_EQ(KeywordAtEnd("finaly"), 6u);
  EXPECT_EQ(KeywordAtEnd("finally"), 0u);
}

TEST(ColourScan, EveryKeywordIsFound) {
  for (const std::string_view keyword : kJavaKeywords) EXPECT_GE(KeywordAtEnd(keyword), keyword.size()) << keyword;
  EXPECT_EQ(KeywordAtEnd("instanceof"), 10u);
  EXPECT_EQ(KeywordAtEnd("x"), 0u);
  EXPECT_EQ(KeywordAtEnd(""), 0u);
}

TEST(ColourScan, TheKeywordPassIsThatOfASearchForEachKeyword) {
  const std::string run = "<!-- int print Do undo if x; throws  synchronized implements throw s null nul -";
  std::string low, wanted(run.size(), '.');
  for (const char character : run) low += character >= 'A' && character <= 'Z' ? static_cast<char>(character + 32) : character;
  for (const std::string_view keyword : kJavaKeywords) {
    std::string key;
    for (const char character : keyword) key += static_cast<char>(character + 32);
    key += ' ';
    for (std::size_t hit = low.find(key); hit != std::string::npos; hit = low.find(key, hit + 1))
      wanted.replace(hit, key.size(), key.size(), 'K');
  }
  std::string painted(run.size(), '.');
  PaintKeywords(run, 'K', reinterpret_cast<std::uint8_t*>(painted.data()));
  EXPECT_EQ(painted, wanted);
}

// In a tag of more than 999,999 characters a missing mark's place lies in front of the tag's end.
TEST(ColourScan, AValueWithoutItsMarkEndsAtTheMillionthCharacterOnPurpose) {
  const std::string tag = "<A B=" + std::string(1'200'000, 'x') + ">";
  const std::string paint = PaintOf(tag);
  EXPECT_EQ(paint.find_last_of('v'), 999'997u);
  EXPECT_EQ(paint[999'998], 't');
  EXPECT_EQ(paint.back(), 't');
}

TEST(ColourScan, AnEqualsSignBehindThatPlaceEndsTheTagsValues) {
  const std::string tag = "<A " + std::string(1'100'000, 'x') + "=" + std::string(10, 'y') + ">";
  EXPECT_EQ(PaintOf(tag).find('v'), std::string::npos);
}

TEST(ColourScan, TellsThePercentageInStepsOfMoreThanFive) {
  std::string text;
  for (int i = 0; i < 100; ++i) text += "<b>xxxxxxx";
  std::vector<std::uint8_t> styles(text.size());
  std::vector<int> told;
  PaintText(text, {1, 2, 3, 4}, styles.data(), [&told](int percent) { told.push_back(percent); });
  // The place behind the last tag is none, which counts as 0.
  EXPECT_EQ(told, (std::vector<int>{6, 12, 18, 24, 30, 36, 42, 48, 54, 60, 66, 72, 78, 84, 90, 96, 0}));
}

TEST(ColourScan, TellsNothingOfATextWithoutTags) {
  std::vector<int> told;
  std::uint8_t styles[3] = {};
  PaintText("abc", {1, 2, 3, 4}, styles, [&told](int percent) { told.push_back(percent); });
  EXPECT_TRUE(told.empty());
}

TEST(ColourScan, ManyOpenMarksAndOneLongLineAreOnePass) {
  EXPECT_EQ(PaintOf(std::string(100'000, '<')).find('t'), std::string::npos);
  const std::string equals = "<" + std::string(3'000'000, '=') + ">";
  EXPECT_EQ(PaintOf(equals).back(), 't');
  EXPECT_EQ(PaintOf(std::string(3'000'000, 'a')), std::string(3'000'000, '.'));
}

}  // namespace
}  // namespace morlan
