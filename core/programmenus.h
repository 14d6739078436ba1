// The menus that are open at a time: the frame's and one for each document. What holds for the whole program is marked in all.
#pragma once

#include <vector>

#include "core/defs.h"
#include "core/menus.h"

namespace morlan {

std::vector<Menu*> AllMenus(Program& program);

// Brings the marks and rows of one menu up to the program's state: panels, mode, last opened files.
void SetUpMenu(Program& program, Menu& menu);

}  // namespace morlan
