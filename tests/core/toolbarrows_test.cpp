#include "core/toolbars.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <set>
#include <string>

#include "core/menus.h"
#include "core/text.h"
#include "tests/support/testprogram.h"

namespace morlan {
namespace {

TEST(ToolbarRows, EveryButtonHasATipAnIconAndAKeyOfItsOwn) {
  std::set<std::string> seen;
  for (const ToolbarRow& row : ToolbarRows()) {
    EXPECT_TRUE(seen.insert(Concat({row.toolbar, " ", row.key})).second) << row.toolbar << " " << row.key;
    EXPECT_FALSE(row.toolTip.empty()) << row.key;
    const auto icon = std::filesystem::path(MORLAN7_SOURCE_DIR) / "data/icons" / (std::string(row.icon) + ".svg");
    EXPECT_TRUE(std::filesystem::exists(icon)) << row.icon;
  }
}

TEST(ToolbarRows, EveryTabHasAToolbar) {
  std::set<std::string_view> toolbars;
  for (const ToolbarRow& row : ToolbarRows()) toolbars.insert(row.toolbar);
  toolbars.insert("Toolbar8");  // its buttons come with the styles
  for (const ToolbarTab& tab : ToolbarTabs()) EXPECT_TRUE(toolbars.contains(tab.toolbar)) << tab.toolbar;
}

TEST(ToolbarRows, OnlyButtonsWithACommandAreShown) {
  TestProgram test;
  for (const auto& toolbar : test.frame().toolbars)
    for (const ToolBar::Item& item : toolbar->Items())
      EXPECT_EQ(item.visible, test.program.commands.HasToolbar(toolbar->Name(), item.key)) << toolbar->Name() << " " << item.key;
}

void ExpectOwnMnemonics(const std::vector<MenuEntry>& entries, const std::string& where) {
  std::map<char, std::string> taken;
  for (const MenuEntry& entry : entries) {
    ExpectOwnMnemonics(entry.children, entry.name);
    const std::size_t mark = entry.caption.find('&');
    if (!entry.visible || mark == std::string::npos) continue;
    const char letter = LowerCharacter(entry.caption[mark + 1]);
    EXPECT_TRUE(taken.emplace(letter, entry.name).second) << where << ": " << entry.name << " and " << taken[letter];
  }
}

TEST(MenuRows, MnemonicsAreUniqueWithinEachMenu) {
  TestProgram test;
  test.OpenText("");
  ExpectOwnMnemonics(test.program.ActiveDocument->menu.Entries(), "bar");
}

}  // namespace
}  // namespace morlan
