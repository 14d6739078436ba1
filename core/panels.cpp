#include "core/panels.h"

#include "core/filepanel.h"
#include "core/morlan.h"
#include "core/programmenus.h"

namespace morlan {
namespace {

constexpr PanelRow kPanels[] = {
    {Setting::WindowsManager, "xmn_windowsmanager_visible", [](Morlan& frame) -> Control& { return frame.WindowsPanel; }},
    {Setting::StatusBar, "xmn_status_visible", [](Morlan& frame) -> Control& { return frame.statusBar; }},
    {Setting::CommandLine, "xmn_tools_visible", [](Morlan& frame) -> Control& { return frame.commandline; }},
    {Setting::FileManager, "xmn_filemanager_visible", [](Morlan& frame) -> Control& { return frame.Menadzerplikow; }},
    {Setting::Symbols, "xmn_symbols_visible", [](Morlan& frame) -> Control& { return frame.UnderChars; }},
};

}  // namespace

std::span<const PanelRow> PanelRows() { return kPanels; }

void ShowStoredPanels(Program& program) {
  for (const PanelRow& panel : kPanels) panel.control(program.frame()).SetVisible(Settings(program.MainIni).Flag(panel.setting));
  for (Menu* menu : AllMenus(program)) MarkPanels(program.frame(), *menu);
}

void TogglePanel(Program& program, const PanelRow& panel) {
  Control& control = panel.control(program.frame());
  control.SetVisible(!control.Visible());
  Settings(program.MainIni).SetFlag(panel.setting, control.Visible());
  for (Menu* menu : AllMenus(program)) MarkPanels(program.frame(), *menu);
  ListFilePanelIfWanted(program);
}

void MarkPanels(Morlan& frame, Menu& menu) {
  for (const PanelRow& panel : kPanels) menu.SetChecked(panel.menu, panel.control(frame).Visible());
}

}  // namespace morlan
