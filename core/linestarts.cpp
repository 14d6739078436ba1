#include "core/linestarts.h"

#include <algorithm>
#include <utility>

namespace morlan {

void AppendLineStarts(std::string_view text, std::size_t base, std::vector<std::uint32_t>& starts) {
  constexpr std::size_t kNone = std::string_view::npos;
  std::size_t carriageReturn = text.find('\r'), lineFeed = text.find('\n');
  while (carriageReturn != kNone || lineFeed != kNone) {
    std::size_t start;
    if (carriageReturn < lineFeed) {
      start = carriageReturn + 1;
      if (start == lineFeed) lineFeed = text.find('\n', ++start);
      carriageReturn = text.find('\r', start);
    } else {
      start = lineFeed + 1;
      lineFeed = text.find('\n', start);
    }
    if (start < text.size()) starts.push_back(static_cast<std::uint32_t>(base + start));
  }
}

void LineStarts::SetText(std::string_view text) {
  std::vector<std::uint32_t> starts{0};
  AppendLineStarts(text, 0, starts);
  if (!text.empty() && (text.back() == '\n' || text.back() == '\r')) starts.push_back(static_cast<std::uint32_t>(text.size()));
  starts_.Assign(std::move(starts));
  shiftFrom_ = starts_.Size();
  shift_ = 0;
}

std::size_t LineStarts::FirstBehind(std::size_t offset) const {
  std::size_t low = 0, high = Count();
  while (low < high) {
    const std::size_t middle = low + (high - low) / 2;
    if (Start(middle) <= offset)
      low = middle + 1;
    else
      high = middle;
  }
  return low;
}

void LineStarts::MoveShift(std::size_t line) {
  const auto [first, last] = std::minmax(line, shiftFrom_);
  const std::uint32_t change = line > shiftFrom_ ? shift_ : 0 - shift_;
  starts_.ForStretches(first, last - first, [change](std::uint32_t* entry, std::uint32_t* end) {
    for (; entry != end; ++entry) *entry += change;
  });
  shiftFrom_ = line;
}

LineStarts::Change LineStarts::Replace(std::size_t offset, std::size_t oldEnd, std::size_t newEnd,
                                       const std::vector<std::uint32_t>& starts) {
  // Line 0 starts at 0 whatever the text is.
  std::size_t first = offset == 0 ? 1 : FirstBehind(offset - 1);
  const std::size_t behind = FirstBehind(oldEnd);
  auto fresh = starts.begin();
  if (first < behind && fresh != starts.end() && Start(first) == offset && *fresh == offset) {
    ++first;  // the line that starts here goes on starting here
    ++fresh;
  }
  const Change change{first - 1, behind - first, static_cast<std::size_t>(starts.end() - fresh)};
  MoveShift(behind);
  std::copy(fresh, starts.end(), starts_.Replace(first, change.removed, change.inserted));
  shiftFrom_ = first + change.inserted;
  shift_ += static_cast<std::uint32_t>(newEnd - oldEnd);
  return change;
}

}  // namespace morlan
