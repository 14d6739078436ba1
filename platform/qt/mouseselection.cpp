#include "platform/qt/mouseselection.h"

#include <algorithm>

namespace morlan {

void MouseSelection::SelectUnit(std::size_t offset) {
  switch (unit_) {
    case Unit::Character:
      return editor_.SelectFrom(offset, offset);
    case Unit::Word:
      return editor_.SelectWord(offset);
    case Unit::Line:
      return editor_.SelectLine(editor_.LineFromChar(offset));
  }
}

void MouseSelection::Begin(std::size_t offset, Unit unit) {
  unit_ = unit;
  SelectUnit(offset);
  firstStart_ = editor_.SelStart();
  firstEnd_ = firstStart_ + editor_.SelLength();
}

void MouseSelection::Continue(std::size_t offset) {
  unit_ = Unit::Character;
  firstStart_ = firstEnd_ = editor_.Anchor();
  Extend(offset);
}

void MouseSelection::Extend(std::size_t offset) {
  if (unit_ == Unit::Character) return editor_.SelectFrom(firstStart_, offset);
  SelectUnit(offset);
  const std::size_t start = editor_.SelStart(), end = start + editor_.SelLength();
  if (start < firstStart_)
    editor_.SelectFrom(firstEnd_, start);
  else
    editor_.SelectFrom(firstStart_, std::max(end, firstEnd_));
}

}  // namespace morlan
