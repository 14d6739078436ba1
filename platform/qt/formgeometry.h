// How the parts of a form share its room.
#pragma once

#include <vector>

#include "platform/forms/layout.h"

namespace morlan {

// Controls that want room of their own stand below their label.
bool IsTall(const Control& control);
// Fields for numbers and short words keep their width; all other fields take what the dialog has.
bool IsNarrow(const Control& control);
// What takes the room that a dialog gets when it is made larger.
bool GrowsDownwards(const Layout& part);
bool GrowsSideways(const Layout& part);
// The controls of a layout as one reads it: rows downwards, each column to its end.
std::vector<Control*> InOrder(const Layout& part);
// Buttons below each other, which are of one width.
bool IsColumnOfButtons(const Layout& rows);

}  // namespace morlan
