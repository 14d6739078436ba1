// How values stand in scripts and transcripts: numbers, colours, paths.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "platform/colour.h"
#include "platform/files.h"

namespace morlan {

std::optional<std::size_t> ReadCount(std::string_view word);  // digits only
std::optional<int> ReadInteger(std::string_view word);        // with an optional "-"
std::optional<double> ReadFontSize(std::string_view word);    // above 0; a point may part the fraction
std::string FontSizeWord(double size);

// "FF8000": red first.
std::string ColourWord(Colour colour);
std::optional<Colour> ReadColour(std::string_view word);

// A path of a script, in UTF-8 and in either form, as a whole path in the program's form. A relative one counts from
// `directory`, or from the current directory where that is empty. "." and ".." are worked out.
std::string ReadPath(Files& files, std::string_view word, std::string_view directory = "");

}  // namespace morlan
