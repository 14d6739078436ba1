#include "tags/tagdispatch.h"

#include <gtest/gtest.h>

#include "tests/support/testprogram.h"

namespace morlan {
namespace {

struct DispatchCase {
  std::string_view caption, editor;
};

TEST(TagDispatch, EveryCaptionHasItsEditor) {
  constexpr DispatchCase kCases[] = {
      {"<EMBED>", "EditEmbed"},
      {"<IMG>", "EditImage"},
      {"<A>", "EditAnchor"},
      {"<HR>", "EditLine"},
      {"<BASEFONT>", "EditBaseFont"},
      {"<FONT>", "EditFont"},
      {"<TABLE>", "EditTable"},
      {"<TR>", "EditRow"},
      {"<TH>", "EditCell"},
      {"<TD>", "EditCell"},
      {"<FRAMESET>", "EditFrameSet"},
      {"<FRAME>", "EditFrame"},
      {"<IFRAME>", "EditIFrame"},
      {"<FORM>", "EditForm"},
      {"<CFQUERY>", "EditCfQuery"},
      {"<CFMAIL>", "EditCfMail"},
      {"<CFFILE>", "EditCfFile"},
      {"<CFTABLE>", "EditCfTable"},
      {"<CFCOL>", "EditCfCol"},
      {"<APPLET>", "EditApplet"},
      {"<CHANNEL>", "EditChannel"},
      {"<LOGO>", "EditLogo"},
      {"<TITLE>", "EditChannelTitle"},
      {"<ABSTRACT>", "EditAbstract"},
      {"<AUTHOR>", "EditAuthor"},
      {"<PUBLISHER>", "EditPublisher"},
      {"<COPYRIGHT>", "EditCopyright"},
      {"<KEYWORDS>", "EditKeywords"},
      {"<CATEGORYNAME>", "EditCategoryName"},
      {"<INTROURL>", "EditIntroUrl"},
      {"<MINSTORAGE>", "EditMinStorage"},
      {"<LASTMOD>", "EditLastMod"},
      {"<PUBLICATIONDATE>", "EditPublicationDate"},
      {"<ITEM>", "EditItem"},
      {"<STARTDATE>", "EditStartDate"},
      {"<ENDDATE>", "EditEndDate"},
      {"<BODY>", "EditBody"},
      {"<SCRIPT>", "EditScript"},
  };
  for (const DispatchCase& row : kCases) EXPECT_EQ(EditorOfCaption(row.caption), row.editor) << row.caption;
}

TEST(TagDispatch, TheDescriptionEditorCannotBeReachedOnPurpose) {
  EXPECT_EQ(EditorOfCaption("<DECSCRIPTION>"), "EditDescription");
  EXPECT_EQ(EditorOfCaption("<DESCRIPTION>"), "");
}

TEST(TagDispatch, CaptionsAreComparedExactly) {
  EXPECT_EQ(EditorOfCaption("<img>"), "");
  EXPECT_EQ(EditorOfCaption("</A>"), "");
}

TEST(TagDispatch, CallsAnEditorThatIsThere) {
  TestProgram test(TestProgram::Start::No);
  int calls = 0;
  test.program.tagState.tagEditors.clear();
  test.program.tagState.tagEditors["EditImage"] = [&calls] { ++calls; };
  EXPECT_TRUE(HasTagEditor(test.program, "<IMG>"));
  EXPECT_FALSE(HasTagEditor(test.program, "<FORM>"));
  EXPECT_FALSE(HasTagEditor(test.program, "<P>"));
  EditTag(test.program, "<IMG>");
  EditTag(test.program, "<FORM>");
  EditTag(test.program, "<P>");
  EXPECT_EQ(calls, 1);
}

}  // namespace
}  // namespace morlan
