// Key events of the desktop as the program's own key presses.
#pragma once

#include <QKeyEvent>
#include <string>

#include "platform/keys.h"

namespace morlan {

// The code of a key that types a character but has no code of its own.
inline constexpr int kCodeOfOtherKeys = 255;

struct TypedKey {
  KeyPress press;    // the code is 0 when the key means nothing by itself, such as Shift alone
  std::string text;  // what the key types where that is not one character of Windows-1250; empty otherwise
};

// A character that AltGr brings forth arrives with the shift state 0, whatever modifiers the platform reports for AltGr.
TypedKey ReadKey(const QKeyEvent& event);

}  // namespace morlan
