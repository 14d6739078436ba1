// All buttons of the frame's toolbars, as a table. A button is shown when its command exists.
#pragma once

#include <span>
#include <string_view>

namespace morlan {

// Tool tips are Windows-1250; icons are file names in data/icons without ".svg".
struct ToolbarRow {
  std::string_view toolbar, key, toolTip, icon;
};
struct ToolbarTab {
  std::string_view toolbar, caption;
  bool cdf;  // on the tab bar of CDF mode instead of HTML mode
};

std::span<const ToolbarRow> ToolbarRows();
std::span<const ToolbarTab> ToolbarTabs();

// The menu bar of a document, the frame's small menu, and the pop-ups.
struct MenuRow;
std::span<const MenuRow> DocumentMenuRows();
std::span<const MenuRow> FrameMenuRows();
std::span<const MenuRow> EditPopupRows();
// The commands for the selection, as they stand in the menu "Format" and in the quick menu.
std::span<const MenuRow> SelectionMenuRows();
// The menus of the insert commands; they stand behind "Edycja" in a document's menu bar.
std::span<const MenuRow> InsertMenuRows();

}  // namespace morlan
