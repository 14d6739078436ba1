// The form that makes a macro out of a text in front of the selection and one behind it.
#pragma once

#include <string>
#include <string_view>

#include "core/defs.h"
#include "platform/forms/controls.h"

namespace morlan {

// A macro that puts both texts round the selection exactly as they are.
std::string WrappingMacro(std::string_view before, std::string_view after);

class ShortTagWizard : public Form {
 public:
  explicit ShortTagWizard(Program& program);

  TextBox Nazwa{*this, "Nazwa"};
  TextBox Poczatek{*this, "Poczatek", "", TextBox::Lines::Many};
  TextBox Koniec{*this, "Koniec", "", TextBox::Lines::Many};
  Button Command2{*this, "Command2", "&Ok"};
  Button Command1{*this, "Command1", "&Anuluj"};

 private:
  void Form_Load();
  void MakeMacro();
  // A word about a field that must be changed.
  void Refuse(Control& field, std::string_view message);
  Program& program_;
};

}  // namespace morlan
