// What a property sheet offers for each kind of attribute.
#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "tags/propertyfile.h"

namespace morlan {

// The colours in the order of the list, spellings as they stand.
inline constexpr std::array<std::string_view, 19> kSheetColours = {
    "Black",  "White", "Gray",   "Red",   "Green", "Olive",   "Teal",   "Lime", "Fuchsia", "Navy",
    "Maroon", "Blue",  "Purple", "Brown", "Cyan",  "Magneta", "Yellow", "Aqua", "Silver",
};

// The kinds and the types of dialogs as people choose them, in the order of their digits.
std::span<const std::string_view> KindNames();
std::span<const std::string_view> DialogNames();

// The row is a combo box, not a plain field.
bool HasChoices(ParamKind kind);
// Its rows; those that come from a file are not among them.
std::vector<std::string> ChoicesOf(const ParamRecord& param);
// Files that a dialog offers; empty for the colours.
std::string_view FilterOf(ParamDialog type);
std::string_view ToolTipOf(ParamKind kind);

}  // namespace morlan
