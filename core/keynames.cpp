#include <array>

#include "core/menus.h"
#include "core/text.h"

namespace morlan {
namespace {

struct KeyName {
  int code;
  std::string_view name;
  int character = 0;  // typed without Ctrl and Alt
  int shifted = 0;    // the same with Shift
};

constexpr KeyName kKeyNames[] = {
    {key::kBackspace, "Backspace"},
    {key::kTab, "Tab", 9, 9},
    {key::kEnter, "Enter", 13, 13},
    {key::kPause, "Pause"},
    {key::kEscape, "Escape", 27, 27},
    {key::kSpace, "Space", ' ', ' '},
    {key::kPageUp, "PageUp"},
    {key::kPageDown, "PageDown"},
    {key::kEnd, "End"},
    {key::kHome, "Home"},
    {key::kLeft, "Left"},
    {key::kUp, "Up"},
    {key::kRight, "Right"},
    {key::kDown, "Down"},
    {key::kInsert, "Insert"},
    {key::kDelete, "Delete"},
    {key::kMenu, "Menu"},
    {key::kSemicolon, ";", ';', ':'},
    {key::kEquals, "=", '=', '+'},
    {key::kComma, ",", ',', '<'},
    {key::kMinus, "-", '-', '_'},
    {key::kPeriod, ".", '.', '>'},
    {key::kSlash, "/", '/', '?'},
    {key::kGrave, "`", '`', '~'},
    {key::kOpenBracket, "[", '[', '{'},
    {key::kBackslash, "\\", '\\', '|'},
    {key::kCloseBracket, "]", ']', '}'},
    {key::kApostrophe, "'", '\'', '"'},
    // Other spellings that are read but not written.
    {key::kEscape, "Esc", 27, 27},
    {key::kDelete, "Del"},
    {key::kInsert, "Ins"},
    {key::kEnter, "Return", 13, 13},
    {key::kPageUp, "PgUp"},
    {key::kPageDown, "PgDn"},
    {key::kMenu, "Apps"},
};

struct ShiftName {
  int mask;
  std::string_view name;
};
constexpr ShiftName kShiftNames[] = {{shift::kCtrl, "Ctrl+"}, {shift::kAlt, "Alt+"}, {shift::kShift, "Shift+"}};

constexpr std::string_view kShiftedDigits = ")!@#$%^&*(";
constexpr int kFunctionKeys = 24;

// The number of a name such as "F12"; 0 when it is none.
int FunctionKeyNumber(std::string_view name) {
  if (name.size() < 2 || name.size() > 3 || LowerCharacter(name[0]) != 'f') return 0;
  int number = 0;
  for (const char digit : name.substr(1)) {
    if (digit < '0' || digit > '9') return 0;
    number = number * 10 + (digit - '0');
  }
  return number <= kFunctionKeys && name[1] != '0' ? number : 0;
}

KeyPress LetterOrDigit(char character, int shift) {
  const char upper = UpperCharacter(character);
  const bool shifted = shift & shift::kShift;
  if (upper >= 'A' && upper <= 'Z') return {upper, shift, shifted ? upper : LowerCharacter(character)};
  if (character >= '0' && character <= '9')
    return {character, shift, shifted ? kShiftedDigits[static_cast<std::size_t>(character - '0')] : character};
  return {};
}

KeyPress NamedKey(std::string_view name, int shift) {
  if (name.size() == 1)
    if (const KeyPress press = LetterOrDigit(name[0], shift); press.code) return press;
  if (const int number = FunctionKeyNumber(name)) return {key::kF1 + number - 1, shift, 0};
  for (const KeyName& known : kKeyNames)
    if (EqualNoCase(known.name, name)) return {known.code, shift, shift & shift::kShift ? known.shifted : known.character};
  return {};
}

}  // namespace

KeyPress KeyFromText(std::string_view text) {
  int shift = shift::kNone;
  for (bool found = true; found;) {
    found = false;
    for (const ShiftName& known : kShiftNames) {
      if (text.size() <= known.name.size() || !StartsWithNoCase(text, known.name)) continue;
      shift |= known.mask;
      text.remove_prefix(known.name.size());
      found = true;
    }
  }
  KeyPress press = NamedKey(text, shift);
  if (shift & (shift::kCtrl | shift::kAlt)) press.character = 0;
  return press;
}

std::string TextOfKey(const KeyPress& press) {
  std::string text;
  for (const ShiftName& known : kShiftNames)
    if (press.shift & known.mask) text += known.name;
  if ((press.code >= 'A' && press.code <= 'Z') || (press.code >= '0' && press.code <= '9')) return text + static_cast<char>(press.code);
  if (press.code >= key::kF1 && press.code < key::kF1 + kFunctionKeys)
    return Concat({text, "F", NumberText(std::int64_t{press.code - key::kF1 + 1})});
  for (const KeyName& known : kKeyNames)
    if (known.code == press.code) return text += known.name;
  return "";
}

}  // namespace morlan
