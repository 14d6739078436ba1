#include "text/projectfiles.h"

#include <gtest/gtest.h>

namespace morlan {
namespace {

using Files = std::vector<std::string>;

TEST(ProjectFiles, NamesLieBelowTheBaseDirectory) {
  EXPECT_EQ(ProjectFiles("[Files]\r\nFileCount=2\r\nBaseDir=c:\\strony\\\r\nFileName1=a.html\r\nFileName2=b\\c.html\r\n"),
            (Files{"c:\\strony\\a.html", "c:\\strony\\b\\c.html"}));
}

TEST(ProjectFiles, AWholePathStandsForItself) {
  EXPECT_EQ(ProjectFiles("[Files]\r\nFileCount=2\r\nBaseDir=c:\\strony\\\r\nFileName1=d:\\x.html\r\nFileName2=\\y.html\r\n"),
            (Files{"d:\\x.html", "\\y.html"}));
}

TEST(ProjectFiles, FreedSlotsAreSkipped) {
  EXPECT_EQ(ProjectFiles("[Files]\r\nFileCount=3\r\nBaseDir=c:\\a\r\nFileName1=1\r\nFileName2=\r\nFileName3=3\r\n"),
            (Files{"c:\\a\\1", "c:\\a\\3"}));
}

TEST(ProjectFiles, LetterCaseOfKeysDoesNotCount) {
  EXPECT_EQ(ProjectFiles("[FILES]\r\nfilecount=1\r\nBASEDIR=c:\\a\\\r\nfilename1=X.html\r\n"), Files{"c:\\a\\X.html"});
}

TEST(ProjectFiles, OnlySlotsUpToTheCountInTheirOrder) {
  EXPECT_EQ(ProjectFiles("[Files]\nFileName10=j\nFileName3=x\nFileName2=b\nFileName1=a\nFileCount=2\n"), (Files{"a", "b"}));
  EXPECT_EQ(ProjectFiles("[Files]\nFileCount=???\nFileName1=a\n"), Files{});
}

TEST(ProjectFiles, OtherItemsDoNotCount) {
  EXPECT_EQ(
      ProjectFiles(
          "[Inne]\r\nFileCount=5\r\nFileName1=z\r\n[Files]\r\nFileCount=1\r\nFileName1=a\r\n[Inne]\r\nFileCount=9\r\nFileName2=b\r\n"),
      Files{"a"});
  EXPECT_EQ(ProjectFiles(""), Files{});
}

}  // namespace
}  // namespace morlan
