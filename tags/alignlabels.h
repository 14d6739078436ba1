// Alignment words: the labels of the dialogs, the words of HTML, and the tables of the table dialogs.
#pragma once

#include <array>
#include <string_view>

namespace morlan {

// The row of a dialog's list selects the word.
inline constexpr std::array<std::string_view, 7> TableAlign = {"JUSTIFY", "BLEEDLEFT", "BLEEDRIGHT", "CENTER", "FLOAT", "LEFT", "RIGHT"};
inline constexpr std::array<std::string_view, 2> TableVAlign = {"BOTTOM", "TOP"};
inline constexpr std::array<std::string_view, 4> CaptionAlign = {"L", "R", "C", "J"};
inline constexpr std::array<std::string_view, 5> CaptionVAlign = {"TOP", "BOTTOM", "LEFT", "RIGHT", "CENTER"};
inline constexpr std::array<std::string_view, 2> RowVAlign = {"BOTTOM", "TOP"};
inline constexpr std::array<std::string_view, 4> CellVAlign = {"BOTTOM", "TOP", "CENTER", "BASELINE"};
inline constexpr std::array<std::string_view, 3> CellAlign = {"CENTER", "LEFT", "RIGHT"};

// The lower-case HTML word of a label, in any letter case; empty for an unknown one.
std::string_view AlignLabelToHtml(std::string_view label);
std::string_view VAlignLabelToHtml(std::string_view label);

// The label of "left" and of "center"; empty for all else, "right" among it.
std::string_view HtmlAlignToLabel(std::string_view word);

}  // namespace morlan
