#include "tags/metatags.h"

#include <gtest/gtest.h>

#include "core/text.h"
#include "tests/support/testprogram.h"

namespace morlan {
namespace {

constexpr std::string_view kNew = "<META NAME=\"Author\" CONTENT=\"Ala\">";

std::string WithAuthor(std::string_view text) { return SetMetaInText(std::string(text), "NAME", "Author", "Ala"); }

TEST(GetMetaContentOfText, FindsAnySpellingAndAnswersInLowerCase) {
  EXPECT_EQ(GetMetaContentOfText("<Meta Name=\"Author\" Content=\"Ala Kowal\">", "AUTHOR"), "ala kowal");
  EXPECT_EQ(GetMetaContentOfText("<META HTTP-EQUIV=\"Content-Type\" CONTENT=\"text/html; CHARSET=ISO-8859-2\">", "content-type"),
            "text/html; charset=iso-8859-2");
}

TEST(GetMetaContentOfText, GoesOnPastOtherTags) {
  EXPECT_EQ(GetMetaContentOfText("<meta name=\"a\" content=\"1\"><meta name=\"b\" content=\"2\">", "b"), "2");
  EXPECT_EQ(GetMetaContentOfText("<meta name=\"a\" content=\"1\">", "b"), "");
  EXPECT_EQ(GetMetaContentOfText("", "b"), "");
}

TEST(GetMetaContentOfText, WantsTheEqualsSignRightBehindContent) {
  EXPECT_EQ(GetMetaContentOfText("<meta name=\"a\" content = \"1\">", "a"), "");
}

TEST(GetMetaContentOfText, DoesNotReadAnUnquotedContentOnPurpose) { EXPECT_EQ(GetMetaContentOfText("<meta name=a content=1>", "a"), ""); }

TEST(GetMetaContentOfText, StopsAtATagWithoutAnEnd) { EXPECT_EQ(GetMetaContentOfText("<meta name=\"a\" content=\"1\"", "a"), ""); }

TEST(GetUpperCaseMetaContent, SeesOnlyUpperCaseTagsOnPurpose) {
  EXPECT_EQ(GetUpperCaseMetaContent("<META NAME=\"a\" CONTENT=\"Tak\">", "A"), "Tak");
  EXPECT_EQ(GetUpperCaseMetaContent("<meta name=\"a\" content=\"Tak\">", "a"), "");
}

TEST(GetMetaContent, LooksInTheActiveDocument) {
  TestProgram test;
  test.OpenText("<META NAME=\"Author\" CONTENT=\"Ala\">");
  EXPECT_EQ(GetMetaContent(test.program, "author"), "Ala");
}

TEST(SetMetaInText, ReplacesTheTagOfThatName) {
  EXPECT_EQ(WithAuthor("<head><meta name=\"AUTHOR\" content=\"x\"></head>"), Concat({"<head>", kNew, "</head>"}));
  EXPECT_EQ(WithAuthor("<head><meta http-equiv=author></head>"), Concat({"<head>", kNew, "</head>"}));
}

TEST(SetMetaInText, InsertsBehindTheHead) {
  EXPECT_EQ(WithAuthor("<html><head><title></title></head>"), Concat({"<html><head>\r\n ", kNew, "<title></title></head>"}));
  EXPECT_EQ(WithAuthor("<HEAD>\r\n<TITLE>"), Concat({"<HEAD>\r\n ", kNew, "\r\n<TITLE>"}));
}

TEST(SetMetaInText, NeverCutsALineEndOrATagApart) {
  EXPECT_EQ(WithAuthor("<head profile=\"x\">\r\n"), Concat({"<head profile=\"x\">\r\n ", kNew, "\r\n"}));
  EXPECT_EQ(WithAuthor("<html lang=pl>\r\n<header>"), Concat({"<html lang=pl><HEAD>\r\n ", kNew, "\r\n</HEAD>\r\n<header>"}));
}

TEST(SetMetaInText, MakesAHeadBehindHtml) {
  EXPECT_EQ(WithAuthor("<html>\r\n<body>"), Concat({"<html><HEAD>\r\n ", kNew, "\r\n</HEAD>\r\n<body>"}));
}

TEST(SetMetaInText, MakesAPageOfATextWithoutHtml) {
  EXPECT_EQ(WithAuthor("abc"), Concat({"<HTML><HEAD>\r\n ", kNew, "\r\n</HEAD>\r\nabc\r\n</HTML>"}));
  EXPECT_EQ(WithAuthor(""), Concat({"<HTML><HEAD>\r\n ", kNew, "\r\n</HEAD>\r\n\r\n</HTML>"}));
}

TEST(SetMetaInText, LeavesOtherTagsWithTheWordAlone) {
  EXPECT_EQ(WithAuthor("<head><p>meta <a name=\"author\">x"), Concat({"<head>\r\n ", kNew, "<p>meta <a name=\"author\">x"}));
}

TEST(SetMetaInText, IsOnePassOverAnyText) {
  std::string manyOpen;
  for (int i = 0; i < 200000; ++i) manyOpen += "<meta";
  EXPECT_NE(WithAuthor(manyOpen + ">").find(kNew), std::string::npos);
  std::string manyWords;
  for (int i = 0; i < 200000; ++i) manyWords += "META ";
  EXPECT_EQ(GetUpperCaseMetaContent(manyWords + ">", "x"), "");
  EXPECT_NE(WithAuthor(manyWords + ">").find(kNew), std::string::npos);
}

class SetMetaInDocument : public testing::Test {
 protected:
  void Open(std::string_view text, std::size_t caret) {
    test_.OpenText(text);
    test_.program.ActiveEditor->Select(caret, 0);
    SetMeta(test_.program, "NAME", "Author", "Ala");
  }
  void Undo() { test_.program.ActiveDocument->UNDO.DoUndo(*test_.program.ActiveDocument); }
  std::size_t Caret() const { return test_.program.ActiveEditor->SelStart(); }
  TestProgram test_;
};

TEST_F(SetMetaInDocument, MovesTheCaretByTheDifferenceBehindAReplacedTag) {
  Open("<head><meta name=\"author\"></head>x", 33);
  EXPECT_EQ(test_.Text(), Concat({"<head>", kNew, "</head>x"}));
  EXPECT_EQ(Caret(), 33 - 20 + kNew.size());
}

TEST_F(SetMetaInDocument, LeavesTheCaretInFrontOfAReplacedTag) {
  Open("<head><meta name=\"author\"></head>x", 3);
  EXPECT_EQ(Caret(), 3u);
}

TEST_F(SetMetaInDocument, CanBeUndone) {
  Open("<head><meta name=\"author\"></head>x", 0);
  Undo();
  EXPECT_EQ(test_.Text(), "<head><meta name=\"author\"></head>x");
  Open("<head></head>", 0);
  Undo();
  EXPECT_EQ(test_.Text(), "<head></head>");
  Open("abc", 0);
  for (int i = 0; i < 3; ++i) Undo();
  EXPECT_EQ(test_.Text(), "abc");
}

TEST_F(SetMetaInDocument, MovesTheCaretByWhatIsInsertedBeforeIt) {
  Open("<html><head></head>abc", 20);
  EXPECT_EQ(Caret(), 20 + 3 + kNew.size());
  Open("abc", 1);
  EXPECT_EQ(test_.Text().substr(Caret()), "bc\r\n</HTML>");
}

TEST_F(SetMetaInDocument, WritingTheSameContentIsNoChange) {
  Open(Concat({"<head>", kNew, "</head>"}), 0);
  EXPECT_EQ(test_.program.ActiveDocument->UNDO.Count(), 0u);
  EXPECT_FALSE(test_.program.ActiveDocument->IsModified());
}

TEST_F(SetMetaInDocument, ColoursTheTag) {
  Open("<head></head>", 0);
  EXPECT_EQ(test_.program.ActiveEditor->ColourOfStyle(test_.program.ActiveEditor->StyleAt(9)), test_.program.tagState.TagsColor);
}

}  // namespace
}  // namespace morlan
