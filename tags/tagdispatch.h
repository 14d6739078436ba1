// Which editor belongs to a tag, by the caption that the context menu shows for it.
#pragma once

#include <string_view>

namespace morlan {

class Program;

// The name of the editor of an exact caption such as "<IMG>"; empty when the tag has none.
std::string_view EditorOfCaption(std::string_view caption);

// True when that editor is there to be called.
bool HasTagEditor(const Program& program, std::string_view caption);

// Calls it; a caption without one does nothing.
void EditTag(const Program& program, std::string_view caption);

}  // namespace morlan
