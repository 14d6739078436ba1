#include "platform/script/typedkeys.h"

#include "platform/encoding.h"

namespace morlan {
namespace {

// The code of a character that comes from no key of the keyboard.
constexpr int kNoKey = 231;

struct SignRow {
  char plain, shifted;
  int code;
};
constexpr SignRow kSigns[] = {
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
    {' ', ' ', key::kSpace},
    {'\t', '\t', key::kTab},
    {'\r', '\r', key::kEnter},
    {'\x1B', '\x1B', key::kEscape},
};

// The letters behind the right Alt key, and the keys that bear them.
constexpr std::string_view kPolishLetters = "ąćęłńóśźżĄĆĘŁŃÓŚŹŻ"_pl;
constexpr std::string_view kPolishKeys = "ACELNOSXZACELNOSXZ";

bool IsCapital(char character) { return character >= 'A' && character <= 'Z'; }
bool IsSmall(char character) { return character >= 'a' && character <= 'z'; }

}  // namespace

KeyPress KeyOfCharacter(char character) {
  const int code = static_cast<unsigned char>(character);
  if (IsCapital(character)) return {code, shift::kShift, code};
  if (IsSmall(character)) return {code - ('a' - 'A'), shift::kNone, code};
  for (const SignRow& row : kSigns) {
    if (row.plain == character) return {row.code, shift::kNone, code};
    if (row.shifted == character) return {row.code, shift::kShift, code};
  }
  const std::size_t letter = kPolishLetters.find(character);
  return {letter == std::string_view::npos ? kNoKey : kPolishKeys[letter], shift::kNone, code};
}

}  // namespace morlan
