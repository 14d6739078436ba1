#include "tags/insertcommands.h"

#include <algorithm>
#include <string>

#include "core/defs.h"
#include "core/document.h"
#include "core/text.h"
#include "tags/colouring.h"
#include "tags/editedcolouring.h"
#include "tags/pairrows.h"
#include "tags/tagscan.h"

namespace morlan {
namespace {

constexpr std::string_view kRepeatEntry = "xmn_repeatlastinsertion";

std::ptrdiff_t Signed(std::size_t position) { return static_cast<std::ptrdiff_t>(position); }

}  // namespace

void InsertPair(Program& program, std::string_view openText, std::string_view closeText) {
  if (!program.ActiveDocument) return;
  TEditor& document = *program.ActiveDocument;
  MlnEditor& editor = document.EditedText;
  TagState& state = program.tagState;
  // The pair may be the remembered one itself, which changes at the end.
  const std::string open(openText), close(closeText);
  state.ColorizeEnabled = true;
  state.LastTagName = open.starts_with('<') ? GetTagName(open) : std::string();
  document.menu.SetCaption(kRepeatEntry, Concat({"Powtórz wstawienie <"_pl, state.LastTagName, ">"}));
  const std::size_t start = editor.SelStart(), length = editor.SelLength();
  editor.SetSelLength(0);
  editor.SetSelText(open);
  document.UNDO.AddChange(start, 0, open, "", ChangeKind::Replacement);
  const std::size_t behindSelection = start + open.size() + length;
  editor.Select(behindSelection, 0);
  document.UNDO.AddChange(behindSelection, 0, close, "", ChangeKind::Replacement);
  editor.SetSelText(close);
  ColorizeBlock(program, editor, Signed(start) - 1, Signed(behindSelection + close.size()));
  // The block does not know that it may lie in a comment or in the middle of a tag.
  ColourEdited(program, editor, start, behindSelection + close.size());
  editor.Select(start + open.size(), 0);
  editor.SetFocus();
  state.LastOpenText = open;
  state.LastCloseText = close;
}

void RepeatLastInsertion(Program& program) { InsertPair(program, program.tagState.LastOpenText, program.tagState.LastCloseText); }

void ReplaceSelection(Program& program, std::string_view text) {
  if (!program.ActiveDocument) return;
  MlnEditor& editor = program.ActiveDocument->EditedText;
  const std::string removed = editor.SelText();
  program.ActiveDocument->UNDO.AddChange(editor.SelStart(), editor.SelLength(), text, removed, ChangeKind::Replacement);
  editor.SetSelText(text);
  ColourEdited(program, editor, editor.SelStart() - text.size(), editor.SelStart());
  editor.SetFocus();
}

void ReplaceStretch(Program& program, std::size_t offset, std::size_t length, std::string_view text) {
  if (!program.ActiveDocument) return;
  MlnEditor& editor = program.ActiveDocument->EditedText;
  const std::string old = editor.Slice(offset, length);
  if (old == text) return;
  program.ActiveDocument->UNDO.AddChange(offset, 0, text, old, ChangeKind::Replacement);
  editor.Select(offset, length);
  editor.SetSelText(text);
  ColourEdited(program, editor, offset, offset + text.size());
}

void RegisterInsertCommands(Program& program) {
  for (const PairRow& row : PairRows()) {
    const auto run = [&program, &row] { InsertPair(program, row.open, row.close); };
    program.commands.OnMenu(row.menu, run);
    if (!row.toolbar.empty()) program.commands.OnToolbar(row.toolbar, row.key, run);
  }
  program.commands.OnMenu(kRepeatEntry, [&program] { RepeatLastInsertion(program); });
}

}  // namespace morlan
