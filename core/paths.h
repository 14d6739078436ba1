// Operations on paths in the program's form, as texts. They touch no file.
#pragma once

#include <string>
#include <string_view>

namespace morlan {

std::string PathOf(std::string_view path);          // everything before the last "\"; empty if there is none
std::string FileNameOf(std::string_view path);      // what follows the last "\"
std::string ExtensionOf(std::string_view path);     // everything behind the first ".": "a.b.html" gives "b.html"
std::string StripExtension(std::string_view name);  // everything before the last "."
std::string WithBackslash(std::string_view path);   // ends in "\"; an empty path gives "\"

}  // namespace morlan
