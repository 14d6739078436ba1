#include "core/linestarts.h"

#include <gtest/gtest.h>

namespace morlan {
namespace {

std::vector<std::size_t> StartsOf(std::string_view text) {
  LineStarts lines;
  lines.SetText(text);
  std::vector<std::size_t> starts;
  for (std::size_t line = 0; line < lines.Count(); ++line) starts.push_back(lines.Start(line));
  return starts;
}

using Starts = std::vector<std::size_t>;

TEST(LineStarts, KnowsAllThreeLineEnds) {
  EXPECT_EQ(StartsOf(""), (Starts{0}));
  EXPECT_EQ(StartsOf("ab"), (Starts{0}));
  EXPECT_EQ(StartsOf("a\r\nb\nc\rd"), (Starts{0, 3, 5, 7}));
}

TEST(LineStarts, ALineEndAtTheEndOpensAnEmptyLine) {
  EXPECT_EQ(StartsOf("a\r\n"), (Starts{0, 3}));
  EXPECT_EQ(StartsOf("a\n"), (Starts{0, 2}));
  EXPECT_EQ(StartsOf("a\r"), (Starts{0, 2}));
}

TEST(LineStarts, LfCrIsTwoLineEnds) { EXPECT_EQ(StartsOf("a\n\rb"), (Starts{0, 2, 3})); }
TEST(LineStarts, CrCrLfIsTwoLineEnds) { EXPECT_EQ(StartsOf("\r\r\n"), (Starts{0, 1, 3})); }

TEST(LineStarts, FindsTheLineOfAnOffset) {
  LineStarts lines;
  lines.SetText("ab\r\ncd\r\n");
  EXPECT_EQ(lines.LineOf(0), 0u);
  EXPECT_EQ(lines.LineOf(3), 0u) << "between CR and LF";
  EXPECT_EQ(lines.LineOf(4), 1u);
  EXPECT_EQ(lines.LineOf(8), 2u);
  EXPECT_EQ(lines.LineOf(800), 2u);
}

}  // namespace
}  // namespace morlan
