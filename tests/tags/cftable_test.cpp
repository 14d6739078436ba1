#include "tags/cftable.h"

#include <gtest/gtest.h>

#include "tests/support/testprogram.h"

namespace morlan {
namespace {

TEST(CfTable, WritesItsAttributesInOrder) {
  EXPECT_EQ(CfTableText({.query = "q", .spacing = "1", .headerLines = "2", .maxRows = "3"}),
            " QUERY=\"q\" COLSPACING=\"1\" HEADERLINES=\"2\" MAXROWS=\"3\"");
}

TEST(CfTable, BothBoxesEndTheAttributes) {
  EXPECT_EQ(CfTableText({.query = "q", .columnHeaders = true, .htmlTable = true}), " QUERY=\"q\" COLHEADERS HTMLTABLE");
}

TEST(CfTable, ANumberOfZeroIsWritten) {
  EXPECT_EQ(CfTableText({.spacing = "0", .columnHeaders = false, .htmlTable = true}), " COLSPACING=\"0\" HTMLTABLE");
}

TEST(CfTable, ReadsTheTag) {
  TestProgram test;
  CFTable form(test.program);
  form.Read("<cftable query=\"q\" colspacing=1 headerlines=2 maxrows=3 colheaders htmltable");
  EXPECT_EQ(form.Result(), " QUERY=\"q\" COLSPACING=\"1\" HEADERLINES=\"2\" MAXROWS=\"3\" COLHEADERS HTMLTABLE");
  form.Read("<CFTABLE QUERY=\"q\"");
  EXPECT_EQ(form.Result(), " QUERY=\"q\"");
}

TEST(CfTable, OnlyAFlagWithoutAValueOrTrueIsTicked) {
  TestProgram test;
  CFTable form(test.program);
  form.Read("<CFTABLE COLHEADERS=\"Yes\" HTMLTABLE=TRUE");
  EXPECT_FALSE(form.colheaders_.Value());
  EXPECT_TRUE(form.htmltable_.Value());
}

}  // namespace
}  // namespace morlan
