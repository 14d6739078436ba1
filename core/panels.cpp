#include "core/panels.h"

#include "core/filepanel.h"
#include "core/morlan.h"
#include "core/programmenus.h"
#include "core/status.h"

namespace morlan {
namespace {

constexpr std::string_view kItem = "LayOut";

constexpr PanelRow kPanels[] = {
    {"WindowsManager", "xmn_windowsmanager_visible", [](Morlan& frame) -> Control& { return frame.WindowsPanel; }},
    {"StatusBar", "xmn_status_visible", [](Morlan& frame) -> Control& { return frame.statusBar; }},
    {"CommandLine", "xmn_tools_visible", [](Morlan& frame) -> Control& { return frame.commandline; }},
    {"FileManager", "xmn_filemanager_visible", [](Morlan& frame) -> Control& { return frame.Menadzerplikow; }},
    {"Symbols", "xmn_symbols_visible", [](Morlan& frame) -> Control& { return frame.UnderChars; }},
};

}  // namespace

std::span<const PanelRow> PanelRows() { return kPanels; }

void ShowStoredPanels(Program& program) {
  for (const PanelRow& panel : kPanels)
    panel.control(program.frame()).SetVisible(TextToBool(program.MainIni.GetSubItemValue(kItem, panel.key)));
  for (Menu* menu : AllMenus(program)) MarkPanels(program.frame(), *menu);
}

void TogglePanel(Program& program, const PanelRow& panel) {
  Control& control = panel.control(program.frame());
  control.SetVisible(!control.Visible());
  program.MainIni.SetSubItemValue(kItem, panel.key, control.Visible() ? "True" : "False");
  for (Menu* menu : AllMenus(program)) MarkPanels(program.frame(), *menu);
  ListFilePanelIfWanted(program);
}

void MarkPanels(Morlan& frame, Menu& menu) {
  for (const PanelRow& panel : kPanels) menu.SetChecked(panel.menu, panel.control(frame).Visible());
}

}  // namespace morlan
