// Colours in their document form ("FF0000", "red") and as numbers.
#pragma once

#include <string_view>

#include "core/colourtext.h"
#include "platform/colour.h"

namespace morlan {

// The value of the digits, up to the first character that is none, with no swap of red and blue.
Colour HexToLong(std::string_view digits);
// An attribute value: one of the sixteen names, or digits. A name gives its digits' value as a number, so that red and
// blue of a named colour are exchanged compared with the same colour in digits.
Colour ColorNameToValue(std::string_view text);

}  // namespace morlan
