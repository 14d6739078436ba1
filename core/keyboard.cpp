#include "core/keyboard.h"

#include "core/clipboard.h"
#include "core/defs.h"
#include "core/document.h"

namespace morlan {
namespace {

constexpr int kCommandShifts = shift::kCtrl | shift::kAlt;

// The clipboard keys that are the control's own; the others are shortcuts of the menu. Their records were made on key
// down.
struct ClipboardKey {
  int code, shift;
  void (*action)(TEditor& document);
};

void Paste(TEditor& document) {
  if (const std::string text = ClipboardText(document.program()); !text.empty()) document.EditedText.SetSelText(text);
}

void CutByDelete(TEditor& document) {
  CopySelection(document);
  document.EditedText.PerformKey({.code = key::kDelete}, nullptr);
}

constexpr ClipboardKey kClipboardKeys[] = {
    {'V', shift::kCtrl, Paste},
    {key::kInsert, shift::kShift, Paste},
    {key::kInsert, shift::kCtrl, CopySelection},
    {key::kDelete, shift::kShift, CutByDelete},
};

bool RunClipboardKey(TEditor& document, const KeyPress& press) {
  for (const ClipboardKey& row : kClipboardKeys) {
    if (row.code != press.code || row.shift != press.shift) continue;
    row.action(document);
    return true;
  }
  return false;
}

bool RunMenuShortcut(TEditor& document, const KeyPress& press) {
  constexpr int kLastFunctionKey = key::kF1 + 23;
  const bool functionKey = press.code >= key::kF1 && press.code <= kLastFunctionKey;
  if (!functionKey && (press.shift & kCommandShifts) == 0) return false;
  const MenuEntry* entry = document.menu.FindShortcut(press);
  if (!entry) return false;
  const std::string name = entry->name;  // the command may change the menu
  return document.program().commands.RunMenu(name);
}

// The character that reaches the text, 0 for none.
int TypedCharacter(const KeyPress& press) {
  if ((press.shift & kCommandShifts) != 0) return 0;
  // These three type the character of their code.
  const int character = press.character != 0 ? press.character : press.code;
  if (character == key::kEnter || character == key::kTab || character == key::kEscape) return character;
  constexpr int kFirstPrintable = 32, kRubout = 127, kLastCharacter = 255;
  const bool printable = press.character >= kFirstPrintable && press.character <= kLastCharacter && press.character != kRubout;
  return printable ? press.character : 0;
}

void TypeOrMove(TEditor& document, const KeyPress& press) {
  int character = TypedCharacter(press);
  if (character == 0) {
    document.EditedText.PerformKey(press, document.EditedText.AttachedLayout());
    return;
  }
  document.EditedText_onKeyPress(character);
  if (character != 0 && character != key::kEscape) document.EditedText.PerformCharacter(static_cast<char>(character));
}

}  // namespace

void PressKey(TEditor& document, KeyPress press) {
  Program& program = document.program();
  if (program.DocumentLoading || !document.EditedText.Enabled) return;
  const bool hadCode = press.code != 0;
  document.EditedText_OnKeyDown(press);
  const bool swallowed = hadCode && press.code == 0;
  if (!swallowed && !RunClipboardKey(document, press) && !RunMenuShortcut(document, press)) TypeOrMove(document, press);
  // The key may have brought another document forward or closed this one.
  if (program.ActiveDocument) program.ActiveDocument->EditedText_OnKeyUp(press);
}

void InsertTyped(TEditor& document, std::string_view text) {
  if (document.program().DocumentLoading || !document.EditedText.Enabled || text.empty()) return;
  MlnEditor& editor = document.EditedText;
  document.UNDO.AddChange(editor.SelStart(), editor.SelLength(), text, editor.SelText(), ChangeKind::Replacement);
  document.ExpectTyping();
  editor.SetSelText(text);
  document.ShowLineInfo();
}

}  // namespace morlan
