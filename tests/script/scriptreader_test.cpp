#include "platform/script/scriptreader.h"

#include <gtest/gtest.h>

#include <sstream>

namespace morlan {
namespace {

Words Split(std::string_view line) {
  Words words;
  EXPECT_EQ(SplitWords(line, words), std::nullopt) << line;
  return words;
}

TEST(ScriptReader, SplitsALineAtBlanks) {
  EXPECT_EQ(Split("toolbar Toolbar1 bold"), (Words{"toolbar", "Toolbar1", "bold"}));
  EXPECT_EQ(Split("  caret\t12  "), (Words{"caret", "12"}));
  EXPECT_EQ(Split(R"(set nazwa "")"), (Words{"set", "nazwa", ""}));
}

TEST(ScriptReader, BareWordsStandAsTheyAreBackslashesIncluded) {
  EXPECT_EQ(Split(R"(open c:\home\new\a.html)"), (Words{"open", R"(c:\home\new\a.html)"}));
  EXPECT_EQ(Split(R"(type a"b"c)"), (Words{"type", R"(a"b"c)"}));
}

TEST(ScriptReader, AWordThatBeginsWithAQuoteIsAJsonString) {
  EXPECT_EQ(Split(R"(type "ala ma\r\n\"kota\" \u0105")"), (Words{"type", "ala ma\r\n\"kota\" ą"}));
}

TEST(ScriptReader, TellsWhatIsWrongWithAString) {
  for (const std::string_view line : {R"(type "abc)", R"(type "\q")", R"(type "abc"def)"}) {
    Words words;
    EXPECT_NE(SplitWords(line, words), std::nullopt) << line;
  }
}

TEST(ScriptReader, SkipsBlankLinesAndCommentsAndCountsThem) {
  std::istringstream script("\xEF\xBB\xBF# first\r\n\n   \t\n  # second\necho a\r\necho b");
  ScriptReader reader(script);
  auto line = reader.Next();
  ASSERT_TRUE(line);
  EXPECT_EQ(line->number, 5u);
  EXPECT_EQ(line->words, (Words{"echo", "a"}));
  line = reader.Next();
  ASSERT_TRUE(line);
  EXPECT_EQ(line->number, 6u);
  EXPECT_EQ(line->words, (Words{"echo", "b"}));
  EXPECT_FALSE(reader.Next());
  EXPECT_EQ(reader.LinesRead(), 6u);
}

TEST(ScriptReader, ANumberSignInsideALineIsAWord) { EXPECT_EQ(Split("echo # a"), (Words{"echo", "#", "a"})); }

TEST(ScriptReader, CarriesTheFaultOfALine) {
  std::istringstream script("echo \"a\n");
  const auto line = ScriptReader(script).Next();
  ASSERT_TRUE(line);
  EXPECT_TRUE(line->fault);
}

}  // namespace
}  // namespace morlan
