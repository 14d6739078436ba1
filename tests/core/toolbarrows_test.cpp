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

TEST(ToolbarRows, EveryCommandOfAButtonIsReachableFromAMenu) {
  TestProgram test;
  test.OpenText("");
  std::size_t shown = 0;
  for (const auto& toolbar : test.frame().toolbars)
    for (const ToolBar::Item& item : toolbar->Items()) shown += item.visible ? 1 : 0;
  EXPECT_GT(shown, 70u);
  const Menu& menu = test.program.ActiveDocument->menu;
  for (const std::string_view name :
       {"mn_bold", "mn_paragraph", "mn_nbr", "mn_big", "mn_h6", "mn_caption", "mn_frametag", "mn_ul", "mn_asp", "mn_cfelse", "mn_map",
        "mn_documentwrite", "mn_taglist_insert", "mn_taglist_cf", "mn_justify"}) {
    ASSERT_NE(menu.Find(name), nullptr) << name;
    EXPECT_TRUE(menu.Find(name)->visible) << name;
  }
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
