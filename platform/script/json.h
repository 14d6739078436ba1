// Strings as scripts and transcripts write them: JSON strings in UTF-8, other letters than ASCII left as they are.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace morlan {

// Quotes and all. The first takes a text of the program, the second one that is UTF-8 already.
std::string JsonString(std::string_view text);
std::string JsonStringOfUtf8(std::string_view utf8);

// Reads the string whose opening quote stands at `offset`; afterwards `offset` lies behind the closing one. The result
// is UTF-8. Nothing when the string does not end, or an escape in it is wrong.
std::optional<std::string> ReadJsonString(std::string_view line, std::size_t& offset);

}  // namespace morlan
