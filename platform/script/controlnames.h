// Controls by the names that scripts give them: "Command2" of the form in front, "Morlan.makro" of another one.
#pragma once

#include <string>
#include <string_view>

#include "platform/forms/control.h"

namespace morlan {

class Session;

struct NamedControl {
  Control* control = nullptr;  // null with a fault
  std::string name;            // as the code has it, with the form's name if the script gave one
  std::string fault;
};

// Any control of a form that was made, to look at it.
NamedControl FindControl(Session& session, std::string_view nameUtf8);
// A control that a person could use now: its form is not behind a modal one, and it is visible and enabled.
NamedControl FindUsableControl(Session& session, std::string_view nameUtf8);

// The word for its kind in transcripts.
std::string_view KindWord(Control::Kind kind);

}  // namespace morlan
