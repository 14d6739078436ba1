#include "core/panels.h"

#include <gtest/gtest.h>

#include "core/documents.h"
#include "tests/support/testprogram.h"

namespace morlan {
namespace {

struct PanelCase {
  const char *menu, *key;
};

class PanelToggles : public testing::TestWithParam<PanelCase> {};

TEST_P(PanelToggles, HideStoreAndUnmark) {
  TestProgram test;
  NewEmptyDocument(test.program);
  test.program.commands.RunMenu(GetParam().menu);
  EXPECT_EQ("False", test.program.MainIni.GetSubItemValue("LayOut", GetParam().key));
  EXPECT_FALSE(test.frame().menu.IsChecked(GetParam().menu));
  for (const auto& document : test.program.documents) EXPECT_FALSE(document->menu.IsChecked(GetParam().menu));
  test.program.commands.RunMenu(GetParam().menu);
  EXPECT_EQ("True", test.program.MainIni.GetSubItemValue("LayOut", GetParam().key));
  EXPECT_TRUE(test.program.ActiveDocument->menu.IsChecked(GetParam().menu));
}

INSTANTIATE_TEST_SUITE_P(All, PanelToggles,
                         testing::Values(PanelCase{"xmn_windowsmanager_visible", "WindowsManager"},
                                         PanelCase{"xmn_status_visible", "StatusBar"}, PanelCase{"xmn_tools_visible", "CommandLine"},
                                         PanelCase{"xmn_filemanager_visible", "FileManager"}, PanelCase{"xmn_symbols_visible", "Symbols"}));

TEST(Panels, HideTheirOwnControl) {
  TestProgram test;
  test.program.commands.RunMenu("xmn_symbols_visible");
  EXPECT_FALSE(test.frame().UnderChars.Visible());
  EXPECT_TRUE(test.frame().WindowsPanel.Visible());
  test.program.commands.RunMenu("xmn_windowsmanager_visible");
  EXPECT_FALSE(test.frame().WindowsPanel.Visible());
  EXPECT_TRUE(test.frame().statusBar.Visible() && test.frame().commandline.Visible() && test.frame().Menadzerplikow.Visible());
}

}  // namespace
}  // namespace morlan
