// One key press in a document, from the handlers to the control's own action. Both front ends press keys through here.
#pragma once

#include <string_view>

#include "platform/keys.h"

namespace morlan {

class TEditor;

// Key down, key press for characters without Ctrl and Alt, the control's own action, key up. A Ctrl or Alt combination
// that the handlers leave runs the menu entry with that shortcut.
void PressKey(TEditor& document, KeyPress press);

// Text from an input method or a paste of the primary selection: one replacement, recorded as one change.
void InsertTyped(TEditor& document, std::string_view text);

}  // namespace morlan
