// The splash form: the program's name and version. It comes up once at the first activation and from the menu.
#pragma once

#include "core/defs.h"
#include "platform/forms/controls.h"

namespace morlan {

struct About : Form {
  Label ProductName{*this, "ProductName", "Morlan7 - Edytor HTML"};
  Label Version{*this, "Version"};
  Button Command1{*this, "Command1", "&Ok"};
  explicit About(Program& program);
};

}  // namespace morlan
