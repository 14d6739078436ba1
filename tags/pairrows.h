// The commands that put a fixed pair of texts round the selection, as a table.
#pragma once

#include <span>
#include <string_view>

namespace morlan {

// The menu name, the toolbar button (empty for commands that only menus have) and the pair.
struct PairRow {
  std::string_view menu, toolbar, key, open, close;
};

std::span<const PairRow> PairRows();

}  // namespace morlan
