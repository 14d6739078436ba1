// What a key does in a control of a form, as the desktop's own controls behave.
#pragma once

#include "platform/forms/control.h"
#include "platform/keys.h"

namespace morlan {

class FrontForms;

// The control's handler first; then, unless it swallowed the key, the common meaning: Enter presses the form's default
// button, Esc closes a dialog, Alt and a letter presses the button with that mnemonic, arrows move in lists, characters
// are put behind the text of a text box.
void PressInControl(FrontForms& forms, Control& control, KeyPress press);

}  // namespace morlan
