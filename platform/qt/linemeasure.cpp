#include "platform/qt/linemeasure.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <string_view>

namespace morlan {
namespace {

constexpr std::size_t kMostLines = 256;  // whose blocks are kept
constexpr std::size_t kTabColumns = 8;

// The text from `from` up to `to`, which lies in one or two pieces.
template <class Visit>
void VisitText(const MlnEditor& editor, std::size_t from, std::size_t to, Visit visit) {
  const std::string_view front = editor.FrontText(), back = editor.BackText();
  if (from < front.size()) visit(front.substr(from, std::min(to, front.size()) - from));
  if (to > front.size()) {
    const std::size_t start = std::max(from, front.size()) - front.size();
    visit(back.substr(start, to - front.size() - start));
  }
}

std::size_t ColumnsBehind(std::string_view text, std::size_t column) {
  while (!text.empty()) {
    const auto* tab = static_cast<const char*>(std::memchr(text.data(), '\t', text.size()));
    if (!tab) return column + text.size();
    const std::size_t plain = static_cast<std::size_t>(tab - text.data());
    column = ((column + plain) / kTabColumns + 1) * kTabColumns;
    text.remove_prefix(plain + 1);
  }
  return column;
}

}  // namespace

void LineMeasure::SetGlyphs(const GlyphTable* glyphs) {
  glyphs_ = glyphs;
  Forget();
}

double LineMeasure::Behind(std::size_t offset, double place) const {
  const auto byte = static_cast<unsigned char>(editor_.At(offset));
  // The small addition keeps a place that lies on a tab stop, give or take a rounding error, from staying there.
  if (byte == '\t') return (std::floor(place / glyphs_->TabWidth() + 1e-6) + 1) * glyphs_->TabWidth();
  if (glyphs_->IsUniform()) return place + glyphs_->CellWidth();
  return place + glyphs_->FaceOf((editor_.StyleAt(offset) & MlnEditor::kBold) != 0).advances[byte];
}

double LineMeasure::AdvanceByColumns(std::size_t from, std::size_t to, double place) const {
  auto column = static_cast<std::size_t>(std::lround(place / glyphs_->CellWidth()));
  VisitText(editor_, from, to, [&](std::string_view text) { column = ColumnsBehind(text, column); });
  return static_cast<double>(column) * glyphs_->CellWidth();
}

double LineMeasure::Advance(std::size_t from, std::size_t to, double place) const {
  if (glyphs_->IsUniform()) return AdvanceByColumns(from, to, place);
  for (; from < to; ++from) place = Behind(from, place);
  return place;
}

bool LineMeasure::KeepsBlocks(const RowSpan& row) const { return row.end - row.start > kBlock && row.start == editor_.LineIndex(row.line); }

std::vector<double>& LineMeasure::BlocksOf(const RowSpan& row) {
  if (blocks_.size() >= kMostLines && !blocks_.contains(row.line)) blocks_.clear();
  std::vector<double>& places = blocks_[row.line];
  if (places.empty()) places.push_back(0);
  return places;
}

bool LineMeasure::MeasureNextBlock(const RowSpan& row, std::vector<double>& places) const {
  const std::size_t from = row.start + (places.size() - 1) * kBlock;
  if (row.end - from < kBlock) return false;
  places.push_back(Advance(from, from + kBlock, places.back()));
  return true;
}

LineMeasure::Hit LineMeasure::BlockBefore(const RowSpan& row, std::size_t offset) {
  if (!KeepsBlocks(row)) return {row.start, 0};
  std::vector<double>& places = BlocksOf(row);
  const std::size_t wanted = (offset - row.start) / kBlock;
  while (places.size() <= wanted && MeasureNextBlock(row, places)) continue;
  const std::size_t block = std::min(wanted, places.size() - 1);
  return {row.start + block * kBlock, places[block]};
}

double LineMeasure::Place(const RowSpan& row, std::size_t offset) {
  offset = std::clamp(offset, row.start, row.end);
  const Hit block = BlockBefore(row, offset);
  return Advance(block.offset, offset, block.place);
}

LineMeasure::Hit LineMeasure::LastUpTo(const RowSpan& row, double x) {
  Hit hit{row.start, 0};
  if (KeepsBlocks(row)) {
    std::vector<double>& places = BlocksOf(row);
    while (places.back() <= x && MeasureNextBlock(row, places)) continue;
    const auto behind = std::upper_bound(places.begin() + 1, places.end(), x);
    const std::size_t block = static_cast<std::size_t>(behind - places.begin()) - 1;
    hit = {row.start + block * kBlock, places[block]};
  }
  while (hit.offset < row.end) {
    const double next = Behind(hit.offset, hit.place);
    if (next > x) break;
    hit = {hit.offset + 1, next};
  }
  return hit;
}

std::size_t LineMeasure::Nearest(const RowSpan& row, double x) {
  const Hit hit = LastUpTo(row, x);
  if (hit.offset == row.end) return hit.offset;
  return x > (hit.place + Behind(hit.offset, hit.place)) / 2 ? hit.offset + 1 : hit.offset;
}

double LineMeasure::Width(const RowSpan& row) {
  const std::size_t length = row.end - row.start;
  if (!KeepsBlocks(row) || glyphs_->IsUniform()) return Place(row, row.end);
  const std::vector<double>& places = BlocksOf(row);
  const std::size_t measured = (places.size() - 1) * kBlock;
  if (length - measured <= kBlock) return Place(row, row.end);
  const double average = measured > 0 ? places.back() / static_cast<double>(measured) : glyphs_->CellWidth();
  return places.back() + static_cast<double>(length - measured) * average;
}

std::size_t LineMeasure::NextRowStart(std::size_t start, std::size_t end, double width) const {
  double place = 0;
  std::size_t breakAt = start;
  for (std::size_t offset = start; offset < end; ++offset) {
    const char character = editor_.At(offset);
    const bool blank = character == ' ' || character == '\t';
    place = Behind(offset, place);
    if (place > width && offset > start) {
      // A blank may hang over the edge; the row behind it then starts with a word.
      if (blank) return offset + 1;
      return breakAt > start ? breakAt : offset;
    }
    if (blank || character == '-') breakAt = offset + 1;
  }
  return end;
}

void LineMeasure::TextReplaced(std::size_t offset, std::size_t firstLine, bool linesChanged) {
  const auto found = blocks_.find(firstLine);
  if (found != blocks_.end()) {
    const std::size_t intact = (offset - editor_.LineIndex(firstLine)) / kBlock + 1;
    if (found->second.size() > intact) found->second.resize(intact);
  }
  if (linesChanged) blocks_.erase(blocks_.upper_bound(firstLine), blocks_.end());
}

}  // namespace morlan
