#include "platform/script/json.h"

#include <gtest/gtest.h>

#include "platform/encoding.h"

namespace morlan {
namespace {

TEST(Json, WritesTextsWithTheirEscapes) {
  struct Row {
    std::string_view text, json;
  };
  constexpr Row kRows[] = {
      {"", R"("")"},
      {"abc", R"("abc")"},
      {"a\"b\\c", R"("a\"b\\c")"},
      {"\r\n\t\b\f", R"("\r\n\t\b\f")"},
      {std::string_view("\0\x1b\x7f", 3), R"("\u0000\u001b\u007f")"},
      {"zażółć gęślą jaźń €"_pl, "\"zażółć gęślą jaźń €\""},
      {"\x81\x90", R"("\u0081\u0090")"},
      {"a/b", R"("a/b")"},
  };
  for (const Row& row : kRows) EXPECT_EQ(JsonString(row.text), row.json);
}

TEST(Json, WritesUtf8BeyondTheProgramsLettersAsItIs) {
  EXPECT_EQ(JsonStringOfUtf8("→ 漢 😀"), "\"→ 漢 😀\"");
  EXPECT_EQ(JsonStringOfUtf8("a\xFFz"), "\"a?z\"");
}

TEST(Json, ReadsStrings) {
  struct Row {
    std::string_view json, utf8;
  };
  constexpr Row kRows[] = {
      {R"("")", ""},
      {R"("a\"b\\c\/d")", "a\"b\\c/d"},
      {R"("\r\n\t\b\f")", "\r\n\t\b\f"},
      {R"("\u0105\u0041\u20AC")", "ąA€"},
      {R"("\ud83d\ude00")", "😀"},
      {"\"żółw\"", "żółw"},
      {"\"a\tb\"", "a\tb"},
  };
  for (const Row& row : kRows) {
    std::size_t offset = 0;
    EXPECT_EQ(ReadJsonString(row.json, offset), std::string(row.utf8)) << row.json;
    EXPECT_EQ(offset, row.json.size());
  }
}

TEST(Json, RefusesWhatIsNoString) {
  for (const std::string_view json : {R"("abc)", R"("a\)", R"("a\x")", R"("\u12")", R"("\u12G4")", R"("\ud83d")", R"("\ud83dA")",
                                      R"("\ud83d\u0041")", R"("\ude00")", "\""}) {
    std::size_t offset = 0;
    EXPECT_EQ(ReadJsonString(json, offset), std::nullopt) << json;
  }
}

TEST(Json, LeavesTheOffsetBehindTheString) {
  std::size_t offset = 2;
  EXPECT_EQ(ReadJsonString(R"(a "b c" d)", offset), "b c");
  EXPECT_EQ(offset, 7u);
}

}  // namespace
}  // namespace morlan
