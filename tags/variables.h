// The dialog that sets the variables of a page, its META tags.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "platform/encoding.h"
#include "platform/forms/controls.h"

namespace morlan {

class Program;

// Each kind of variables has a list of names, which remembers what was confirmed.
struct Variables : Form {
  OptionButton typ0{*this, "typ(0)", "Naz&wa", "typ", true}, typ1{*this, "typ(1)", "&HTTP-EQUIV", "typ"};
  ComboBox nazwa{*this, "nazwa"};
  TextBox wartosc{*this, "wartosc"};
  Button Command2{*this, "Command2", "&Ustaw"}, Command1{*this, "Command1", "&Anuluj"};

  explicit Variables(Program& program);

 private:
  std::size_t Kind() const { return typ1.Value() ? 1 : 0; }
  void ChooseKind();
  void ListNames();
  void Set();
  Program& program_;
  std::size_t listed_ = 0;            // the kind whose names the list holds
  std::array<std::string, 2> names_;  // what stands in the field of each kind
};

// Shows the dialog, whose OK button sets the variable in the active document.
void SetVariables(Program& program);

}  // namespace morlan
