// Where the characters of a row of text lie, in pixels from the row's left edge.
#pragma once

#include <cstddef>
#include <map>
#include <vector>

#include "core/editsurface.h"
#include "platform/qt/glyphtable.h"

namespace morlan {

// A painted row: a whole line of the text, or a part of one where lines are wrapped. Offsets count from 0.
struct RowSpan {
  std::size_t line = 0;   // from 0
  std::size_t start = 0;  // of its first character
  std::size_t end = 0;    // behind its last character; a line end is not part of a row
  bool endsLine = true;   // the line has no row behind this one
};

// Rows longer than a block are measured block by block and the places of the blocks kept, so that a key press in a line of
// a megabyte measures what it shows and no more.
class LineMeasure {
 public:
  static constexpr std::size_t kBlock = 2048;

  explicit LineMeasure(const MlnEditor& editor) : editor_(editor) {}
  void SetGlyphs(const GlyphTable* glyphs);
  const GlyphTable& Glyphs() const { return *glyphs_; }

  struct Hit {
    std::size_t offset;
    double place;
  };
  double Place(const RowSpan& row, std::size_t offset);
  // The last place between two characters of the row that does not lie right of x.
  Hit LastUpTo(const RowSpan& row, double x);
  // The place between two characters that is nearest to x.
  std::size_t Nearest(const RowSpan& row, double x);
  // Exact for what has been measured; the rest of a very long row in a proportional font is estimated.
  double Width(const RowSpan& row);
  // Where the row behind the one that starts at `start` begins when rows are `width` wide; `end` when there is none.
  std::size_t NextRowStart(std::size_t start, std::size_t end, double width) const;
  // The place behind the character at `offset` that itself lies at `place`.
  double Behind(std::size_t offset, double place) const;

  void Forget() { blocks_.clear(); }
  void ForgetLine(std::size_t line) { blocks_.erase(line); }
  // The characters from `offset` on changed, and the lines behind their line may have other numbers now.
  void TextReplaced(std::size_t offset, std::size_t firstLine, bool linesChanged);

 private:
  bool KeepsBlocks(const RowSpan& row) const;
  Hit BlockBefore(const RowSpan& row, std::size_t offset);
  std::vector<double>& BlocksOf(const RowSpan& row);
  bool MeasureNextBlock(const RowSpan& row, std::vector<double>& places) const;
  double Advance(std::size_t from, std::size_t to, double place) const;
  double AdvanceByColumns(std::size_t from, std::size_t to, double place) const;

  const MlnEditor& editor_;
  const GlyphTable* glyphs_ = nullptr;
  std::map<std::size_t, std::vector<double>> blocks_;  // line -> places of its blocks
};

}  // namespace morlan
