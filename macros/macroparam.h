// The form that changes the constants of the selected macro and runs it.
#pragma once

#include <string>
#include <vector>

#include "core/defs.h"
#include "macros/macroparameters.h"
#include "platform/forms/controls.h"

namespace morlan {

class MacroParam : public Form {
 public:
  explicit MacroParam(Program& program);

  ListBox Parametry{*this, "Parametry"};
  TextBox Wartosc{*this, "Wartosc"};
  Button Command3{*this, "Command3", "&Wykonaj"};
  Button Command2{*this, "Command2", "&Ok"};
  Button Command1{*this, "Command1", "&Anuluj"};

 private:
  void Form_Load();
  void ShowValue();
  bool Save();  // false when the values could not be kept
  Program& program_;
  std::string name_, text_;  // of the macro
  std::vector<MacroParameter> parameters_;
};

// Shows the form for the macro that is selected on its toolbar; a message when that cannot be.
void ShowMacroParam(Program& program);

}  // namespace morlan
