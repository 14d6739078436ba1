// Keys as the program's key handlers know them: a key code and a mask of shift keys.
#pragma once

#include <cstdint>

namespace morlan {

// Mask of the shift keys held down.
namespace shift {
inline constexpr int kNone = 0;
inline constexpr int kShift = 1;
inline constexpr int kCtrl = 2;
inline constexpr int kAlt = 4;
}  // namespace shift

// Key codes. Letters and digits have the codes of their capital characters.
namespace key {
inline constexpr int kBackspace = 8;
inline constexpr int kTab = 9;
inline constexpr int kEnter = 13;
inline constexpr int kPause = 19;
inline constexpr int kEscape = 27;
inline constexpr int kSpace = 32;
inline constexpr int kPageUp = 33;
inline constexpr int kPageDown = 34;
inline constexpr int kEnd = 35;
inline constexpr int kHome = 36;
inline constexpr int kLeft = 37;
inline constexpr int kUp = 38;
inline constexpr int kRight = 39;
inline constexpr int kDown = 40;
inline constexpr int kInsert = 45;
inline constexpr int kDelete = 46;
inline constexpr int kMenu = 93;
inline constexpr int kF1 = 112;  // F1 to F24 follow each other
inline constexpr int kSemicolon = 186;
inline constexpr int kEquals = 187;
inline constexpr int kComma = 188;
inline constexpr int kMinus = 189;
inline constexpr int kPeriod = 190;
inline constexpr int kSlash = 191;
inline constexpr int kGrave = 192;
inline constexpr int kOpenBracket = 219;
inline constexpr int kBackslash = 220;
inline constexpr int kCloseBracket = 221;
inline constexpr int kApostrophe = 222;
}  // namespace key

// One press of a key. `character` is the Windows-1250 code that it types, 0 where it types none.
struct KeyPress {
  int code = 0;
  int shift = shift::kNone;
  int character = 0;
  bool operator==(const KeyPress&) const = default;
};

enum class MouseButton { Left = 1, Right = 2, Middle = 4 };

}  // namespace morlan
