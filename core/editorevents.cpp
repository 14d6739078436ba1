// What a document does with the keys that are pressed in its text: it records changes for undo and runs the commands
// that keys stand for.
#include "core/clipboard.h"
#include "core/defs.h"
#include "core/document.h"
#include "core/documents.h"
#include "core/status.h"
#include "core/text.h"

namespace morlan {
namespace {

constexpr int kAnyShift = -1;

bool IsPasteKey(const KeyPress& press) {
  return (press.code == key::kInsert && press.shift == shift::kShift) || (press.code == 'V' && press.shift == shift::kCtrl);
}

}  // namespace

void TEditor::EditedText_OnKeyDown(KeyPress& press) {
  struct KeyRow {
    int code, shift;
    void (TEditor::*action)(KeyPress& press);
  };
  static constexpr KeyRow kKeys[] = {
      {'Z', shift::kCtrl, &TEditor::RunShortcut},
      {key::kDelete, kAnyShift, &TEditor::RecordDelete},
      {key::kBackspace, kAnyShift, &TEditor::RecordBackspace},
      {key::kInsert, shift::kShift, &TEditor::RecordPaste},
      {'V', shift::kCtrl, &TEditor::RecordPaste},
      {key::kF1 + 3, shift::kNone, &TEditor::OpenSheetOrMenu},
      {key::kMenu, kAnyShift, &TEditor::OpenContextMenu},
      {key::kTab, shift::kCtrl, &TEditor::ShowNextDocument},
      {key::kTab, shift::kCtrl | shift::kShift, &TEditor::ShowPreviousDocument},
      {key::kComma, shift::kCtrl, &TEditor::RepeatInsertion},
      {key::kSpace, shift::kCtrl, &TEditor::InsertNbsp},
      {key::kSpace, shift::kAlt, &TEditor::InsertNbsp},
      {key::kEnter, shift::kCtrl, &TEditor::InsertBr},
  };
  if (program_.DocumentLoading) return;
  program_.LineInfoCounter = 0;
  for (const KeyRow& row : kKeys)
    if (row.code == press.code && (row.shift == kAnyShift || row.shift == press.shift)) return (this->*row.action)(press);
  RunShortcut(press);
}

void TEditor::RunShortcut(KeyPress& press) {
  if (program_.runShortcut && program_.runShortcut(press)) press.code = 0;
}

void TEditor::RecordDelete(KeyPress&) {
  const std::size_t start = EditedText.SelStart();
  RecordDeletion(start, EditedText.WidthBehind(start));
}

void TEditor::RecordBackspace(KeyPress&) {
  const std::size_t width = EditedText.WidthBefore(EditedText.SelStart());
  RecordDeletion(EditedText.SelStart() - width, width);
}

// The selection, or without one the `width` characters at the position.
void TEditor::RecordDeletion(std::size_t position, std::size_t width) {
  lineEdited_ = true;
  if (EditedText.SelLength() != 0)
    UNDO.AddChange(EditedText.SelStart(), EditedText.SelLength(), "", EditedText.SelText(), ChangeKind::Deletion);
  else
    UNDO.AddChange(position, 0, "", EditedText.Slice(position, width), ChangeKind::Deletion);
}

void TEditor::RecordPaste(KeyPress&) {
  const std::string text = ClipboardText(program_);
  if (text.empty()) return;
  lineEdited_ = true;
  UNDO.AddChange(EditedText.SelStart(), EditedText.SelLength(), text, EditedText.SelText(), ChangeKind::Replacement);
}

void TEditor::OpenSheetOrMenu(KeyPress& press) {
  press.code = 0;
  ShowBusy(program_, "");
  const std::string& text = EditedText.Text();
  const std::size_t caret = EditedText.SelStart();
  const bool tagFound =
      std::string_view(text).substr(0, caret).rfind('<') != std::string::npos && text.find('>', caret) != std::string::npos;
  ShowReady(program_);
  if (tagFound && program_.hooks.openPropertySheet && program_.hooks.openPropertySheet(*this)) return;
  if (program_.hooks.showQuickMenu) program_.hooks.showQuickMenu(*this);
}

void TEditor::OpenContextMenu(KeyPress& press) {
  press.code = 0;
  EditedText_OnMouseDown(MouseButton::Right);
}

void TEditor::ShowNextDocument(KeyPress& press) {
  press.code = 0;
  ActivateNextDocument(program_, 1);
}

void TEditor::ShowPreviousDocument(KeyPress& press) {
  press.code = 0;
  ActivateNextDocument(program_, -1);
}

void TEditor::RepeatInsertion(KeyPress& press) {
  press.code = 0;
  if (program_.hooks.repeatLastInsertion) program_.hooks.repeatLastInsertion();
}

void TEditor::InsertNbsp(KeyPress& press) {
  press.code = 0;
  InsertAtCaret(NbspEntity);
}

void TEditor::InsertBr(KeyPress& press) {
  press.code = 0;
  InsertAtCaret(BrTag);
}

void TEditor::EditedText_onKeyPress(int& character) {
  if (program_.DocumentLoading) return;
  if (character == key::kEscape) return HideHints();  // types nothing, so there is nothing to record
  // Enter is recorded with the blanks and the list item that the control adds to it: one undo takes back one key.
  const std::string typed = character == key::kEnter ? EditedText.TextOfEnter() : std::string(1, static_cast<char>(character));
  UNDO.AddChange(EditedText.SelStart(), EditedText.SelLength(), typed, EditedText.SelText(), ChangeKind::Replacement);
  lineEdited_ = true;
  if (character == key::kEnter)
    HideHints();
  else
    ShowHints();
}

void TEditor::ShowHints() {
  if (!program_.HintShow) return;
  const std::string tag = EditedText.CurrentTag();
  const std::string_view name = TrimLeft(tag);
  if (name.empty()) return HideHints();
  const HintSource& hints = program_.hints;
  if (program_.HintShowList) {
    if (FastHelpC.Tag != name) {
      FastHelpC.Clear();
      if (hints.fillHintList) hints.fillHintList(FastHelpC, name);
      FastHelpC.Tag = name;
    }
    FastHelpC.SetVisible(FastHelpC.ListCount() != 0);
    return;
  }
  if (!FastHelpL.Visible() || FastHelpL.Tag != name) {
    FastHelpL.SetCaption(hints.hintBlockText ? hints.hintBlockText(name) : "");
    FastHelpL.Tag = name;
  }
  FastHelpL.SetVisible(!FastHelpL.Caption().empty());
}

void TEditor::HideHints() {
  FastHelpL.SetVisible(false);
  FastHelpC.SetVisible(false);
}

void TEditor::EditedText_OnKeyUp(const KeyPress& press) {
  if (program_.DocumentLoading) return;
  if (IsPasteKey(press)) {
    const auto caret = static_cast<std::ptrdiff_t>(EditedText.SelStart());
    const auto length = static_cast<std::ptrdiff_t>(ClipboardText(program_).size());
    if (length != 0 && program_.passes.colourBlock) program_.passes.colourBlock(EditedText, caret - length, caret);
    FocusActiveDocument(program_);
  }
  ShowLineInfo();
}

}  // namespace morlan
