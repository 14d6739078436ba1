// The quick menu: a hidden form that holds a pop-up menu of commands for the selection.
#pragma once

#include "core/menus.h"
#include "platform/forms/form.h"

namespace morlan {

class Program;

class QuickMenu : public Form {
 public:
  explicit QuickMenu(Program& program);

  Menu menu;
};

void RegisterQuickMenu(Program& program);

}  // namespace morlan
