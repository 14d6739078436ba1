#include "tags/symbols.h"

#include <gtest/gtest.h>

#include "core/text.h"
#include "tests/support/testprogram.h"

namespace morlan {
namespace {

class Symbols : public testing::Test {
 protected:
  Symbols() {
    std::filesystem::create_directory(test_.folder.path / "program" / "Listy");
    test_.Write("program\\Listy\\CharSet.lst", "[Á]\r\nDef=&Aacute;\r\n[á]\r\nDef=&aacute;\r\n[©]\r\nDef=&copy;\r\n"_pl);
    test_.OpenText("");
  }
  ListBox& chars() { return test_.frame().Chars; }
  Button& button(std::size_t number) { return *test_.frame().Chars2[number]; }
  TestProgram test_;
};

TEST_F(Symbols, ADoubleClickInsertsTheStoredText) {
  chars().UserSelects(chars().IndexOf("Á"_pl));
  chars().UserDblClicks();
  EXPECT_EQ(test_.Text(), "&Aacute;");
  EXPECT_EQ(test_.program.tagState.LastCloseText, "");
}

TEST_F(Symbols, SmallAndCapitalLettersAreTwoSymbols) { EXPECT_EQ(TextOfSymbol(test_.program, "á"_pl), "&aacute;"); }

TEST_F(Symbols, ASymbolThatTheFileLacksStandsForItself) {
  EXPECT_EQ(TextOfSymbol(test_.program, "ž"_pl), "ž"_pl);
  EXPECT_EQ(TextOfSymbol(test_.program, ""), "");
}

TEST_F(Symbols, ASingleClickShowsTheSymbol) {
  chars().UserSelects(chars().IndexOf("Á"_pl));
  EXPECT_EQ(test_.frame().CharsLabel.Caption(), "Á"_pl);
}

TEST_F(Symbols, TheLabelDoublesAnAmpersand) {
  chars().AddItem("&");
  chars().UserSelects(chars().IndexOf("&"));
  EXPECT_EQ(test_.frame().CharsLabel.Caption(), "&&");
}

TEST_F(Symbols, AButtonInsertsItsSymbol) {
  button(2).SetCaption("©"_pl);
  EXPECT_TRUE(button(2).UserClicks());
  EXPECT_EQ(test_.Text(), "&copy;");
}

TEST_F(Symbols, TheRightMouseButtonReplacesASymbol) {
  test_.windows.inputs = {std::string("©"_pl)};
  EXPECT_TRUE(button(0).UserRightClicks());
  EXPECT_EQ(button(0).Caption(), "©"_pl);
  const Record asked = test_.Asked();
  ASSERT_EQ(asked.size(), 1u);
  EXPECT_NE(asked[0].find("Który symbol z listy symboli który ma zastąpić wskazany?"), std::string::npos);
}

TEST_F(Symbols, ACancelledReplacementChangesNothing) {
  button(0).SetCaption("x");
  test_.windows.inputs = {std::nullopt};
  button(0).UserRightClicks();
  EXPECT_EQ(button(0).Caption(), "x");
}

TEST_F(Symbols, TheMenuKeyReplacesASymbolToo) {
  test_.windows.inputs = {std::string("y")};
  KeyPress press{key::kMenu};
  button(1).OnKeyDown(press);
  EXPECT_EQ(button(1).Caption(), "y");
  EXPECT_EQ(press.code, 0);
}

TEST_F(Symbols, AnEmptyButtonAsksForItsSymbol) {
  button(3).SetCaption("");
  test_.windows.inputs = {std::string("z")};
  button(3).UserClicks();
  EXPECT_EQ(button(3).Caption(), "z");
  EXPECT_EQ(test_.Text(), "");
}

}  // namespace
}  // namespace morlan
