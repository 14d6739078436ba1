// The signs of the Polish programmer's layout and the keys that bear them, without and with Shift.
#pragma once

#include "platform/keys.h"

namespace morlan {

struct SignKey {
  char plain, shifted;
  int code;
};

inline constexpr SignKey kSignKeys[] = {
    {'1', '!', '1'},
    {'2', '@', '2'},
    {'3', '#', '3'},
    {'4', '$', '4'},
    {'5', '%', '5'},
    {'6', '^', '6'},
    {'7', '&', '7'},
    {'8', '*', '8'},
    {'9', '(', '9'},
    {'0', ')', '0'},
    {'-', '_', key::kMinus},
    {'=', '+', key::kEquals},
    {'[', '{', key::kOpenBracket},
    {']', '}', key::kCloseBracket},
    {'\\', '|', key::kBackslash},
    {';', ':', key::kSemicolon},
    {'\'', '"', key::kApostrophe},
    {',', '<', key::kComma},
    {'.', '>', key::kPeriod},
    {'/', '?', key::kSlash},
    {'`', '~', key::kGrave},
};

}  // namespace morlan
