// The four files opened last: sub-items Item0 to Item3 of the item LastOpened, newest first, and their menu rows.
#pragma once

#include <cstddef>
#include <string>

#include "core/defs.h"
#include "core/menus.h"

namespace morlan {

inline constexpr std::size_t kLastOpenedCount = 4;

// The menu name of a row, from 0.
std::string LastOpenedRow(std::size_t index);
// Rows without a file are hidden.
void ShowLastOpened(Program& program, Menu& menu);
// Opens the file of a row, from 0.
void OpenLastOpened(Program& program, std::size_t index);

}  // namespace morlan
