// The letter case of words.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>

#include "platform/lettercase.h"

namespace morlan {

// No letter is a capital.
inline bool IsLower(std::string_view word) {
  return std::all_of(word.begin(), word.end(), [](char letter) { return LowerCharacter(letter) == letter; });
}

// No letter is a small one, and there is a capital.
inline bool IsUpper(std::string_view word) {
  return std::all_of(word.begin(), word.end(), [](char letter) { return UpperCharacter(letter) == letter; }) && !IsLower(word);
}

// The rest stays as it is.
inline std::string WithCapital(std::string word) {
  if (!word.empty()) word.front() = UpperCharacter(word.front());
  return word;
}

}  // namespace morlan
