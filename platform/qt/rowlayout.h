// The rows in which a text is painted: its lines, or the parts of its lines where they are wrapped.
#pragma once

#include <compare>
#include <cstddef>
#include <cstdint>
#include <map>
#include <vector>

#include "core/editsurface.h"
#include "platform/qt/linemeasure.h"

namespace morlan {

struct RowPosition {
  std::size_t line = 0;  // from 0
  std::size_t row = 0;   // within the line, from 0
  auto operator<=>(const RowPosition&) const = default;
};

// What an edit does to the rows of its first line.
struct RowsChange {
  bool moved = false;               // the rows behind may lie elsewhere now
  std::size_t first = 0, last = 0;  // the rows with another content; the last one counts only where none moved
};

// Rows of wrapped lines are computed when they are asked for, which a view does for what it shows, and kept across edits
// as far as these leave them alone.
class EditorRows final : public RowLayout {
 public:
  explicit EditorRows(const MlnEditor& editor) : editor_(editor), measure_(editor) {}

  void SetGlyphs(const GlyphTable* glyphs);
  // The width to which lines are wrapped, in pixels, and the whole rows that the view shows.
  void SetPage(double width, std::size_t rows);

  std::size_t RowStart(std::size_t offset) override;
  std::size_t RowEnd(std::size_t offset) override;
  std::size_t OffsetInRow(std::size_t offset, std::ptrdiff_t rows, double x) override;
  double HorizontalPlace(std::size_t offset) override;
  std::size_t RowsInPage() override { return pageRows_; }

  RowPosition PositionOf(std::size_t offset);
  RowSpan SpanOf(const RowPosition& position);
  std::size_t RowsOfLine(std::size_t line);
  RowPosition LastRow();
  // Some rows further down, or up when negative; stops at the first and the last row.
  RowPosition Moved(RowPosition position, std::ptrdiff_t rows);
  // Rows from the first to the second position, negative when that lies above; counts no further than `most`.
  std::ptrdiff_t Distance(const RowPosition& from, const RowPosition& to, std::ptrdiff_t most);
  // The offset nearest to x that is shown in the row.
  std::size_t OffsetAt(const RowPosition& position, double x);
  LineMeasure& Measure() { return measure_; }

  void Forget();
  // The same events that a view of the text gets.
  RowsChange TextReplaced(std::size_t offset, std::size_t removed, std::size_t inserted, std::size_t firstLine, std::size_t linesRemoved,
                          std::size_t linesInserted);
  // True when characters may have moved.
  bool StylesChanged(std::size_t offset, std::size_t length);

 private:
  // Offsets at which the rows of a line start, counted from the line's start; the first is 0.
  using Starts = std::vector<std::uint32_t>;
  const Starts& StartsOf(std::size_t line);
  RowsChange WrapAgain(std::size_t line, std::size_t edited, std::size_t removed, std::size_t inserted, Starts& starts) const;
  void RenumberBehind(std::size_t firstLine, std::size_t linesRemoved, std::size_t linesInserted);

  const MlnEditor& editor_;
  LineMeasure measure_;
  double width_ = 1;
  std::size_t pageRows_ = 1;
  std::map<std::size_t, Starts> wrapped_;  // by line
};

}  // namespace morlan
