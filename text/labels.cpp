#include "text/labels.h"

#include <algorithm>

#include "core/text.h"
#include "tags/tagscan.h"

namespace morlan {
namespace {

// The reader of attributes looks at the front of a tag only, so that its rest need not be copied.
constexpr std::size_t kTagFront = 4096;

// Where tags begin and end around places that follow each other; each stretch of the text is looked at once.
class TagEdges {
 public:
  explicit TagEdges(std::string_view text) : text_(text) {}

  // The last "<" in front of an offset; npos when there is none.
  std::size_t StartBefore(std::size_t offset) {
    const std::size_t found = text_.substr(seen_, offset - seen_).rfind('<');
    if (found != std::string_view::npos) start_ = seen_ + found;
    seen_ = offset;
    return start_;
  }
  // The first ">" at or behind an offset; npos when there is none.
  std::size_t EndBehind(std::size_t offset) {
    if (end_ < offset) end_ = std::min(text_.find('>', offset), text_.size());
    return end_ == text_.size() ? std::string_view::npos : end_;
  }

 private:
  std::string_view text_;
  std::size_t seen_ = 0, start_ = std::string_view::npos, end_ = 0;
};

}  // namespace

std::vector<PageLabel> LabelsOf(std::string_view text) {
  constexpr std::string_view kKey = "name=";
  std::vector<PageLabel> labels;
  const std::size_t body = FindNoCase(text, "body");
  if (body == 0) return labels;
  TagEdges edges(text);
  std::size_t lastStart = std::string_view::npos;
  for (std::size_t hit = FindNoCase(text, kKey, body); hit != 0; hit = FindNoCase(text, kKey, hit + kKey.size())) {
    const std::size_t start = edges.StartBefore(hit - 1), end = edges.EndBehind(hit - 1);
    if (start == std::string_view::npos || start == lastStart || end == std::string_view::npos) continue;
    lastStart = start;
    std::string name = GetTagParam(text.substr(start, std::min(end - start, kTagFront)), "name");
    if (!name.empty()) labels.push_back({std::move(name), start, end - start + 1});
  }
  return labels;
}

}  // namespace morlan
