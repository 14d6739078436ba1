#include "platform/script/scriptwords.h"

#include <gtest/gtest.h>

#include "tests/support/testprogram.h"

namespace morlan {
namespace {

TEST(ScriptWords, NumbersAreWholeWords) {
  EXPECT_EQ(ReadCount("12"), 12u);
  EXPECT_EQ(ReadInteger("-3"), -3);
  for (const std::string_view word : {"", "-1", "+1", "1x", " 1", "1.5", "99999999999999999999"})
    EXPECT_EQ(ReadCount(word), std::nullopt) << word;
}

TEST(ScriptWords, FontSizes) {
  EXPECT_EQ(ReadFontSize("10.5"), 10.5);
  for (const std::string_view word : {"", "0", "-4", "nan", "inf", "1e9", "10pt"}) EXPECT_EQ(ReadFontSize(word), std::nullopt) << word;
  EXPECT_EQ(FontSizeWord(10), "10");
  EXPECT_EQ(FontSizeWord(10.5), "10.5");
}

TEST(ScriptWords, ColoursStandRedFirst) {
  EXPECT_EQ(ColourWord(0x0080FF), "FF8000");
  EXPECT_EQ(ReadColour("FF8000"), 0x0080FFu);
  EXPECT_EQ(ReadColour("ff8000"), 0x0080FFu);
  for (const std::string_view word : {"", "FF80", "FF80000", "GG8000", "0xFF80"}) EXPECT_EQ(ReadColour(word), std::nullopt) << word;
}

TEST(ScriptWords, PathsAreReadInEitherFormAndMadeWhole) {
  PosixFiles files;
  ASSERT_TRUE(files.ChangeDirectory("c:\\usr\\lib"));
  struct Row {
    std::string_view word, directory, path;
  };
  constexpr Row kRows[] = {
      {"/home/ala/a.html", "", "c:\\home\\ala\\a.html"},
      {"c:\\home\\ala\\a.html", "", "c:\\home\\ala\\a.html"},
      {"a.html", "", "c:\\usr\\lib\\a.html"},
      {"sub/a.html", "", "c:\\usr\\lib\\sub\\a.html"},
      {"../a.html", "", "c:\\usr\\a.html"},
      {"..\\..\\..\\a.html", "", "c:\\a.html"},
      {"./a.html", "", "c:\\usr\\lib\\a.html"},
      {"a.html", "c:\\tmp", "c:\\tmp\\a.html"},
      {"\\a.html", "", "c:\\a.html"},
      {"/", "", "c:\\"},
  };
  for (const Row& row : kRows) EXPECT_EQ(ReadPath(files, row.word, row.directory), row.path) << row.word;
}

}  // namespace
}  // namespace morlan
