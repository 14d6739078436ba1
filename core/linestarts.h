// Where the lines of a text start, kept up to date by edits. A line ends in CR LF, a lone LF or a lone CR.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "core/gapbuffer.h"

namespace morlan {

// Lines and offsets count from 0; offsets must fit in 32 bits.
class LineStarts {
 public:
  LineStarts() { SetText(""); }
  void SetText(std::string_view text);

  std::size_t Count() const { return starts_.Size(); }
  // `line` must exist.
  std::size_t Start(std::size_t line) const { return starts_.At(line) + (line < shiftFrom_ ? 0 : shift_); }
  std::size_t LineOf(std::size_t offset) const { return FirstBehind(offset) - 1; }

  struct Change {
    std::size_t firstLine;  // the line in which the change begins
    std::size_t removed, inserted;
  };
  // The characters from `offset` up to `oldEnd` gave way to those up to `newEnd`. `starts` holds the line starts of the
  // new text from `offset` to `newEnd`, both included, in order and without 0.
  Change Replace(std::size_t offset, std::size_t oldEnd, std::size_t newEnd, const std::vector<std::uint32_t>& starts);

 private:
  std::size_t FirstBehind(std::size_t offset) const;  // the first line that starts behind the offset
  void MoveShift(std::size_t line);

  GapBuffer<std::vector<std::uint32_t>> starts_;
  // Lines from shiftFrom_ on start `shift_` characters (modulo 2^32) behind their entry: a character typed in the middle
  // of a long text then touches no entry at all.
  std::size_t shiftFrom_ = 0;
  std::uint32_t shift_ = 0;
};

// Adds the offsets, each moved by `base`, at which lines start within the text; those at its very front and end, which
// depend on its neighbours, are left out.
void AppendLineStarts(std::string_view text, std::size_t base, std::vector<std::uint32_t>& starts);

}  // namespace morlan
