#include "text/textsearch.h"

#include <algorithm>
#include <string>

#include "core/text.h"
#include "core/words.h"

namespace morlan {
namespace {

constexpr std::size_t kNone = std::string_view::npos;

// As Find and FindNoCase, with offsets from 0 on both sides.
std::size_t FindIn(std::string_view stretch, std::string_view text, std::size_t from, std::uint8_t options) {
  if (from >= stretch.size()) return kNone;
  const std::size_t position = (options & kMatchCase) != 0 ? Find(stretch, text, from + 1) : FindNoCase(stretch, text, from + 1);
  return position == 0 ? kNone : position - 1;
}

// The first hit, whole word or not.
std::size_t FirstHit(const MlnEditor& editor, std::string_view text, std::size_t from, std::uint8_t options) {
  const std::string_view front = editor.FrontText(), back = editor.BackText();
  if (const std::size_t hit = FindIn(front, text, from, options); hit != kNone) return hit;
  // What begins in front of the gap and ends behind it.
  const std::size_t reach = text.size() - 1;
  const std::size_t seamStart = std::max(from, front.size() - std::min(front.size(), reach));
  if (seamStart < front.size()) {
    const std::string seam = Concat({front.substr(seamStart), back.substr(0, reach)});
    if (const std::size_t hit = FindIn(seam, text, 0, options); hit != kNone) return seamStart + hit;
  }
  const std::size_t hit = FindIn(back, text, from - std::min(from, front.size()), options);
  return hit == kNone ? kNone : front.size() + hit;
}

bool IsWholeWord(const MlnEditor& editor, std::size_t start, std::size_t end) {
  return (start == 0 || !IsWordCharacter(editor.At(start - 1))) && (end == editor.Length() || !IsWordCharacter(editor.At(end)));
}

}  // namespace

std::optional<std::size_t> FindInText(const MlnEditor& editor, std::string_view text, std::size_t from, std::uint8_t options) {
  if (text.empty()) return std::nullopt;
  for (;;) {
    const std::size_t hit = FirstHit(editor, text, from, options);
    if (hit == kNone) return std::nullopt;
    if ((options & kWholeWords) == 0 || IsWholeWord(editor, hit, hit + text.size())) return hit;
    from = hit + 1;
  }
}

}  // namespace morlan
