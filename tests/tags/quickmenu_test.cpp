#include "tags/quickmenu.h"

#include <gtest/gtest.h>

#include "core/keyboard.h"
#include "tests/support/testprogram.h"

namespace morlan {
namespace {

constexpr std::string_view kEntries[] = {
    "mn_edit_bold", "mn_edit_italic", "mn_edit_underline", "mn_edit_strike",     "mn_edit_center", "mn_edit_pre",
    "mn_edit_big",  "mn_edit_small",  "mn_edit_right",     "mn_edit_left",       "mn_justify",     "mn_header1",
    "mn_header2",   "mn_header3",     "mn_header4",        "mn_header5",         "mn_header6",     "mn_index_down",
    "mn_index_up",  "mn_numlist",     "mn_ordlist",        "mn_changetoaddress", "mn_edit_font",   "mn_lowercase",
    "mn_uppercase", "mn_undo2",       "mn_selectall2",     "mn_edit_copy",       "mn_edit_cut",    "mn_edit_paste",
    "mn_aqua",      "mn_black",       "mn_Blue",           "mn_brown",           "mn_fuchsia",     "mn_gray",
    "mn_green",     "mn_lime",        "mn_magneta",        "mn_maroon",          "mn_navy",        "mn_olive",
    "mn_purple",    "mn_red",         "mn_silver",         "mn_white",           "mn_yellow",      "mn_other",
};

TEST(QuickMenu, ShowsEveryEntryThatHasACommand) {
  TestProgram test;
  const Menu& menu = test.program.forms.Get<QuickMenu>().menu;
  for (const std::string_view name : kEntries) {
    const MenuEntry* entry = menu.Find(name);
    ASSERT_NE(entry, nullptr) << name;
    EXPECT_TRUE(entry->visible) << name;
    EXPECT_TRUE(test.program.commands.HasMenu(name)) << name;
  }
}

TEST(QuickMenu, HidesAnEntryWithoutACommand) {
  TestProgram test;
  const QuickMenu& quickMenu = test.program.forms.Get<QuickMenu>();
  for (const std::string_view name : {"mn_frame", "mn_words"}) {
    ASSERT_NE(quickMenu.menu.Find(name), nullptr) << name;
    EXPECT_EQ(quickMenu.menu.Find(name)->visible, test.program.commands.HasMenu(name)) << name;
  }
}

TEST(QuickMenu, ComesUpOnF4) {
  TestProgram test;
  TEditor& document = test.OpenText("abc");
  PressKey(document, {key::kF1 + 3});
  EXPECT_EQ(test.frontEnd.poppedUp, &test.program.forms.Get<QuickMenu>().menu);
}

}  // namespace
}  // namespace morlan
