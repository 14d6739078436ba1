// The strip of symbols: the list of national letters and the six buttons of the user's own choice.
#pragma once

#include <string>
#include <string_view>

namespace morlan {

class Program;

// What a symbol inserts, as the list file "Listy\CharSet.lst" tells it; the symbol itself where the file says nothing. The
// store takes capital and small letters for one, so the item with exactly this character goes first.
std::string TextOfSymbol(Program& program, std::string_view symbol);

// Inserts that text at the caret; nothing for an empty symbol.
void InsertSymbol(Program& program, std::string_view symbol);

// Asks which symbol takes the place of the one on a button, from 0.
void ReplaceUserSymbol(Program& program, std::size_t button);

// Gives the controls of the strip their handlers.
void RegisterSymbols(Program& program);

}  // namespace morlan
