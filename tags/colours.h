// Colours in their document form ("FF0000", "red") and as numbers.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/colour.h"

namespace morlan {

// Two hexadecimal digits, in any letter case. Nothing is checked: other characters give some number, missing ones count 0.
std::uint8_t HexPairToByte(std::string_view pair);
// Six digits, red first. A "#" in front is not skipped: it moves all the pairs.
Colour HexToRgb(std::string_view digits);
// The value of the digits, up to the first character that is none, with no swap of red and blue.
Colour HexToLong(std::string_view digits);
// An attribute value: one of the sixteen names, or digits. A name gives its digits' value as a number, so that red and
// blue of a named colour are exchanged compared with the same colour in digits.
Colour ColorNameToValue(std::string_view text);
// Six upper-case digits, red first.
std::string ColorToHex(Colour colour);

}  // namespace morlan
