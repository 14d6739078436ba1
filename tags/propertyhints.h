// The attributes of the tag that is being typed, as a list to choose from or as one block of text. The list stands at the
// caret; the view puts it there whenever its rows change or it comes up.
#pragma once

#include <string>
#include <string_view>

namespace morlan {

class ListBox;
class Program;

// Nothing happens when the list shows the tag already; an unknown tag has no rows. Attributes are rows with a "=" behind the name, switches
// are bare; colours and those with a dialog of their own are left out. The list's Tag is left to the caller.
void FillHintList(Program& program, ListBox& list, std::string_view tagName);

// All the tag's attributes in one line, each with its default behind the "=", switches bare; empty for an unknown tag.
std::string HintBlockText(Program& program, std::string_view tagName);

}  // namespace morlan
