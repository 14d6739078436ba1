// The five panels of the main window, shown and hidden by menu entries; the choice is kept in the item LayOut.
#pragma once

#include <span>
#include <string_view>

#include "core/defs.h"
#include "core/menus.h"
#include "core/settings.h"

namespace morlan {

struct PanelRow {
  Setting setting;        // of the item LayOut
  std::string_view menu;  // the entry that bears its mark
  Control& (*control)(Morlan& frame);
};

std::span<const PanelRow> PanelRows();

// Shows the panels by what is stored; a missing key hides its panel.
void ShowStoredPanels(Program& program);
// Shows a hidden panel, hides a shown one, and stores that.
void TogglePanel(Program& program, const PanelRow& panel);
void MarkPanels(Morlan& frame, Menu& menu);

}  // namespace morlan
