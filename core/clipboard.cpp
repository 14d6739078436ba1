#include "core/clipboard.h"

#include "core/defs.h"
#include "core/document.h"

namespace morlan {

std::string ClipboardText(Program& program) { return program.platform.clipboard.Text().value_or(""); }

void CopySelection(TEditor& document) {
  if (document.EditedText.SelLength() == 0) return;
  document.program().platform.clipboard.SetText(document.EditedText.SelText());
}

void CutSelection(TEditor& document) {
  MlnEditor& editor = document.EditedText;
  if (editor.SelLength() == 0) return;
  CopySelection(document);
  document.UNDO.AddChange(editor.SelStart(), editor.SelLength(), "", editor.SelText(), ChangeKind::Deletion);
  document.ReplaceAndColour("");
}

void PasteText(TEditor& document, std::string_view text) {
  if (text.empty()) return;
  MlnEditor& editor = document.EditedText;
  document.UNDO.AddChange(editor.SelStart(), editor.SelLength(), text, editor.SelText(), ChangeKind::Replacement);
  document.ReplaceAndColour(text);
}

}  // namespace morlan
