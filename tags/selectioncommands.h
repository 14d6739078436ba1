// The commands of the quick menu that look at the selection.
#pragma once

#include <string>
#include <string_view>

namespace morlan {

class Program;

// A list with one item a line of the text; "tag" is "OL" or "UL". It begins with a line end.
std::string ListOfLines(std::string_view text, std::string_view tag);

void RegisterSelectionCommands(Program& program);

}  // namespace morlan
