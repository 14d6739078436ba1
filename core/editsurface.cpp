#include "core/editsurface.h"

#include <algorithm>
#include <cstring>
#include <functional>
#include <utility>

namespace morlan {
namespace {

constexpr std::size_t kLargestPalette = 128;
constexpr MlnEditor::Style kColourBits = 0x7F;

bool LiesWithin(const char* place, std::string_view block) {
  const std::less<const char*> before;
  return !block.empty() && !before(place, block.data()) && before(place, block.data() + block.size());
}

}  // namespace

MlnEditor::MlnEditor() = default;
MlnEditor::~MlnEditor() = default;

void MlnEditor::SetText(std::string text) {
  lines_.SetText(text);
  std::vector<Style> styles;
  styles.reserve(styles_.RoomFor(text.size()));
  styles.resize(text.size(), kPlain);
  styles_.Assign(std::move(styles));
  text_.Assign(std::move(text));
  ++revision_;
  Modified = false;
  selStart_ = selLength_ = editedFrom_ = editedTo_ = 0;
  caretAtStart_ = false;
  wantedPlace_ = -1;
  if (view_) view_->TextReset();
}

std::string MlnEditor::Slice(std::size_t offset, std::size_t length) const {
  offset = std::min(offset, Length());
  std::string slice(std::min(length, Length() - offset), '\0');
  text_.CopyTo(slice.data(), offset, slice.size());
  return slice;
}

bool MlnEditor::IsLineStart(std::size_t offset) const {
  if (offset == 0) return true;
  const char before = At(offset - 1);
  return before == '\n' || (before == '\r' && (offset == Length() || At(offset) != '\n'));
}

LineStarts::Change MlnEditor::Replace(std::size_t offset, std::size_t removed, std::string_view inserted) {
  ++revision_;
  std::copy(inserted.begin(), inserted.end(), text_.Replace(offset, removed, inserted.size()));
  std::fill_n(styles_.Replace(offset, removed, inserted.size()), inserted.size(), kPlain);
  // A line end may come to be, or cease to be, at either edge: a CR and a LF meet or part there.
  const std::size_t end = offset + inserted.size();
  std::vector<std::uint32_t> starts;
  if (offset != 0 && IsLineStart(offset)) starts.push_back(static_cast<std::uint32_t>(offset));
  AppendLineStarts(inserted, offset, starts);
  if (!inserted.empty() && IsLineStart(end)) starts.push_back(static_cast<std::uint32_t>(end));
  return lines_.Replace(offset, offset + removed, end, starts);
}

void MlnEditor::SetSelText(std::string_view text) {
  if (text.empty() && selLength_ == 0) return;
  std::string ownText;
  if (LiesWithin(text.data(), FrontText()) || LiesWithin(text.data(), BackText())) text = ownText = text;
  const std::size_t offset = selStart_, removed = selLength_, inserted = text.size();
  const LineStarts::Change lines = Replace(offset, removed, text);
  selStart_ = offset + inserted;
  selLength_ = 0;
  caretAtStart_ = false;
  wantedPlace_ = -1;
  Modified = true;
  editedFrom_ = offset;
  editedTo_ = selStart_;
  if (view_) view_->TextReplaced(offset, removed, inserted, lines.firstLine, lines.removed, lines.inserted);
  SelectionChanged();
  if (OnChange) OnChange();
}

void MlnEditor::SelectionChanged() {
  if (view_) view_->SelectionChanged();
}

void MlnEditor::SetSelStart(std::size_t offset) { Select(offset, selLength_); }
void MlnEditor::SetSelLength(std::size_t length) { Select(selStart_, length); }

void MlnEditor::Select(std::size_t start, std::size_t length) {
  start = std::min(start, Length());
  length = std::min(length, Length() - start);
  const bool changed = start != selStart_ || length != selLength_ || caretAtStart_;
  selStart_ = start;
  selLength_ = length;
  caretAtStart_ = false;
  wantedPlace_ = -1;
  if (changed) SelectionChanged();
}

void MlnEditor::SelectFrom(std::size_t anchor, std::size_t caret) {
  anchor = std::min(anchor, Length());
  caret = std::min(caret, Length());
  const auto [start, end] = std::minmax(anchor, caret);
  const bool changed = caret != Caret() || anchor != Anchor();
  selStart_ = start;
  selLength_ = end - start;
  caretAtStart_ = caret < anchor;
  wantedPlace_ = -1;
  if (changed) SelectionChanged();
}

MlnEditor::Style MlnEditor::StyleOf(Colour colour) {
  if (colour == textColor_) return kPlain;
  const auto found = std::find(palette_.begin() + 1, palette_.end(), colour);
  if (found != palette_.end()) return static_cast<Style>(found - palette_.begin());
  if (palette_.size() == kLargestPalette) return kPlain;
  palette_.push_back(colour);
  return static_cast<Style>(palette_.size() - 1);
}

Colour MlnEditor::ColourOfStyle(Style style) const {
  const std::size_t number = style & kColourBits;
  return number == kPlain || number >= palette_.size() ? textColor_ : palette_[number];
}

void MlnEditor::SetSelColor(Colour colour) {
  const Style wanted = StyleOf(colour);
  styles_.ForStretches(selStart_, selLength_, [wanted](Style* style, Style* end) {
    for (; style != end; ++style) *style = static_cast<Style>((*style & kBold) | wanted);
  });
  if (view_ && selLength_ != 0) view_->StylesChanged(selStart_, selLength_);
}

void MlnEditor::SetSelBold(bool bold) {
  const Style wanted = bold ? kBold : kPlain;
  styles_.ForStretches(selStart_, selLength_, [wanted](Style* style, Style* end) {
    for (; style != end; ++style) *style = static_cast<Style>((*style & kColourBits) | wanted);
  });
  if (view_ && selLength_ != 0) view_->StylesChanged(selStart_, selLength_);
}

void MlnEditor::SetStyle(std::size_t offset, std::size_t length, Style style) {
  offset = std::min(offset, Length());
  length = std::min(length, Length() - offset);
  styles_.ForStretches(offset, length, [style](Style* first, Style* last) { std::fill(first, last, style); });
  if (view_ && length != 0) view_->StylesChanged(offset, length);
}

void MlnEditor::SetStyles(std::size_t offset, const std::vector<Style>& styles) {
  offset = std::min(offset, Length());
  const std::size_t length = std::min(styles.size(), Length() - offset);
  auto source = styles.begin();
  styles_.ForStretches(offset, length, [&source](Style* first, Style* last) {
    std::copy_n(source, last - first, first);
    source += last - first;
  });
  if (view_ && length != 0) view_->StylesChanged(offset, length);
}

std::size_t MlnEditor::LineIndex(std::size_t line) const { return line < LineCount() ? lines_.Start(line) : Length(); }

std::size_t MlnEditor::LineEnd(std::size_t line) const {
  if (line + 1 >= LineCount()) return Length();
  const std::size_t next = lines_.Start(line + 1);
  return next - WidthBefore(next);
}

void MlnEditor::SetWordWrap(bool wrap) {
  if (wordWrap_ == wrap) return;
  wordWrap_ = wrap;
  if (view_) view_->PropertiesChanged();
}

void MlnEditor::SetFont(const FontChoice& font) {
  if (font_ == font) return;
  font_ = font;
  if (view_) view_->PropertiesChanged();
}

void MlnEditor::SetTextColor(Colour colour) {
  if (textColor_ == colour) return;
  textColor_ = colour;
  if (view_) view_->PropertiesChanged();
}

void MlnEditor::SetFocus() {
  if (view_) view_->FocusWanted();
}

}  // namespace morlan
