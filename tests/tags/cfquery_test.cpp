#include "tags/cfquery.h"

#include <gtest/gtest.h>

#include "tests/support/testprogram.h"

namespace morlan {
namespace {

TEST(CfQuery, WritesItsAttributesInOrder) {
  EXPECT_EQ(CfQueryText({.dataSource = "Sklep", .name = "towary"}), " DATASOURCE=\"Sklep\" NAME=\"towary\"");
}

TEST(CfQuery, AnEmptyNameLeavesTheDataSourceAlone) { EXPECT_EQ(CfQueryText({.dataSource = "Sklep"}), " DATASOURCE=\"Sklep\""); }

TEST(CfQuery, AnEmptyDialogWritesNothing) { EXPECT_EQ(CfQueryText({}), ""); }

TEST(CfQuery, ReadsTheTag) {
  TestProgram test;
  CFQUERY form(test.program);
  form.Read("<cfquery name=towary datasource=\"Sklep z zabawkami\"");
  EXPECT_EQ(form.text_0.Text(), "Sklep z zabawkami");
  EXPECT_EQ(form.text_1.Text(), "towary");
  form.Read("<CFQUERY");
  EXPECT_EQ(form.text_0.Text() + form.text_1.Text(), "");
}

}  // namespace
}  // namespace morlan
