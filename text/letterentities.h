// The names by which pages write letters and apostrophes in ASCII signs.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace morlan {

// A character reference of a page, read as a character.
struct CharacterReference {
  char32_t codePoint = 0;
  std::size_t length = 0;  // from "&" to ";", or to the end of the number or the name where that is missing
};

// Reads "&oacute;", "&#243;" or "&#xF3;" at the front of a text. Nothing when no reference stands there, or one by a name that is
// neither a letter nor an apostrophe nor a soft hyphen.
std::optional<CharacterReference> ReadCharacterReference(std::string_view text);

// Letters of the scripts that are written with capitals and small letters, and their like: whatever can stand in a word.
bool IsLetter(char32_t codePoint);

}  // namespace morlan
