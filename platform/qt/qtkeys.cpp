#include "platform/qt/qtkeys.h"

#include <QString>
#include <string_view>

#include "platform/encoding.h"
#include "platform/qt/qttext.h"
#include "platform/signkeys.h"

namespace morlan {
namespace {

struct KeyRow {
  int qtKey;
  int code;
};

constexpr KeyRow kNamedKeys[] = {
    {Qt::Key_Backspace, key::kBackspace}, {Qt::Key_Tab, key::kTab},       {Qt::Key_Backtab, key::kTab},
    {Qt::Key_Return, key::kEnter},        {Qt::Key_Enter, key::kEnter},   {Qt::Key_Pause, key::kPause},
    {Qt::Key_Escape, key::kEscape},       {Qt::Key_Space, key::kSpace},   {Qt::Key_PageUp, key::kPageUp},
    {Qt::Key_PageDown, key::kPageDown},   {Qt::Key_End, key::kEnd},       {Qt::Key_Home, key::kHome},
    {Qt::Key_Left, key::kLeft},           {Qt::Key_Up, key::kUp},         {Qt::Key_Right, key::kRight},
    {Qt::Key_Down, key::kDown},           {Qt::Key_Insert, key::kInsert}, {Qt::Key_Delete, key::kDelete},
    {Qt::Key_Menu, key::kMenu},
};

int CodeOfKey(int qtKey) {
  if (qtKey >= Qt::Key_A && qtKey <= Qt::Key_Z) return qtKey;
  if (qtKey >= Qt::Key_F1 && qtKey <= Qt::Key_F24) return key::kF1 + (qtKey - Qt::Key_F1);
  for (const KeyRow& row : kNamedKeys)
    if (row.qtKey == qtKey) return row.code;
  for (const SignKey& row : kSignKeys)
    if (row.plain == qtKey || row.shifted == qtKey) return row.code;
  return 0;
}

int ShiftState(Qt::KeyboardModifiers modifiers) {
  return (modifiers & Qt::ShiftModifier ? shift::kShift : 0) | (modifiers & Qt::ControlModifier ? shift::kCtrl : 0) |
         (modifiers & Qt::AltModifier ? shift::kAlt : 0);
}

bool IsPrintable(const QString& text) { return !text.isEmpty() && (text[0].isPrint() || text[0].isSurrogate()); }

// Whether the event types its text rather than naming a command. AltGr is reported as a modifier of its own, as Ctrl and
// Alt together, or as Alt; a plain Ctrl or Alt combination has no text, or that of the key alone.
bool TypesItsText(const QKeyEvent& event) {
  const QString text = event.text();
  if (!IsPrintable(text)) return false;
  const Qt::KeyboardModifiers modifiers = event.modifiers();
  const bool ctrl = modifiers & Qt::ControlModifier, alt = modifiers & Qt::AltModifier;
  if (modifiers & Qt::GroupSwitchModifier) return true;
  const bool ascii = text[0].unicode() <= 0x7F;
  if (ctrl && alt) return !ascii || text[0].toUpper().unicode() != static_cast<char16_t>(event.key());
  if (ctrl) return false;
  return !alt || !ascii;
}

bool ComesFromAltGr(Qt::KeyboardModifiers modifiers) {
  return modifiers & (Qt::GroupSwitchModifier | Qt::ControlModifier | Qt::AltModifier);
}

// The keys whose character is no printable one.
int ControlCharacterOf(const KeyPress& press) {
  if (press.shift & (shift::kCtrl | shift::kAlt)) return 0;
  if (press.code == key::kEnter || press.code == key::kEscape) return press.code;
  return press.code == key::kTab && press.shift == shift::kNone ? '\t' : 0;
}

}  // namespace

TypedKey ReadKey(const QKeyEvent& event) {
  TypedKey typed;
  const Qt::KeyboardModifiers modifiers = event.modifiers();
  if (modifiers & Qt::MetaModifier) return typed;
  if (event.key() == Qt::Key_F10 && modifiers == Qt::ShiftModifier) return {{key::kMenu, shift::kNone, 0}, ""};
  typed.press = {CodeOfKey(event.key()), ShiftState(modifiers), 0};
  if (!TypesItsText(event)) {
    if (typed.press.code != 0) typed.press.character = ControlCharacterOf(typed.press);
    return typed;
  }
  if (typed.press.code == 0) typed.press.code = kCodeOfOtherKeys;
  if (ComesFromAltGr(modifiers)) typed.press.shift = shift::kNone;
  const QString text = event.text();
  const int byte = text.size() == 1 ? ByteOf(text[0].unicode()) : -1;
  if (byte >= 0)
    typed.press.character = byte;
  else
    typed.text = FromQt(text, Unmappable::NumericReference);
  return typed;
}

}  // namespace morlan
