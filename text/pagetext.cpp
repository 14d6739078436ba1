#include "text/pagetext.h"

#include <algorithm>
#include <iterator>

#include "core/text.h"

namespace morlan {
namespace {

constexpr std::size_t kNone = std::string_view::npos;
constexpr std::string_view kBlanks = " \t\r\n\f";

// Elements whose body is no text.
constexpr std::string_view kCodeElements[] = {"script", "style", "cfscript"};
// Tags within which, and around which, a word may stand.
constexpr std::string_view kWordElements[] = {"a",     "abbr", "acronym", "b",   "big", "em", "font", "i",  "s",
                                              "small", "span", "strong",  "sub", "sup", "tt", "u",    "wbr"};
constexpr std::string_view kReadAttributes[] = {"alt", "title"};

template <std::size_t Size>
bool IsOneOf(const std::string_view (&names)[Size], std::string_view name) {
  return std::find(std::begin(names), std::end(names), name) != std::end(names);
}

constexpr bool IsAsciiLetter(char character) {
  const char small = static_cast<char>(character | 0x20);
  return small >= 'a' && small <= 'z';
}

// What ends a piece of code or a declaration, by how it opens. The first row that fits counts.
struct MarkupRow {
  std::string_view open, close;
};
constexpr MarkupRow kMarkup[] = {
    {"<!--", "-->"}, {"<!", ">"}, {"<%", "%>"}, {"<?xml:", ">"},  // as word processors write it
    {"<?", "?>"},
};

std::size_t EndOfName(std::string_view page, std::size_t offset) {
  while (offset < page.size() && (IsAsciiLetter(page[offset]) || (page[offset] >= '0' && page[offset] <= '9'))) ++offset;
  return offset;
}

}  // namespace

PageText::PageText(std::string_view page) : page_(page), lastQuote_(page.rfind('"')), lastApostrophe_(page.rfind('\'')) {}

bool PageText::Next(Stretch& stretch) {
  while (offset_ < page_.size()) {
    if (inTag_) {
      if (ReadAttributes(stretch)) return true;
    } else if (OpensMarkup(offset_)) {
      ReadMarkup();
    } else {
      std::size_t end = page_.find('<', offset_);
      while (end != kNone && !OpensMarkup(end)) end = page_.find('<', end + 1);
      stretch = {offset_, std::min(end, page_.size()) - offset_};
      offset_ = stretch.End();
      return true;
    }
  }
  return false;
}

bool PageText::OpensMarkup(std::size_t offset) const {
  if (page_[offset] != '<' || offset + 1 >= page_.size()) return false;
  const char next = page_[offset + 1];
  if (next == '/') return offset + 2 < page_.size() && IsAsciiLetter(page_[offset + 2]);
  return IsAsciiLetter(next) || next == '!' || next == '?' || next == '%';
}

void PageText::ReadMarkup() {
  tag_ = {};
  const std::string_view rest = page_.substr(offset_);
  const auto row = std::find_if(std::begin(kMarkup), std::end(kMarkup), [rest](const MarkupRow& r) { return rest.starts_with(r.open); });
  if (row == std::end(kMarkup)) return ReadTagName();
  offset_ += row->open.size();
  SkipBehind(row->close);
}

void PageText::ReadTagName() {
  tag_.start = offset_;
  const std::size_t name = offset_ + 1;
  offset_ = EndOfName(page_, name + (page_[name] == '/'));
  tagName_ = LowerCase(page_.substr(name, offset_ - name));
  inTag_ = true;
}

void PageText::SkipBlanks() { offset_ = std::min(page_.find_first_not_of(kBlanks, offset_), page_.size()); }

void PageText::SkipBehind(std::string_view end) {
  const std::size_t found = page_.find(end, offset_);
  offset_ = found == kNone ? page_.size() : found + end.size();
}

// Reads on in a tag up to a value that people read; false when the tag ends.
bool PageText::ReadAttributes(Stretch& stretch) {
  while (offset_ < page_.size()) {
    SkipBlanks();
    const std::size_t name = offset_;
    offset_ = std::min(page_.find_first_of(" \t\r\n\f=>/", offset_), page_.size());
    const bool isRead = IsOneOf(kReadAttributes, LowerCase(page_.substr(name, std::min<std::size_t>(offset_ - name, 8))));
    SkipBlanks();
    if (offset_ == page_.size()) break;
    const char sign = page_[offset_];
    if (sign == '>') {
      CloseTag();
      return false;
    }
    if (sign == '/') ++offset_;
    if (sign != '=') continue;
    ++offset_;
    SkipBlanks();
    const Stretch value = ReadValue();
    if (!isRead || value.length == 0) continue;
    stretch = value;
    return true;
  }
  return false;
}

Stretch PageText::ReadValue() {
  if (offset_ == page_.size()) return {offset_, 0};
  const char quote = page_[offset_];
  const std::size_t last = quote == '"' ? lastQuote_ : quote == '\'' ? lastApostrophe_ : kNone;
  if (last != kNone && last > offset_) {
    const std::size_t start = offset_ + 1, end = page_.find(quote, start);
    offset_ = end + 1;
    return {start, end - start};
  }
  const std::size_t start = offset_;
  offset_ = std::min(page_.find_first_of(" \t\r\n\f>", start), page_.size());
  return {start, offset_ - start};
}

void PageText::CloseTag() {
  ++offset_;
  tag_.length = offset_ - tag_.start;
  inTag_ = false;
  if (!IsOneOf(kCodeElements, tagName_)) return;
  const std::size_t close = FindNoCase(page_, Concat({"</", tagName_}), offset_ + 1);
  offset_ = close == 0 ? page_.size() : close - 1;
}

bool IsTagWithinWords(std::string_view page, std::size_t offset) {
  if (offset + 1 >= page.size() || page[offset] != '<') return false;
  const std::size_t name = offset + 1 + (page[offset + 1] == '/');
  const std::string_view text =
      page.substr(name, std::min<std::size_t>(EndOfName(page.substr(0, std::min(page.size(), name + 8)), name) - name, 8));
  return IsOneOf(kWordElements, LowerCase(text));
}

}  // namespace morlan
