// Colouring while the user types: keeps the colours what a run over the whole text would make them, at the cost of the
// tags round the edit.
#pragma once

#include <cstddef>

#include "tags/colourscan.h"

namespace morlan {

class MlnEditor;
class Program;

// The characters from offset `from` up to `to` are new and plain; what they replaced is gone. Gives back plain colour to
// what is plain again and colours what the edit reaches. Nothing happens in a document that is not coloured.
//
// Where a "<" or a comment is not closed, a whole run paints nothing from there on; here the text behind the edit then
// keeps the colours that it has, so that an opened comment does not take the colours of the rest of the page away.
void ColourEdited(Program& program, MlnEditor& editor, std::size_t from, std::size_t to);
void ColourEdited(MlnEditor& editor, const ColourStyles& colours, std::size_t from, std::size_t to);

}  // namespace morlan
