// The colours of a document's text: of the whole, of a block behind a command, and behind each key.
#pragma once

#include <cstddef>

#include "tags/colourscan.h"

namespace morlan {

class MlnEditor;
class Program;

// Colours the whole text. Plain stretches keep the colour that they have. Nothing happens while UseColorize is off.
void ColorizeDocument(Program& program, MlnEditor& editor);

// Colours from the first "<" at or behind position `from` on, until the next "<" lies beyond `to`. Positions count from 1;
// below 1 they mean the first and the last character. It does not look whether `from` lies inside a tag or a comment.
void ColorizeBlock(Program& program, MlnEditor& editor, std::ptrdiff_t from, std::ptrdiff_t to);

// Reads the settings and gives them to all open documents.
void LoadColours(Program& program);

// After the settings dialog: if the colours have changed, colours every open document whose UseColorise is on.
void RecolourAll(Program& program);

// The program's colours as styles of an edit surface.
ColourStyles ColourStylesOf(const Program& program, MlnEditor& editor);

}  // namespace morlan
