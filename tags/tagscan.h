// The readers of tags: plain operations over strings, with fixed blind spots that the rest of the program relies on. A
// tag's text runs from its "<" and need not hold its ">". Positions count from 1, 0 is "not found"; a blank is character
// 32 alone; a quote is the double one. A value that is not there reads as the empty string.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace morlan {

// From the second character up to the first blank or ">". Case is kept; a closing tag keeps its "/".
std::string GetTagName(std::string_view tag);

// A short value. The name counts in front of anything but a letter or a character above; one that begins behind the 500th
// character is not seen. "true" when the attribute has no value, which "WIDTH = 5" has not. One quote at either end and
// one "#" in front are removed. A ">" ends even a quoted value. "charset" is found behind any character.
std::string GetTagParam(std::string_view tag, std::string_view name);

// A value in quotes, which may hold blanks. The name also counts as the front of a longer one. An unquoted value reads
// wrongly: the value is what stands between the next two marks, quotes or ">".
std::string GetTagTextParam(std::string_view tag, std::string_view name);

// A link; the "#" of a label is kept. The name counts between characters that are no letters, at most 500 characters deep.
std::string GetTagLinkParam(std::string_view tag, std::string_view name);

// A tag in a text, as the context menu finds it.
struct FoundTag {
  std::size_t start = 0;  // position of its "<"; 0 when there is no tag
  std::string_view text;  // from there up to the ">", without that
};
// The tag at the caret: back from it to the nearest "<", from it on to the nearest ">". A caret between two tags belongs
// to the one before it.
FoundTag FindTagAt(std::string_view text, std::size_t selStart);

}  // namespace morlan
