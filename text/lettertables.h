// The exchange of national letters between character sets, each in one pass over the text. All other bytes stay as they are.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "text/charsetfile.h"

namespace morlan {

// What becomes of each byte.
using ByteTable = std::array<unsigned char, 256>;

// The letters are exchanged one after the other, in the order of the codes, so that a later one also takes what an earlier
// one has produced. A letter without a code on either side stays.
ByteTable ChainedTable(const CharSetCodes& source, const CharSetCodes& target);

// The letters of a set that do not come back from the set of edited texts, or are others there, since one exchange takes what
// another has produced.
std::string MixedLetters(const CharSetCodes& set, const CharSetCodes& edited);

std::string Substituted(std::string text, const ByteTable& table);

// The letters with these codes as "&#" and the decimal code, without a ";". Codes of the characters that a symbol is made of
// are passed over.
std::string LettersToSymbols(std::string text, const CharSetCodes& codes);

struct ReadSymbols {
  std::string text;
  bool replaced = false;  // there was at least one symbol
};
// "&#" and at most three digits as the character of that code; a ";" behind them stays. 0 and numbers above 255 are left.
ReadSymbols SymbolsToCharacters(std::string text);

// The letters of Windows-1250 as their pairs in UTF-8, and back.
std::string LettersToUtf8(std::string_view text);
std::string LettersFromUtf8(std::string text);

}  // namespace morlan
