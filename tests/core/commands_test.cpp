#include "core/commands.h"

#include <gtest/gtest.h>

namespace morlan {
namespace {

TEST(CommandTable, TakesTheDocumentsAndTheFramesNameForOne) {
  CommandTable commands;
  int runs = 0;
  commands.OnMenu("xmn_save", [&] { ++runs; });
  EXPECT_TRUE(commands.RunMenu("mn_save"));
  EXPECT_TRUE(commands.RunMenu("xmn_Save"));
  EXPECT_EQ(2, runs);
}

TEST(CommandTable, KeepsTheNumberOfAMenuArrayApart) {
  CommandTable commands;
  std::string ran;
  for (const char* row : {"mn_lastopen(0)", "mn_lastopen(1)"}) commands.OnMenu(row, [&ran, row] { ran = row; });
  EXPECT_TRUE(commands.RunMenu("xmn_lastopen(1)"));
  EXPECT_EQ("mn_lastopen(1)", ran);
  EXPECT_FALSE(commands.HasMenu("mn_lastopen(2)"));
}

TEST(CommandTable, FindsToolbarButtonsByToolbarAndKey) {
  CommandTable commands;
  std::string ran;
  commands.OnToolbar("Toolbar1", "bold", [&] { ran = "bold"; });
  commands.OnToolbar("Toolbar11", "%=", [&] { ran = "%="; });
  EXPECT_TRUE(commands.RunToolbar("toolbar11", "%="));
  EXPECT_EQ("%=", ran);
  EXPECT_FALSE(commands.RunToolbar("Toolbar2", "bold"));
  EXPECT_EQ("%=", ran);
}

TEST(CommandTable, AnswersFalseForAnUnknownCommand) {
  const CommandTable commands;
  EXPECT_FALSE(commands.RunMenu("xmn_save"));
  EXPECT_FALSE(commands.RunMenu(""));
}

}  // namespace
}  // namespace morlan
