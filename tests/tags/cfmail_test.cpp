#include "tags/cfmail.h"

#include <gtest/gtest.h>

#include "tests/support/testprogram.h"

namespace morlan {
namespace {

TEST(CfMail, WritesItsAttributesInOrder) {
  EXPECT_EQ(CfMailText({.to = "t", .cc = "c", .from = "f", .query = "q", .subject = "s t"}),
            " TO=\"t\" CC=\"c\" FROM=\"f\" QUERY=\"q\" SUBJECT=\"s t\"");
}

TEST(CfMail, LeavesEmptyAttributesOut) {
  EXPECT_EQ(CfMailText({.to = "t", .subject = "s"}), " TO=\"t\" SUBJECT=\"s\"");
  EXPECT_EQ(CfMailText({}), "");
}

TEST(CfMail, ReadsTheTag) {
  TestProgram test;
  CFMAIL form(test.program);
  form.Read("<CFMAIL TO=\"a@b, c@d\" CC=e@f FROM=g@h QUERY=q SUBJECT=\"Dwa słowa\""_pl);
  EXPECT_EQ(form.MailTo.Text(), "a@b, c@d");
  EXPECT_EQ(form.cc_.Text(), "e@f");
  EXPECT_EQ(form.MailFrom.Text(), "g@h");
  EXPECT_EQ(form.MailQuery.Text(), "q");
  EXPECT_EQ(form.Subject.Text(), "Dwa słowa"_pl);
}

TEST(CfMail, AnUnquotedSubjectReadsWronglyOnPurpose) {
  TestProgram test;
  CFMAIL form(test.program);
  form.Read("<CFMAIL SUBJECT=temat TO=\"a@b\"");
  EXPECT_EQ(form.Subject.Text(), "a@b");
}

TEST(CfMail, AVariableInAShortValueLosesItsFirstSignOnPurpose) {
  TestProgram test;
  CFMAIL form(test.program);
  form.Read("<CFMAIL TO=\"#adres#\" SUBJECT=\"#temat#\"");
  EXPECT_EQ(form.MailTo.Text(), "adres#");
  EXPECT_EQ(form.Subject.Text(), "#temat#");
}

}  // namespace
}  // namespace morlan
