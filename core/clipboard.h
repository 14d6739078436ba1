// Cut, copy and paste between a document and the clipboard.
#pragma once

#include <string>
#include <string_view>

namespace morlan {

class Program;
class TEditor;

// Empty when the clipboard holds no text.
std::string ClipboardText(Program& program);

// An empty selection leaves the clipboard alone.
void CopySelection(TEditor& document);
// One undo step; nothing happens without a selection.
void CutSelection(TEditor& document);
// Replaces the selection by a text, one undo step, and colours it; an empty text does nothing.
void PasteText(TEditor& document, std::string_view text);

}  // namespace morlan
