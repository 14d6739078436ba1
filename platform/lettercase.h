// Lower and upper case of Windows-1250, the Polish letters and all other letters of the page included.
#pragma once

#include <string>
#include <string_view>

namespace morlan {

char LowerCharacter(char character);
char UpperCharacter(char character);
std::string LowerCase(std::string_view text);
std::string UpperCase(std::string_view text);
bool EqualNoCase(std::string_view left, std::string_view right);

}  // namespace morlan
