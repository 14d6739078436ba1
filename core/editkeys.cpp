// What the control itself does with a key, behind the program's handlers: moving, selecting, deleting, typing.
#include <algorithm>

#include "core/editsurface.h"
#include "core/logicalrows.h"
#include "core/text.h"
#include "core/words.h"

namespace morlan {
namespace {

// A tag, and a list item in front of the caret, are not sought farther back than this.
constexpr std::size_t kLongestTag = 16384;
constexpr std::size_t kLongestItem = 4096;

std::size_t SkipForward(const MlnEditor& editor, std::size_t offset, CharacterClass wanted) {
  while (offset < editor.Length() && ClassOf(editor.At(offset)) == wanted) ++offset;
  return offset;
}

std::size_t SkipBack(const MlnEditor& editor, std::size_t offset, CharacterClass wanted) {
  while (offset > 0 && ClassOf(editor.At(offset - 1)) == wanted) --offset;
  return offset;
}

// The start of the next word; a line end is a stop of its own.
std::size_t NextWord(const MlnEditor& editor, std::size_t offset) {
  if (offset >= editor.Length()) return editor.Length();
  const CharacterClass here = ClassOf(editor.At(offset));
  if (here == CharacterClass::LineEnd) return offset + editor.WidthBehind(offset);
  return SkipForward(editor, SkipForward(editor, offset, here), CharacterClass::Blank);
}

std::size_t PreviousWord(const MlnEditor& editor, std::size_t offset) {
  if (offset == 0) return 0;
  if (IsLineEndCharacter(editor.At(offset - 1))) return offset - editor.WidthBefore(offset);
  const std::size_t end = SkipBack(editor, offset, CharacterClass::Blank);
  if (end == 0 || IsLineEndCharacter(editor.At(end - 1))) return end;
  return SkipBack(editor, end, ClassOf(editor.At(end - 1)));
}

bool HoldsListItem(std::string_view text) {
  constexpr std::string_view kItem = "<LI";
  for (std::size_t at = FindNoCase(text, kItem); at != 0; at = FindNoCase(text, kItem, at + 1)) {
    const std::size_t behind = at - 1 + kItem.size();
    if (behind < text.size() && (text[behind] == '>' || text[behind] == ' ')) return true;
  }
  return false;
}

}  // namespace

std::size_t MlnEditor::WidthBefore(std::size_t offset) const {
  offset = std::min(offset, Length());
  if (offset == 0) return 0;
  return offset > 1 && At(offset - 1) == '\n' && At(offset - 2) == '\r' ? 2 : 1;
}

std::size_t MlnEditor::WidthBehind(std::size_t offset) const {
  if (offset >= Length()) return 0;
  return offset + 1 < Length() && At(offset) == '\r' && At(offset + 1) == '\n' ? 2 : 1;
}

void MlnEditor::MoveCaret(std::size_t caret, bool selecting) {
  caret = std::min(caret, Length());
  const bool insideLineEnd = caret > 0 && caret < Length() && At(caret) == '\n' && At(caret - 1) == '\r';
  if (insideLineEnd) --caret;
  SelectFrom(selecting ? Anchor() : caret, caret);
}

void MlnEditor::SelectWord(std::size_t offset) {
  offset = std::min(offset, Length());
  const bool atLineEnd = offset == Length() || IsLineEndCharacter(At(offset));
  if (atLineEnd && (offset == 0 || IsLineEndCharacter(At(offset - 1)))) return SelectFrom(offset, offset);
  const CharacterClass wanted = ClassOf(At(atLineEnd ? offset - 1 : offset));
  SelectFrom(SkipBack(*this, offset, wanted), SkipForward(*this, offset, wanted));
}

void MlnEditor::SelectLine(std::size_t line) {
  line = std::min(line, LineCount() - 1);
  SelectFrom(LineIndex(line), LineIndex(line + 1));
}

void MlnEditor::MoveByRows(std::ptrdiff_t rows, bool selecting, RowLayout& layout) {
  const double place = wantedPlace_ < 0 ? layout.HorizontalPlace(Caret()) : wantedPlace_;
  MoveCaret(layout.OffsetInRow(Caret(), rows, place), selecting);
  wantedPlace_ = place;
}

bool MlnEditor::MoveByKey(const KeyPress& press, RowLayout& layout) {
  const bool selecting = (press.shift & shift::kShift) != 0, byWord = (press.shift & shift::kCtrl) != 0;
  const bool collapsing = selLength_ != 0 && !selecting && !byWord;
  const auto rowsInPage = static_cast<std::ptrdiff_t>(std::max<std::size_t>(layout.RowsInPage(), 2) - 1);
  const std::size_t caret = Caret();
  switch (press.code) {
    case key::kLeft:
      MoveCaret(collapsing ? selStart_ : byWord ? PreviousWord(*this, caret) : caret - WidthBefore(caret), selecting);
      return true;
    case key::kRight:
      MoveCaret(collapsing ? selStart_ + selLength_ : byWord ? NextWord(*this, caret) : caret + WidthBehind(caret), selecting);
      return true;
    case key::kHome:
      MoveCaret(byWord ? 0 : layout.RowStart(caret), selecting);
      return true;
    case key::kEnd:
      MoveCaret(byWord ? Length() : layout.RowEnd(caret), selecting);
      return true;
    case key::kUp:
    case key::kDown:
      if (byWord) return false;
      MoveByRows(press.code == key::kUp ? -1 : 1, selecting, layout);
      return true;
    case key::kPageUp:
    case key::kPageDown:
      MoveByRows(press.code == key::kPageUp ? -rowsInPage : rowsInPage, selecting, layout);
      return true;
    default:
      return false;
  }
}

void MlnEditor::DeleteByKey(bool backwards) {
  if (selLength_ == 0) {
    const std::size_t width = backwards ? WidthBefore(selStart_) : WidthBehind(selStart_);
    if (width == 0) return;
    selStart_ -= backwards ? width : 0;
    selLength_ = width;
  }
  SetSelText("");
}

bool MlnEditor::PerformKey(const KeyPress& press, RowLayout* layout) {
  if (press.code == key::kBackspace || press.code == key::kDelete) {
    DeleteByKey(press.code == key::kBackspace);
    return true;
  }
  if ((press.shift & shift::kAlt) != 0) return false;
  LogicalRows logicalRows(*this);
  return MoveByKey(press, layout ? *layout : logicalRows);
}

void MlnEditor::PerformCharacter(char character) {
  if (character == '\r')
    SetSelText(TextOfEnter());
  else
    SetSelText({&character, 1});
}

std::string MlnEditor::TextOfEnter() const {
  const std::size_t lineStart = LineIndex(LineFromChar(selStart_));
  std::string typed(CrLf);
  if (SetupCarret)
    for (std::size_t i = lineStart; i < selStart_ && (At(i) == ' ' || At(i) == '\t'); ++i) typed += At(i);
  const std::size_t length = std::min(selStart_ - lineStart, kLongestItem);
  if (ExtendLI && HoldsListItem(Slice(selStart_ - length, length))) typed += "<LI>";
  return typed;
}

std::string MlnEditor::CurrentTag() const {
  const std::size_t caret = Caret(), limit = caret - std::min(caret, kLongestTag);
  std::size_t start = caret;
  while (start > limit && At(start - 1) != '<' && At(start - 1) != '>') --start;
  if (start == limit || At(start - 1) == '>') return "";
  std::size_t end = start;
  while (end < caret && At(end) == ' ') ++end;
  while (end < caret && ClassOf(At(end)) != CharacterClass::Blank && ClassOf(At(end)) != CharacterClass::LineEnd) ++end;
  return Slice(start, end - start);
}

}  // namespace morlan
