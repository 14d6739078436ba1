// Colours as six hexadecimal digits, red first ("FF8001"): their form in documents and in the settings.
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
// Six upper-case digits, red first.
std::string ColorToHex(Colour colour);

// The value of a hexadecimal digit in any letter case; other characters give some number, which is not checked.
int HexDigitValue(char character);
// Exactly six hexadecimal digits.
bool IsHexColour(std::string_view text);

}  // namespace morlan
