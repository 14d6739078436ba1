// Text that is dropped on a document. Each drop is one change for the undo.
#pragma once

#include <cstddef>
#include <string_view>

namespace morlan {

class TEditor;

// Inserts the text at the offset (from 0) and selects it.
void DropText(TEditor& document, std::size_t offset, std::string_view text);
// Moves the selected text to the offset and keeps it selected; nothing happens where the offset lies in the selection.
void MoveSelection(TEditor& document, std::size_t offset);
// Takes the selected text out, after it was moved to another program.
void RemoveSelection(TEditor& document);

}  // namespace morlan
