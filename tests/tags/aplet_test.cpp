#include "tags/aplet.h"

#include <gtest/gtest.h>

#include "tests/support/testprogram.h"

namespace morlan {
namespace {

constexpr std::string_view kAll = " CODE=\"a.class\" CODEBASE=\"kod\" NAME=\"n\" TITLE=\"t u\" ALIGN=\"TOP\" WIDTH=\"1\" HEIGHT=\"2\"";

TEST(ApletTest, WritesItsAttributesInOrder) {
  EXPECT_EQ(ApletText({.code = "a.class", .codebase = "kod", .name = "n", .title = "t u", .align = "TOP", .width = "1", .height = "2"}),
            kAll);
  EXPECT_EQ(ApletText({}), "");
}

TEST(ApletTest, OffersFiveAlignmentsAndTakesOthers) {
  TestProgram test;
  Aplet form(test.program);
  EXPECT_EQ(form.align.Rows(), (std::vector<std::string>{"LEFT", "RIGHT", "TOP", "MIDDLE", "BOTTOM"}));
  form.Read("<APPLET ALIGN=\"absmiddle\"");
  EXPECT_EQ(form.Result(), " ALIGN=\"absmiddle\"");
}

TEST(ApletTest, ReadsTheTag) {
  TestProgram test;
  Aplet form(test.program);
  form.Read("<applet codebase=kod code=a.class height=2 width=1 align=top title=\"t u\" name=n");
  EXPECT_EQ(form.Result(), kAll);
}

TEST(ApletTest, AnUnquotedTitleReadsWronglyOnPurpose) {
  TestProgram test;
  Aplet form(test.program);
  form.Read("<APPLET TITLE=zegar CODE=\"a.class\"");
  EXPECT_EQ(form.title.Text(), "a.class");
}

TEST(ApletTest, TheFileButtonFillsTheCode) {
  TestProgram test;
  test.OpenText("");
  Aplet form(test.program);
  test.windows.files.push_back(test.Path("work\\klasy\\Zegar.class"));
  form.codeFile.UserClicks();
  EXPECT_EQ(form.code.Text(), "klasy/Zegar.class");
}

}  // namespace
}  // namespace morlan
