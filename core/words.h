// What makes a word: letters of Windows-1250, the Polish ones included, digits and the underscore.
#pragma once

#include "platform/lettercase.h"

namespace morlan {

inline bool IsWordCharacter(char character) {
  constexpr char kSharpS = '\xDF';  // the one letter without a capital
  return (character >= '0' && character <= '9') || character == '_' || character == kSharpS ||
         LowerCharacter(character) != UpperCharacter(character);
}

inline bool IsBlankCharacter(char character) {
  constexpr char kNoBreakSpace = '\xA0';
  return character == ' ' || character == '\t' || character == kNoBreakSpace;
}

inline bool IsLineEndCharacter(char character) { return character == '\r' || character == '\n'; }

enum class CharacterClass { Word, Blank, LineEnd, Sign };

inline CharacterClass ClassOf(char character) {
  if (IsLineEndCharacter(character)) return CharacterClass::LineEnd;
  if (IsBlankCharacter(character)) return CharacterClass::Blank;
  return IsWordCharacter(character) ? CharacterClass::Word : CharacterClass::Sign;
}

}  // namespace morlan
