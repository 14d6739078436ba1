#include "tags/cfcol.h"

#include <gtest/gtest.h>

#include "tests/support/testprogram.h"

namespace morlan {
namespace {

TEST(CfCol, WritesItsAttributesInOrder) {
  EXPECT_EQ(CfColText({.header = std::string("Imię"_pl), .text = "#imie#", .align = "LEFT", .width = "20"}),
            " HEADER=\"Imię\" TEXT=\"#imie#\" ALIGN=\"LEFT\" WIDTH=\"20\""_pl);
  EXPECT_EQ(CfColText({}), "");
}

TEST(CfCol, OffersThreeAlignments) {
  TestProgram test;
  EXPECT_EQ(CFCOL(test.program).align.Rows(), (std::vector<std::string>{"LEFT", "CENTER", "RIGHT"}));
}

TEST(CfCol, ReadsTheTag) {
  TestProgram test;
  CFCOL form(test.program);
  form.Read("<cfcol width=20 align=center text=\"a b\" header=\"c d\"");
  EXPECT_EQ(form.Result(), " HEADER=\"c d\" TEXT=\"a b\" ALIGN=\"CENTER\" WIDTH=\"20\"");
}

TEST(CfCol, AVariableLosesItsFirstSignOnPurpose) {
  TestProgram test;
  CFCOL form(test.program);
  form.Read("<CFCOL TEXT=\"#imie#\"");
  EXPECT_EQ(form.text_.Text(), "imie#");
}

}  // namespace
}  // namespace morlan
