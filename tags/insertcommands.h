// The one writer of inserted markup, and the commands that go through it.
#pragma once

#include <cstddef>
#include <string_view>

namespace morlan {

class Program;

// Puts the pair round the selection of the active document, as two undo steps, and remembers it for the repeat command.
// The caret ends directly behind the opening text. Nothing happens when no document is open.
void InsertPair(Program& program, std::string_view openText, std::string_view closeText);

// Inserts the last pair once more.
void RepeatLastInsertion(Program& program);

// Puts a text in the place of the selection, as one undo step that gives the selection back.
void ReplaceSelection(Program& program, std::string_view text);

// Puts a text in the place of `length` characters at an offset of the active document, as one undo step. The caret ends
// behind it. Nothing happens when that text stands there already.
void ReplaceStretch(Program& program, std::size_t offset, std::size_t length, std::string_view text);

// The commands that insert a fixed pair, and the repeat command.
void RegisterInsertCommands(Program& program);

}  // namespace morlan
