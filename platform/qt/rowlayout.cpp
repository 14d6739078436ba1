#include "platform/qt/rowlayout.h"

#include <algorithm>
#include <utility>

namespace morlan {
namespace {

constexpr std::size_t kMostLines = 1024;  // whose rows are kept

}  // namespace

void EditorRows::SetGlyphs(const GlyphTable* glyphs) {
  measure_.SetGlyphs(glyphs);
  Forget();
}

void EditorRows::SetPage(double width, std::size_t rows) {
  pageRows_ = std::max<std::size_t>(1, rows);
  if (width == width_) return;
  width_ = width;
  wrapped_.clear();
}

void EditorRows::Forget() {
  wrapped_.clear();
  measure_.Forget();
}

const EditorRows::Starts& EditorRows::StartsOf(std::size_t line) {
  const auto found = wrapped_.find(line);
  if (found != wrapped_.end()) return found->second;
  if (wrapped_.size() >= kMostLines) wrapped_.clear();
  Starts starts{0};
  const std::size_t from = editor_.LineIndex(line), end = editor_.LineEnd(line);
  for (std::size_t next = measure_.NextRowStart(from, end, width_); next < end; next = measure_.NextRowStart(next, end, width_))
    starts.push_back(static_cast<std::uint32_t>(next - from));
  return wrapped_.emplace(line, std::move(starts)).first->second;
}

std::size_t EditorRows::RowsOfLine(std::size_t line) { return editor_.WordWrap() ? StartsOf(line).size() : 1; }

RowPosition EditorRows::LastRow() {
  const std::size_t line = editor_.LineCount() - 1;
  return {line, RowsOfLine(line) - 1};
}

RowPosition EditorRows::PositionOf(std::size_t offset) {
  const std::size_t line = editor_.LineFromChar(offset);
  if (!editor_.WordWrap()) return {line, 0};
  const Starts& starts = StartsOf(line);
  const std::size_t within = std::min(offset, editor_.LineEnd(line)) - editor_.LineIndex(line);
  const auto behind = std::upper_bound(starts.begin(), starts.end(), within);
  return {line, static_cast<std::size_t>(behind - starts.begin()) - 1};
}

RowSpan EditorRows::SpanOf(const RowPosition& position) {
  const std::size_t line = std::min(position.line, editor_.LineCount() - 1);
  const std::size_t start = editor_.LineIndex(line), end = editor_.LineEnd(line);
  if (!editor_.WordWrap()) return {line, start, end, true};
  const Starts& starts = StartsOf(line);
  const std::size_t row = std::min(position.row, starts.size() - 1);
  const bool last = row + 1 == starts.size();
  return {line, start + starts[row], last ? end : start + starts[row + 1], last};
}

RowPosition EditorRows::Moved(RowPosition position, std::ptrdiff_t rows) {
  const std::size_t lastLine = editor_.LineCount() - 1;
  if (!editor_.WordWrap()) {
    const auto line = static_cast<std::ptrdiff_t>(position.line) + rows;
    return {static_cast<std::size_t>(std::clamp<std::ptrdiff_t>(line, 0, static_cast<std::ptrdiff_t>(lastLine))), 0};
  }
  for (; rows < 0; ++rows) {
    if (position.row > 0) {
      --position.row;
    } else if (position.line > 0) {
      --position.line;
      position.row = RowsOfLine(position.line) - 1;
    } else {
      break;
    }
  }
  for (; rows > 0; --rows) {
    if (position.row + 1 < RowsOfLine(position.line)) {
      ++position.row;
    } else if (position.line < lastLine) {
      position = {position.line + 1, 0};
    } else {
      break;
    }
  }
  return position;
}

std::ptrdiff_t EditorRows::Distance(const RowPosition& from, const RowPosition& to, std::ptrdiff_t most) {
  if (to < from) return -Distance(to, from, most);
  if (from.line == to.line) return std::min(static_cast<std::ptrdiff_t>(to.row - from.row), most);
  if (!editor_.WordWrap()) return std::min(static_cast<std::ptrdiff_t>(to.line - from.line), most);
  auto rows = -static_cast<std::ptrdiff_t>(from.row);
  for (std::size_t line = from.line; line < to.line && rows < most; ++line) rows += static_cast<std::ptrdiff_t>(RowsOfLine(line));
  return std::min(rows + static_cast<std::ptrdiff_t>(to.row), most);
}

std::size_t EditorRows::OffsetAt(const RowPosition& position, double x) {
  const RowSpan span = SpanOf(position);
  const std::size_t offset = measure_.Nearest(span, x);
  // The place behind a wrapped row is shown as the start of the next one.
  return offset == span.end && !span.endsLine ? span.end - 1 : offset;
}

std::size_t EditorRows::RowStart(std::size_t offset) { return SpanOf(PositionOf(offset)).start; }

std::size_t EditorRows::RowEnd(std::size_t offset) {
  const RowSpan span = SpanOf(PositionOf(offset));
  return span.endsLine ? span.end : span.end - 1;
}

std::size_t EditorRows::OffsetInRow(std::size_t offset, std::ptrdiff_t rows, double x) {
  return OffsetAt(Moved(PositionOf(offset), rows), x);
}

double EditorRows::HorizontalPlace(std::size_t offset) { return measure_.Place(SpanOf(PositionOf(offset)), offset); }

// Starts of rows up to the one in front of the edited row hold; from there the line is wrapped anew until a row starts
// where one did before.
RowsChange EditorRows::WrapAgain(std::size_t line, std::size_t edited, std::size_t removed, std::size_t inserted, Starts& starts) const {
  const std::size_t from = editor_.LineIndex(line), end = editor_.LineEnd(line);
  const auto editedRow = static_cast<std::size_t>(std::upper_bound(starts.begin(), starts.end(), edited) - starts.begin()) - 1;
  const std::size_t kept = std::max<std::size_t>(1, editedRow);
  const Starts old(starts.begin() + static_cast<std::ptrdiff_t>(kept), starts.end());
  const std::size_t oldCount = starts.size();
  starts.resize(kept);
  auto match = std::lower_bound(old.begin(), old.end(), edited + removed);
  std::size_t lastChanged = 0;
  for (std::size_t next = from + starts.back();;) {
    next = measure_.NextRowStart(next, end, width_);
    lastChanged = starts.size() - 1;
    if (next >= end) break;
    const std::size_t within = next - from;
    while (match != old.end() && *match - removed + inserted < within) ++match;
    if (match != old.end() && *match - removed + inserted == within) {
      for (; match != old.end(); ++match) starts.push_back(static_cast<std::uint32_t>(*match - removed + inserted));
      break;
    }
    starts.push_back(static_cast<std::uint32_t>(within));
  }
  return {starts.size() != oldCount, kept - 1, lastChanged};
}

void EditorRows::RenumberBehind(std::size_t firstLine, std::size_t linesRemoved, std::size_t linesInserted) {
  std::map<std::size_t, Starts> renumbered;
  for (auto& [line, starts] : wrapped_) {
    if (line < firstLine) renumbered.emplace(line, std::move(starts));
    if (line > firstLine + linesRemoved) renumbered.emplace(line - linesRemoved + linesInserted, std::move(starts));
  }
  wrapped_ = std::move(renumbered);
}

RowsChange EditorRows::TextReplaced(std::size_t offset, std::size_t removed, std::size_t inserted, std::size_t firstLine,
                                    std::size_t linesRemoved, std::size_t linesInserted) {
  const bool linesChanged = linesRemoved > 0 || linesInserted > 0;
  measure_.TextReplaced(offset, firstLine, linesChanged);
  if (!editor_.WordWrap()) return {.moved = linesChanged};
  if (linesChanged) {
    RenumberBehind(firstLine, linesRemoved, linesInserted);
    return {.moved = true};
  }
  const auto found = wrapped_.find(firstLine);
  if (found == wrapped_.end()) return {.moved = true};
  return WrapAgain(firstLine, offset - editor_.LineIndex(firstLine), removed, inserted, found->second);
}

bool EditorRows::StylesChanged(std::size_t offset, std::size_t length) {
  if (measure_.Glyphs().IsUniform()) return false;
  const std::size_t first = editor_.LineFromChar(offset), last = editor_.LineFromChar(offset + length);
  if (last - first > kMostLines) {
    Forget();
    return true;
  }
  for (std::size_t line = first; line <= last; ++line) {
    wrapped_.erase(line);
    measure_.ForgetLine(line);
  }
  return true;
}

}  // namespace morlan
