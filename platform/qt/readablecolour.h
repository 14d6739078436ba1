// Colours of text that stay readable on a light and on a dark background.
#pragma once

#include "platform/colour.h"

namespace morlan {

// The contrast of two colours as the accessibility guidelines count it: from 1 (none) to 21 (black on white).
double Contrast(Colour first, Colour second);

// The colour itself where it can be read on the background; else one of the same hue whose lightness is turned round and
// moved on until it can. The result always stands out from the background.
Colour ReadableOn(Colour colour, Colour background);

// `share` of the first colour, from 0 to 1, and the rest of the second.
Colour Mixed(Colour first, Colour second, double share);

}  // namespace morlan
