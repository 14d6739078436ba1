// The dialog of a link to an e-mail address.
#pragma once

#include <string>
#include <string_view>

#include "platform/encoding.h"
#include "platform/forms/controls.h"

namespace morlan {

class Program;

// The opening tag of a link to the address.
std::string EmailText(std::string_view address);

// The list of addresses remembers what was confirmed. An empty address counts as cancelled.
struct email : Form {
  ComboBox emailtext{*this, "emailtext"};
  Button Command2{*this, "Command2", "&Ok"}, Command1{*this, "Command1", "&Anuluj"};

  explicit email(Program& program);
};

// Asks for the address and puts its link round the selection; an empty address inserts nothing.
void InsertEmail(Program& program);

}  // namespace morlan
