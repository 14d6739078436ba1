// The text of a page that its readers see, stretch by stretch: what stands between tags, and the values of ALT and TITLE. Comments,
// declarations, server code, scripts and style sheets are skipped.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace morlan {

// A stretch of a page, from 0.
struct Stretch {
  std::size_t start = 0, length = 0;
  std::size_t End() const { return start + length; }
  bool operator==(const Stretch&) const = default;
};

class PageText {
 public:
  // The page must outlive the object. What is opened and never closed is skipped up to the page's end.
  explicit PageText(std::string_view page);
  // False when there is no further stretch.
  bool Next(Stretch& stretch);
  // The tag that was read last; empty when the stretch follows none.
  Stretch TagInFront() const { return tag_; }

 private:
  bool OpensMarkup(std::size_t offset) const;
  void ReadMarkup();
  void ReadTagName();
  bool ReadAttributes(Stretch& stretch);
  Stretch ReadValue();
  void CloseTag();
  void SkipBlanks();
  void SkipBehind(std::string_view end);

  std::string_view page_;
  std::size_t offset_ = 0;
  Stretch tag_;
  std::string tagName_;  // in lower case, with "/" in front of an end tag's
  bool inTag_ = false;
  std::size_t lastQuote_, lastApostrophe_;  // of the page: one that none follows opens no value
};

// Whether the tag at an offset only changes how letters look, so that a word may go on behind it.
bool IsTagWithinWords(std::string_view page, std::size_t offset);

}  // namespace morlan
