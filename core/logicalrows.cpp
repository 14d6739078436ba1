#include "core/logicalrows.h"

#include <algorithm>

namespace morlan {
namespace {

constexpr std::size_t kTabStop = 8;

std::size_t ColumnBehind(std::size_t column, char character) {
  return character == '\t' ? column - column % kTabStop + kTabStop : column + 1;
}

}  // namespace

std::size_t LogicalRows::RowStart(std::size_t offset) { return editor_.LineIndex(editor_.LineFromChar(offset)); }
std::size_t LogicalRows::RowEnd(std::size_t offset) { return editor_.LineEnd(editor_.LineFromChar(offset)); }

double LogicalRows::HorizontalPlace(std::size_t offset) {
  std::size_t column = 0;
  for (std::size_t i = RowStart(offset); i < offset; ++i) column = ColumnBehind(column, editor_.At(i));
  return static_cast<double>(column);
}

std::size_t LogicalRows::OffsetInRow(std::size_t offset, std::ptrdiff_t rows, double x) {
  const auto lastLine = static_cast<std::ptrdiff_t>(editor_.LineCount()) - 1;
  const auto line = static_cast<std::ptrdiff_t>(editor_.LineFromChar(offset)) + rows;
  const auto target = static_cast<std::size_t>(std::clamp<std::ptrdiff_t>(line, 0, lastLine));
  const auto wanted = static_cast<std::size_t>(std::max(x, 0.0));
  const std::size_t end = editor_.LineEnd(target);
  std::size_t column = 0, place = editor_.LineIndex(target);
  while (place < end && ColumnBehind(column, editor_.At(place)) <= wanted) column = ColumnBehind(column, editor_.At(place++));
  return place;
}

}  // namespace morlan
