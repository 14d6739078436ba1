#include "tags/tagscan.h"

#include <gtest/gtest.h>

#include "core/text.h"

namespace morlan {
namespace {

using Reader = std::string (*)(std::string_view tag, std::string_view name);

struct Reading {
  std::string_view tag, name, value;
};

void ExpectReadings(Reader reader, std::initializer_list<Reading> readings) {
  for (const Reading& reading : readings)
    EXPECT_EQ(reader(reading.tag, reading.name), reading.value) << reading.tag << " / " << reading.name;
}

std::string TagWithAttributeAt(std::size_t position, std::string_view attribute) {
  std::string tag = "<X";
  tag.resize(position - 1, '.');
  return Concat({tag, " ", attribute});
}

TEST(GetTagName, EndsAtTheFirstBlankOrClosingMark) {
  EXPECT_EQ(GetTagName("<HR>"), "HR");
  EXPECT_EQ(GetTagName("<A HREF=x>"), "A");
  EXPECT_EQ(GetTagName("</B>"), "/B");
  EXPECT_EQ(GetTagName("<Font"), "Font");
}

TEST(GetTagName, TakesALineEndForAPartOfTheNameOnPurpose) { EXPECT_EQ(GetTagName("<TABLE\r\nBORDER=1>"), "TABLE\r\nBORDER=1"); }

TEST(GetTagName, IsEmptyWhereThereIsNone) {
  EXPECT_EQ(GetTagName(""), "");
  EXPECT_EQ(GetTagName("<"), "");
  EXPECT_EQ(GetTagName("<>"), "");
}

TEST(GetTagParam, ReadsShortValues) {
  ExpectReadings(GetTagParam, {
                                  {"<HR NOSHADE", "NOSHADE", "true"},
                                  {"<HR WIDTH=50%", "width", "50%"},
                                  {"<FONT SIZE=+1 FACE=x", "SIZE", "+1"},
                                  {"<FONT size=+1 FACE=x", "SIZE", "+1"},
                                  {"<FONT FACE=\"Arial CE\" SIZE=2", "FACE", "Arial CE"},
                                  {"<FONT FACE=\"Arial CE\">", "FACE", "Arial CE"},
                                  {"<TD ALIGN=\"left\"", "VALIGN", ""},
                                  {"<HR", "WIDTH", ""},
                                  {"<INPUT VALUE=\"\"", "VALUE", ""},
                              });
}

TEST(GetTagParam, DoesNotSeeAValueBehindBlanksOnPurpose) { EXPECT_EQ(GetTagParam("<TD WIDTH = 5", "WIDTH"), "true"); }

TEST(GetTagParam, SkipsALongerNameButNotOneWithADigit) {
  EXPECT_EQ(GetTagParam("<FONT COLORX=1 COLOR=red", "COLOR"), "red");
  EXPECT_EQ(GetTagParam("<FONT COLOR2=1", "COLOR"), "1");
}

TEST(GetTagParam, RemovesOneNumberSignOfAnyAttribute) {
  EXPECT_EQ(GetTagParam("<FONT COLOR=#FF0000", "COLOR"), "FF0000");
  EXPECT_EQ(GetTagParam("<FONT COLOR=\"#FF0000\"", "COLOR"), "FF0000");
  EXPECT_EQ(GetTagParam("<FONT COLOR=##1", "COLOR"), "#1");
  EXPECT_EQ(GetTagParam("<A HREF=#dol", "HREF"), "dol");
}

TEST(GetTagParam, EndsAQuotedValueAtAClosingMark) { EXPECT_EQ(GetTagParam("<IMG ALT=\"a>b\" WIDTH=1", "ALT"), "a"); }

TEST(GetTagParam, KeepsSingleQuotes) { EXPECT_EQ(GetTagParam("<TD ALIGN='left'", "ALIGN"), "'left'"); }

TEST(GetTagParam, FindsCharsetBehindAnyCharacter) {
  EXPECT_EQ(GetTagParam("text/html;CHARSET=iso-8859-2", "charset"), "iso-8859-2");
  EXPECT_EQ(GetTagParam("text/html; charset=windows-1250", "charset"), "windows-1250");
  EXPECT_EQ(GetTagParam("text/html;CHARSET=\"Win1250", "charset"), "Win1250");
}

TEST(GetTagParam, DoesNotSeeAttributesThatBeginBehindThe500thCharacter) {
  EXPECT_EQ(GetTagParam(TagWithAttributeAt(500, "SIZE=3"), "SIZE"), "3");
  EXPECT_EQ(GetTagParam(TagWithAttributeAt(501, "SIZE=3"), "SIZE"), "");
}

TEST(GetTagTextParam, ReadsWhatStandsBetweenTheNextTwoMarks) {
  ExpectReadings(GetTagTextParam, {
                                      {"<IMG SRC=\"a b.gif\" ALT=\"x\"", "SRC", "a b.gif"},
                                      {"<IMG SRC=\"a.gif\" ALT=\"dwa s\"", "alt", "dwa s"},
                                      {"<IMG SRC=\"\" ALT=\"x\"", "SRC", ""},
                                      {"<IMG ALT=\"x\"", "SRC", ""},
                                  });
}

TEST(GetTagTextParam, ReadsAnUnquotedValueWronglyOnPurpose) {
  EXPECT_EQ(GetTagTextParam("<IMG SRC=a.gif ALT=\"x\">", "SRC"), "x");
  EXPECT_EQ(GetTagTextParam("<IMG SRC=a.gif>", "SRC"), "");
  EXPECT_EQ(GetTagTextParam("<IMG SRC=a.gif", "SRC"), "");
}

TEST(GetTagTextParam, TakesTheFrontOfALongerNameForTheName) { EXPECT_EQ(GetTagTextParam("<IMG SRCSET=\"x\" SRC=\"y\"", "SRC"), "x"); }

TEST(GetTagTextParam, IsTrueOnlyForANameAtTheVeryEnd) {
  EXPECT_EQ(GetTagTextParam("<TD NOWRAP", "NOWRAP"), "true");
  EXPECT_EQ(GetTagTextParam("<TD NOWRAP ", "NOWRAP"), "");
}

TEST(GetTagTextParam, SeesAttributesAtAnyDepth) { EXPECT_EQ(GetTagTextParam(TagWithAttributeAt(5000, "ALT=\"x\""), "ALT"), "x"); }

TEST(GetTagLinkParam, ReadsLinksAndKeepsTheMarkOfALabel) {
  ExpectReadings(GetTagLinkParam, {
                                      {"<A HREF=\"strona.html\"", "href", "strona.html"},
                                      {"<A HREF=\"strona.html\" TARGET=\"x\"", "href", "strona.html"},
                                      {"<A HREF=\"#dol\"", "href", "#dol"},
                                      {"<A HREF=strona.html", "href", "strona.html"},
                                      {"<A NAME=\"x\"", "href", ""},
                                      {"<A HREF", "href", "true"},
                                      {"<A HREF=", "href", ""},
                                  });
}

TEST(GetTagLinkParam, StopsAtTheSecondMarkOnlyOnPurpose) {
  EXPECT_EQ(GetTagLinkParam("<A HREF=a.html TARGET=\"x\" ID=y", "href"), "a.html TARGET=\"x");
}

TEST(GetTagLinkParam, WantsNoLetterOnEitherSideOfTheName) {
  EXPECT_EQ(GetTagLinkParam("<A XHREF=\"a\" HREFX=\"b\" HREF=\"c\"", "href"), "c");
  EXPECT_EQ(GetTagLinkParam("<A 1HREF=\"a\"", "href"), "a");
}

TEST(GetTagLinkParam, DoesNotSeeAttributesThatBeginBehindThe500thCharacter) {
  EXPECT_EQ(GetTagLinkParam(TagWithAttributeAt(499, "href=\"x\""), "href"), "x");
  EXPECT_EQ(GetTagLinkParam(TagWithAttributeAt(500, "href=\"x\""), "href"), "");
}

TEST(FindTagAt, FindsTheTagRoundTheCaret) {
  const std::string_view text = "ab<IMG SRC=x>cd";
  for (std::size_t caret = 3; caret <= 13; ++caret) {
    const FoundTag found = FindTagAt(text, caret);
    EXPECT_EQ(found.start, 3u) << caret;
    EXPECT_EQ(found.text, "<IMG SRC=x") << caret;
  }
}

TEST(FindTagAt, GivesACaretBetweenTwoTagsToTheOneBefore) {
  const FoundTag found = FindTagAt("<B>x</B> tekst <I>", 11);
  EXPECT_EQ(found.start, 5u);
  EXPECT_EQ(GetTagName(found.text), "/B");
}

TEST(FindTagAt, FindsNothingWithoutAMarkOnEitherSide) {
  EXPECT_EQ(FindTagAt("<B>", 0).start, 0u);
  EXPECT_EQ(FindTagAt("tekst <B>", 3).start, 0u);
  EXPECT_EQ(FindTagAt("<B> tekst", 6).start, 0u);
  EXPECT_EQ(FindTagAt("", 0).start, 0u);
}

TEST(FindTagAt, TakesAMarkInACommentForATagOnPurpose) { EXPECT_EQ(FindTagAt("<!-- a < b -->", 10).start, 8u); }

}  // namespace
}  // namespace morlan
