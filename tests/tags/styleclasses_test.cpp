#include "tags/styleclasses.h"

#include <gtest/gtest.h>

namespace morlan {
namespace {

using Names = std::vector<std::string>;

TEST(StyleClasses, AClassRunsToTheNextBlankOrBrace) {
  EXPECT_EQ(ClassesInSheet("p.Wstep {color: red} P.drugi{x} td.inna {y} p.trzeci\r\n{z}", "P"), (Names{"Wstep", "drugi", "trzeci"}));
}

TEST(StyleClasses, EachClassIsListedOnce) { EXPECT_EQ(ClassesInSheet("p.a {x} p.a {y} p.b {z}", "p"), (Names{"a", "b"})); }

TEST(StyleClasses, TheTailOfALongerNameCountsOnPurpose) { EXPECT_EQ(ClassesInSheet("sup.a {x}", "p"), Names{"a"}); }

TEST(StyleClasses, AClassWithoutATagIsNotSeenOnPurpose) { EXPECT_EQ(ClassesInSheet(".a {x}", "p"), Names{}); }

TEST(StyleClasses, AnEmptyNameOrAnEmptySheetHasNone) {
  EXPECT_EQ(ClassesInSheet("p.a {x}", ""), Names{});
  EXPECT_EQ(ClassesInSheet("", "p"), Names{});
  EXPECT_EQ(ClassesInSheet("p.", "p"), Names{});
  EXPECT_EQ(ClassesInSheet("p.a", "p"), Names{"a"});
}

TEST(StyleClasses, APageIsReadBetweenItsStyleTags) {
  EXPECT_EQ(ClassesInPage("p.a {} <STYLE TYPE=\"text/css\">p.b {}</Style> p.c {}", "p"), Names{"b"});
  EXPECT_EQ(ClassesInPage("<style>p.b {}", "p"), Names{});
  EXPECT_EQ(ClassesInPage("p.b {}", "p"), Names{});
}

TEST(StyleClasses, AFileMayBeAPageOrASheet) {
  EXPECT_EQ(ClassesInFile("p.a {}", "p"), Names{"a"});
  EXPECT_EQ(ClassesInFile("<HTML>\r\n<STYLE>\r\n p.a {}\r\n</STYLE>\r\n</HTML>", "p"), Names{"a"});
}

TEST(StyleClasses, LinksToStyleSheetsAreFound) {
  EXPECT_EQ(LinkedSheets("<link rel=stylesheet href=a.css><LINK REL=\"StyleSheet\" HREF=\"b c.css\"><link rel=next href=d.html>"
                         "<link rel=stylesheet><link rel=stylesheet href=e.css"),
            (Names{"a.css", "b c.css"}));
}

}  // namespace
}  // namespace morlan
