// The toolbar of macros: runs, makes and opens the files of MAKRO\.
#pragma once

#include <string_view>

namespace morlan {

class Program;

// Fills the list of macros again and selects the one of that name; without it the row that was selected, if it is still there.
void RefreshMacroList(Program& program, std::string_view name = "");

void RegisterToolbar16(Program& program);

}  // namespace morlan
