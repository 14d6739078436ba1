// The keys of the Polish programmer's keyboard that type a character.
#pragma once

#include <string_view>

#include "platform/keys.h"

namespace morlan {

// The press that types a character of Windows-1250. A letter of the right Alt key comes with no shift keys held.
KeyPress KeyOfCharacter(char character);

}  // namespace morlan
