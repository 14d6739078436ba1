#include "core/menus.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

#include "core/text.h"
#include "core/toolbars.h"
#include "tests/support/testprogram.h"

namespace morlan {
namespace {

constexpr MenuRow kRows[] = {
    {0, "xmnm_file", "&Plik"},
    {1, "xmn_save", "&Zapisz", "Ctrl+S"},
    {1, "", "-"},
    {1, "mn_lastopen(0)", ""},
    {1, "", "-"},
    {1, "xmn_quit", "Za&mknij", "Ctrl+Q"},
    {0, "xmnm_tools", "&Inne"},
    {1, "xmn_charsets", "&Zestawy"},
    {2, "xmn_win1250", "&Windows", "F9", true},
};

CommandTable CommandsFor(std::initializer_list<const char*> names) {
  CommandTable commands;
  for (const char* name : names) commands.OnMenu(name, [] {});
  return commands;
}

struct CountingView : MenuView {
  int changes = 0;
  void MenuChanged() override { ++changes; }
};

TEST(Menu, MakesATreeOfTheRows) {
  const Menu menu(kRows);
  ASSERT_EQ(2u, menu.Entries().size());
  EXPECT_EQ(5u, menu.Entries()[0].children.size());
  EXPECT_EQ("xmn_win1250", menu.Entries()[1].children[0].children[0].name);
  EXPECT_TRUE(menu.Entries()[0].children[1].IsSeparator());
}

TEST(Menu, FindsAnEntryByEitherName) {
  const Menu menu(kRows);
  EXPECT_EQ(menu.Find("mn_SAVE"), menu.Find("xmn_save"));
  EXPECT_NE(nullptr, menu.Find("xmn_lastopen(0)"));
  EXPECT_NE(nullptr, menu.Find("xmnm_tools"));
  EXPECT_EQ(nullptr, menu.Find("xmn_saveas"));
  EXPECT_EQ(nullptr, menu.Find(""));
}

TEST(Menu, HidesEntriesWithoutCommandAndMenusLeftEmpty) {
  Menu menu(kRows);
  menu.HideWithoutCommand(CommandsFor({"mn_save"}));
  EXPECT_TRUE(menu.Find("xmn_save")->visible);
  EXPECT_FALSE(menu.Find("xmn_quit")->visible);
  EXPECT_FALSE(menu.Find("xmn_charsets")->visible);
  EXPECT_FALSE(menu.Find("xmnm_tools")->visible);
}

TEST(Menu, ShowsSeparatorsOnlyBetweenVisibleEntries) {
  Menu menu(kRows);
  menu.HideWithoutCommand(CommandsFor({"mn_save", "mn_lastopen(0)", "mn_quit"}));
  const auto& entries = menu.Entries()[0].children;
  EXPECT_TRUE(entries[1].visible && entries[3].visible);
  menu.SetVisible("mn_lastopen(0)", false);
  EXPECT_TRUE(entries[1].visible);
  EXPECT_FALSE(entries[3].visible);
  menu.SetVisible("xmn_quit", false);
  EXPECT_FALSE(entries[1].visible);
  menu.SetVisible("mn_lastopen(0)", true);
  EXPECT_TRUE(entries[1].visible);
  EXPECT_FALSE(entries[3].visible);
}

TEST(Menu, TellsItsViewOfEachRealChange) {
  Menu menu(kRows);
  CountingView view;
  menu.AttachView(&view);
  menu.SetChecked("xmn_win1250", true);
  menu.SetChecked("xmn_win1250", true);
  menu.SetCaption("xmn_save", "Zapisz");
  menu.SetEnabled("xmn_unknown", false);
  EXPECT_EQ(2, view.changes);
  EXPECT_TRUE(menu.IsChecked("mn_win1250"));
}

TEST(Menu, FindsAShortcutOnlyWhereTheEntryCanBePicked) {
  Menu menu(kRows);
  ASSERT_NE(nullptr, menu.FindShortcut(KeyFromText("Ctrl+S")));
  EXPECT_EQ("xmn_save", menu.FindShortcut(KeyFromText("Ctrl+S"))->name);
  EXPECT_EQ(nullptr, menu.FindShortcut(KeyFromText("Ctrl+Shift+S")));
  menu.SetEnabled("xmn_save", false);
  EXPECT_EQ(nullptr, menu.FindShortcut(KeyFromText("Ctrl+S")));
  EXPECT_NE(nullptr, menu.FindShortcut(KeyFromText("F9")));
  menu.SetEnabled("xmnm_tools", false);
  EXPECT_EQ(nullptr, menu.FindShortcut(KeyFromText("F9")));
}

char MnemonicOf(std::string_view caption) {
  const std::size_t mark = caption.find('&');
  return mark != std::string_view::npos && mark + 1 < caption.size() ? LowerCharacter(caption[mark + 1]) : '\0';
}

void ExpectOwnMnemonics(const std::vector<MenuEntry>& entries, const std::string& where) {
  std::map<char, std::string> taken;
  for (const MenuEntry& entry : entries) {
    ExpectOwnMnemonics(entry.children, where + "/" + entry.name);
    const char mnemonic = MnemonicOf(entry.caption);
    if (!mnemonic || !entry.visible) continue;
    EXPECT_TRUE(taken.emplace(mnemonic, entry.name).second) << where << ": " << entry.name << " and " << taken[mnemonic];
  }
}

void ExpectOwnShortcuts(const std::vector<MenuEntry>& entries, std::set<std::string>& taken) {
  for (const MenuEntry& entry : entries) {
    ExpectOwnShortcuts(entry.children, taken);
    if (entry.shortcut.empty()) continue;
    EXPECT_NE(0, KeyFromText(entry.shortcut).code) << entry.shortcut;
    EXPECT_TRUE(taken.insert(entry.shortcut).second) << entry.shortcut;
  }
}

TEST(ProgramMenus, GiveEachEntryAMnemonicOfItsOwn) {
  TestProgram test;
  ExpectOwnMnemonics(test.program.ActiveDocument->menu.Entries(), "document");
  ExpectOwnMnemonics(test.frame().menu.Entries(), "frame");
}

TEST(ProgramMenus, UseNoShortcutTwice) {
  TestProgram test;
  std::set<std::string> document, frame;
  ExpectOwnShortcuts(test.program.ActiveDocument->menu.Entries(), document);
  ExpectOwnShortcuts(test.frame().menu.Entries(), frame);
}

struct Expected {
  const char *name, *shortcut;
};

class MenuShortcuts : public testing::TestWithParam<Expected> {};

TEST_P(MenuShortcuts, AreTheOnesPeopleExpect) {
  TestProgram test;
  const MenuEntry* entry = test.program.ActiveDocument->menu.Find(GetParam().name);
  ASSERT_NE(nullptr, entry);
  EXPECT_TRUE(entry->visible);
  EXPECT_EQ(GetParam().shortcut, entry->shortcut);
}

INSTANTIATE_TEST_SUITE_P(All, MenuShortcuts,
                         testing::Values(Expected{"xmn_files_new", "Ctrl+N"}, Expected{"xmn_open", "Ctrl+O"},
                                         Expected{"xmn_save", "Ctrl+S"}, Expected{"xmn_saveas", "Ctrl+Shift+S"},
                                         Expected{"xmn_close", "Ctrl+W"}, Expected{"xmn_print", "Ctrl+P"}, Expected{"xmn_quit", "Ctrl+Q"},
                                         Expected{"xmn_undo", "Ctrl+Z"}, Expected{"xmn_cut", "Ctrl+X"}, Expected{"xmn_copy", "Ctrl+C"},
                                         Expected{"xmn_paste", "Ctrl+V"}, Expected{"xmn_selectall", "Ctrl+A"},
                                         Expected{"xmn_find", "Ctrl+F"}, Expected{"xmn_replace", "Ctrl+H"},
                                         Expected{"xmn_findnext", "F3"}));

TEST(ProgramMenus, LeaveOutWhatHasNoCommand) {
  TestProgram test;
  const Menu& menu = test.program.ActiveDocument->menu;
  const auto rows = DocumentMenuRows();
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const bool opensMenu = i + 1 < rows.size() && rows[i + 1].depth > rows[i].depth;
    if (rows[i].name.empty() || opensMenu || rows[i].name.starts_with("mn_lastopen")) continue;
    EXPECT_EQ(menu.Find(rows[i].name)->visible, test.program.commands.HasMenu(rows[i].name)) << rows[i].name;
  }
}

}  // namespace
}  // namespace morlan
