#include "core/modes.h"

#include <gtest/gtest.h>

#include "core/documents.h"
#include "tests/support/testprogram.h"

namespace morlan {
namespace {

struct Modes : testing::Test {
  TestProgram test;
  const Menu& menu() { return test.program.ActiveDocument->menu; }
};

TEST_F(Modes, FollowTheFileTypeOfTheActiveDocument) {
  test.OpenText("kanal", "a.cdf");
  EXPECT_FALSE(test.frame().objectsmenu.Visible());
  EXPECT_TRUE(test.frame().CDFObject.Visible());
  EXPECT_EQ("CDF", test.frame().statusBar.PanelText("mode"));
  test.OpenText("strona", "a.html");
  EXPECT_TRUE(test.frame().objectsmenu.Visible());
  EXPECT_FALSE(test.frame().CDFObject.Visible());
  EXPECT_EQ("HTML", test.frame().statusBar.PanelText("mode"));
}

TEST_F(Modes, DisableTheHtmlMenusForChannels) {
  test.OpenText("kanal", "a.cdf");
  for (const char* name : {"xmn_charsets", "xmnm_tools", "xmnm_insert"}) {
    ASSERT_NE(nullptr, menu().Find(name)) << name;
    EXPECT_FALSE(menu().Find(name)->enabled) << name;
  }
  EXPECT_TRUE(menu().IsChecked("xmn_ModeCdf"));
  EXPECT_FALSE(menu().IsChecked("xmn_ModeHtml"));
}

TEST_F(Modes, SwitchByHandWithoutTouchingTheFileType) {
  TEditor& document = test.OpenText("strona", "a.html");
  test.program.commands.RunMenu("xmn_ModeCdf");
  EXPECT_EQ(Record{"switch cdf"}, test.Asked());
  EXPECT_EQ("html", document.FileType.Caption());
  EXPECT_TRUE(menu().IsChecked("xmn_ModeCdf"));
  test.program.commands.RunMenu("xmn_ModeHtml");
  EXPECT_EQ(Record{"switch html"}, test.Asked());
  EXPECT_TRUE(menu().Find("xmnm_insert")->enabled);
}

TEST_F(Modes, AreToldOnlyWhenTheyChange) {
  SetHtmlMode(test.program);
  EXPECT_EQ(Record{}, test.Asked());
}

TEST_F(Modes, AreMarkedInADocumentThatOpensLater) {
  test.program.commands.RunMenu("xmn_ModeCdf");
  test.OpenText("kanal", "b.cdf");
  EXPECT_TRUE(menu().IsChecked("xmn_ModeCdf"));
}

}  // namespace
}  // namespace morlan
