#include "platform/script/typedkeys.h"

#include "platform/encoding.h"
#include "platform/signkeys.h"

namespace morlan {
namespace {

// The code of a character that comes from no key of the keyboard.
constexpr int kNoKey = 231;

// Characters with a key of their own, whatever the shift keys.
constexpr int kPlainKeys[] = {key::kSpace, key::kTab, key::kEnter, key::kEscape};

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
  for (const int plainKey : kPlainKeys)
    if (plainKey == code) return {plainKey, shift::kNone, code};
  for (const SignKey& row : kSignKeys) {
    if (row.plain == character) return {row.code, shift::kNone, code};
    if (row.shifted == character) return {row.code, shift::kShift, code};
  }
  const std::size_t letter = kPolishLetters.find(character);
  return {letter == std::string_view::npos ? kNoKey : kPolishKeys[letter], shift::kNone, code};
}

}  // namespace morlan
