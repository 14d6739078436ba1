#include "core/filetag.h"

#include <gtest/gtest.h>

namespace morlan {
namespace {

TEST(RelativeLink, GoesDownAndUp) {
  EXPECT_EQ(RelativeLink("c:\\www\\a.gif", "c:\\www"), "a.gif");
  EXPECT_EQ(RelativeLink("c:\\www\\img\\a.gif", "c:\\www\\"), "img/a.gif");
  EXPECT_EQ(RelativeLink("c:\\img\\a.gif", "c:\\www\\dom"), "../../img/a.gif");
  EXPECT_EQ(RelativeLink("c:\\www\\a.gif", "C:\\WWW\\dom"), "../a.gif");
}

TEST(RelativeLink, AnotherDriveGivesTheWholePath) { EXPECT_EQ(RelativeLink("d:\\a.gif", "c:\\www"), "d:/a.gif"); }

TEST(RelativeLink, AFileNamedAsItsDirectoryIsNoStepUp) { EXPECT_EQ(RelativeLink("c:\\www", "c:\\www\\dom"), "../../www"); }

TEST(TagForFile, GoesByTheKindOfTheFile) {
  EXPECT_EQ(TagForFile("c:\\w\\Foto.JPG", "c:\\w").open, "<IMG SRC=\"Foto.JPG\">");
  EXPECT_EQ(TagForFile("c:\\w\\Foto.JPG", "c:\\w").close, "");
  EXPECT_EQ(TagForFile("c:\\w\\hymn.mid", "c:\\w").open, "<EMBED SRC=\"hymn.mid\">");
  EXPECT_EQ(TagForFile("c:\\w\\dom\\a.v2.html", "c:\\w").open, "<A HREF=\"dom/a.v2.html\">");
  EXPECT_EQ(TagForFile("c:\\w\\dom\\a.html", "c:\\w").close, "</A>");
}

TEST(TagForFile, AFileWithoutAnExtensionBecomesALink) {
  EXPECT_EQ(TagForFile("c:\\w.gif\\README", "c:\\w.gif").open, "<A HREF=\"README\">");
}

}  // namespace
}  // namespace morlan
