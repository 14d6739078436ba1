// The dialog of a form's outline, the FORM tag.
#pragma once

#include <string>
#include <string_view>

#include "platform/encoding.h"
#include "platform/forms/controls.h"

namespace morlan {

class Program;

struct FormValues {
  std::string action{}, method{}, target{}, enctype{};
};
std::string FormText(const FormValues& values);

// The lists of action and enctype remember what was confirmed in them.
struct FormShape : Form {
  ComboBox action{*this, "action"}, method{*this, "method", ComboBox::Style::ListOnly}, target{*this, "target"}, enctype{*this, "enctype"};
  Button Command2{*this, "Command2", "&Ok"}, Command1{*this, "Command1", "&Anuluj"};

  explicit FormShape(Program& program);
  void Read(std::string_view tag);
  FormValues Values() const;
  std::string Text() const;  // the tag, with a word in the status line while it is made

 private:
  void SetUpToolTips();
  void Confirm();
  Program& program_;
};

void EditForm(Program& program);
void InsertForm(Program& program);

}  // namespace morlan
