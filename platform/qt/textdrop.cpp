#include "platform/qt/textdrop.h"

#include <algorithm>
#include <string>

#include "core/clipboard.h"
#include "core/document.h"
#include "core/text.h"

namespace morlan {

void DropText(TEditor& document, std::size_t offset, std::string_view text) {
  if (text.empty()) return;
  document.EditedText.Select(offset, 0);
  PasteText(document, text);
  document.EditedText.Select(offset, text.size());
}

void MoveSelection(TEditor& document, std::size_t offset) {
  MlnEditor& editor = document.EditedText;
  const std::size_t start = editor.SelStart(), length = editor.SelLength();
  if (length == 0 || (offset >= start && offset <= start + length)) return;
  // The stretch between the old place and the new one is replaced as a whole, so that one undo brings it back.
  const std::size_t from = std::min(start, offset), to = std::max(start + length, offset);
  const std::string moved = editor.SelText();
  const std::string passed = offset < start ? editor.Slice(offset, start - offset) : editor.Slice(start + length, offset - start - length);
  const std::string before = editor.Slice(from, to - from);
  const std::string after = offset < start ? Concat({moved, passed}) : Concat({passed, moved});
  document.UNDO.AddChange(from, 0, after, before, ChangeKind::Replacement);
  editor.Select(from, to - from);
  document.ReplaceAndColour(after);
  editor.Select(offset < start ? offset : offset - length, length);
}

void RemoveSelection(TEditor& document) {
  MlnEditor& editor = document.EditedText;
  if (editor.SelLength() == 0) return;
  document.UNDO.AddChange(editor.SelStart(), editor.SelLength(), "", editor.SelText(), ChangeKind::Deletion);
  document.ReplaceAndColour("");
}

}  // namespace morlan
