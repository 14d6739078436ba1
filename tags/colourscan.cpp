#include "tags/colourscan.h"

#include <algorithm>
#include <cstring>

#include "tags/keywords.h"

namespace morlan {
namespace {

constexpr std::size_t kNotFound = std::string_view::npos;

// Where the end of an attribute value is put when its mark is missing, and the place of a mark that does not count, as
// offsets in the tag. They only show in tags of more than a million characters.
constexpr std::size_t kMissingMark = 999999 - 1;
constexpr std::size_t kIgnoredMark = 9999999 - 1;

void Fill(std::uint8_t* styles, std::size_t from, std::size_t to, std::uint8_t style) {
  if (from < to) std::memset(styles + from, style, to - from);
}

// Only what lies between the quotes of a value is painted; without quotes it ends at a blank.
void PaintValues(std::string_view tag, std::uint8_t style, std::uint8_t* styles) {
  const std::size_t tagEnd = tag.size() - 1;
  std::size_t equals = tag.find('=');
  while (equals != kNotFound) {
    const bool quoted = tag[equals + 1] == '"';
    const std::size_t begin = equals + (quoted ? 2 : 1);
    const std::size_t mark = tag.find(quoted ? '"' : ' ', begin);
    const std::size_t end = std::min({tagEnd, mark == kNotFound ? kMissingMark : mark, kIgnoredMark});
    Fill(styles, begin, end, style);
    const std::size_t next = tag.find('=', end);
    // A value that is cut by a missing mark's place may end in front of its own "=".
    if (next <= equals) return;
    equals = next;
  }
}

// Tells when the percentage has moved far enough to be reported. Positions count from 1.
class PercentSteps {
 public:
  PercentSteps(std::size_t length, const std::function<void(int percent)>& report) : length_(length), report_(report) { SetNext(); }

  void Reached(std::size_t position) {
    if (position >= next_) Tell(position);
  }
  // The search has come back to an earlier place, or to 0 behind the last token.
  void Returned(std::size_t position) {
    if (static_cast<int>(position * 100 / std::max<std::size_t>(length_, 1)) < last_ - kStep) Tell(position);
  }

 private:
  static constexpr int kStep = 5;

  void Tell(std::size_t position) {
    last_ = static_cast<int>(position * 100 / std::max<std::size_t>(length_, 1));
    SetNext();
    report_(last_);
  }
  void SetNext() { next_ = report_ ? (static_cast<std::size_t>(last_ + kStep + 1) * length_ + 99) / 100 : kNotFound; }

  std::size_t length_, next_ = 0;
  int last_ = 0;
  const std::function<void(int percent)>& report_;
};

}  // namespace

void PaintKeywords(std::string_view run, std::uint8_t style, std::uint8_t* styles) {
  for (std::size_t blank = run.find(' '); blank != kNotFound; blank = run.find(' ', blank + 1)) {
    const std::size_t length = KeywordAtEnd(run.substr(0, blank));
    if (length != 0) Fill(styles, blank - length, blank + 1, style);
  }
}

void PaintToken(std::string_view text, bool isComment, const ColourStyles& colours, std::uint8_t* styles) {
  Fill(styles, 0, text.size(), isComment ? colours.comment : colours.tag);
  if (isComment)
    PaintKeywords(text, colours.keyword, styles);
  else
    PaintValues(text, colours.value, styles);
}

void PaintText(std::string_view text, const ColourStyles& colours, std::uint8_t* styles, const std::function<void(int percent)>& report) {
  PercentSteps steps(text.size(), report);
  ColourToken token;
  TokenSearch search = FindToken(text, 0, token);
  while (search == TokenSearch::Found) {
    PaintToken(text.substr(token.begin, token.end - token.begin), token.isComment, colours, styles + token.begin);
    search = FindToken(text, token.end, token);
    if (search != TokenSearch::NoMore) steps.Reached(token.begin + 1);
  }
  if (report) steps.Returned(search == TokenSearch::Unclosed ? text.find('<') + 1 : 0);
}

}  // namespace morlan
