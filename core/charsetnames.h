// The character sets that a document can be kept in, by their names.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace morlan {

class Program;

// The name that stands for no character set.
inline constexpr std::string_view kNoCharset = "???";

// The names that the program knows; while nothing knows any, the one in the settings.
std::vector<std::string> CharsetNames(Program& program);

}  // namespace morlan
