#include "tags/scripttag.h"

#include <gtest/gtest.h>

#include "tests/support/testprogram.h"

namespace morlan {
namespace {

constexpr std::string_view kAll = " LANGUAGE=\"VBScript\" SOURCE=\"a b.vbs\" RUNAT=\"server\"";

TEST(ScriptTag, WritesItsAttributesInOrder) {
  EXPECT_EQ(ScriptText({.language = "VBScript", .source = "a b.vbs", .runAt = "server"}), kAll);
  EXPECT_EQ(ScriptText({}), "");
}

TEST(ScriptTag, ReadsTheTag) {
  TestProgram test;
  Script form(test.program);
  form.Read("<script runat=server source=\"a b.vbs\" language=VBScript");
  EXPECT_EQ(form.Result(), kAll);
}

TEST(ScriptTag, TheUsualNameOfTheFilesAttributeIsNotReadOnPurpose) {
  TestProgram test;
  Script form(test.program);
  form.Read("<SCRIPT LANGUAGE=\"JavaScript\" SRC=\"a.js\"");
  EXPECT_EQ(form.Result(), " LANGUAGE=\"JavaScript\"");
}

TEST(ScriptTag, ANewDialogHoldsTheLastEntriesOfItsLists) {
  TestProgram test;
  test.Write("program\\Listy\\Language.lst", "VBScript\r\nJavaScript\r\n");
  test.Write("program\\Listy\\RunAt.lst", "server\r\n");
  EXPECT_EQ(Script(test.program).Result(), " LANGUAGE=\"JavaScript\" RUNAT=\"server\"");
}

TEST(ScriptTag, TheFileButtonFillsTheSource) {
  TestProgram test;
  test.OpenText("");
  Script form(test.program);
  test.windows.files.push_back(test.Path("work\\a.js"));
  form.sourceFile.UserClicks();
  EXPECT_EQ(form.Source.Text(), "a.js");
}

}  // namespace
}  // namespace morlan
