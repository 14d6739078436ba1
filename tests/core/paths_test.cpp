#include "core/paths.h"

#include <gtest/gtest.h>

namespace morlan {
namespace {

struct Row {
  std::string_view path, pathOf, fileName, extension, stripped;
};

TEST(Paths, PartsOfAPath) {
  constexpr Row kRows[] = {
      {"c:\\dom\\a.html", "c:\\dom", "a.html", "html", "c:\\dom\\a"},
      {"a.html", "", "a.html", "html", "a"},
      {"\\a", "", "a", "", "\\a"},
      {"c:\\", "c:", "", "", "c:\\"},
      {"c:\\dom\\", "c:\\dom", "", "", "c:\\dom\\"},
      {"", "", "", "", ""},
      {"a.", "", "a.", "", "a"},
      {".htaccess", "", ".htaccess", "htaccess", ""},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.path);
    EXPECT_EQ(PathOf(row.path), row.pathOf);
    EXPECT_EQ(FileNameOf(row.path), row.fileName);
    EXPECT_EQ(ExtensionOf(row.path), row.extension);
    EXPECT_EQ(StripExtension(row.path), row.stripped);
  }
}

TEST(Paths, TheExtensionStartsBehindTheFirstPointOnPurpose) {
  EXPECT_EQ(ExtensionOf("archive.tar.gz"), "tar.gz");
  EXPECT_EQ(ExtensionOf("a.b.html"), "b.html");
  EXPECT_EQ(ExtensionOf("c:\\moje.strony\\a.html"), "strony\\a.html");
}

TEST(Paths, StripExtensionCutsAtTheLastPoint) { EXPECT_EQ(StripExtension("archive.tar.gz"), "archive.tar"); }

TEST(Paths, WithBackslashAddsOneWhereItIsMissing) {
  EXPECT_EQ(WithBackslash("c:\\dom"), "c:\\dom\\");
  EXPECT_EQ(WithBackslash("c:\\dom\\"), "c:\\dom\\");
  EXPECT_EQ(WithBackslash(""), "\\");
}

}  // namespace
}  // namespace morlan
