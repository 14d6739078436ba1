// Searching the text of a document where it lies, on both sides of its gap.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "core/editsurface.h"

namespace morlan {

// Added up in one byte.
inline constexpr std::uint8_t kWholeWords = 2;
inline constexpr std::uint8_t kMatchCase = 4;

// The offset of the first hit at or behind an offset; nothing for an empty text. With kWholeWords a hit has no letter,
// digit or underscore beside it.
std::optional<std::size_t> FindInText(const MlnEditor& editor, std::string_view text, std::size_t from, std::uint8_t options);

}  // namespace morlan
