#include "tags/gaptext.h"

#include <algorithm>

#include "core/editsurface.h"

namespace morlan {
namespace {

// The last place of a character in front of `end`, which lies within the text or behind it.
std::size_t LastBefore(std::string_view text, char character, std::size_t end) {
  return end == 0 ? std::string_view::npos : text.rfind(character, end - 1);
}

}  // namespace

GapText::GapText(const MlnEditor& editor) : front_(editor.FrontText()), back_(editor.BackText()) {}

std::size_t GapText::find(char character, std::size_t from) const {
  if (from < front_.size()) {
    const std::size_t found = front_.find(character, from);
    if (found != npos) return found;
  }
  const std::size_t found = back_.find(character, std::max(from, front_.size()) - front_.size());
  return found == npos ? npos : found + front_.size();
}

std::size_t GapText::FindBackwards(char character, std::size_t end) const {
  if (end > front_.size()) {
    const std::size_t found = LastBefore(back_, character, end - front_.size());
    if (found != npos) return found + front_.size();
  }
  return LastBefore(front_, character, std::min(end, front_.size()));
}

std::string_view GapText::Between(std::size_t begin, std::size_t end, std::string& copy) const {
  const std::size_t length = end - begin;
  if (end <= front_.size()) return front_.substr(begin, length);
  if (begin >= front_.size()) return back_.substr(begin - front_.size(), length);
  copy = front_.substr(begin);
  copy += back_.substr(0, end - front_.size());
  return copy;
}

}  // namespace morlan
