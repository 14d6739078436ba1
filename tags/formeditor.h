// The dialog of a form's outline, the FORM tag.
#pragma once

#include <string>
#include <string_view>

#include "tags/tagdialog.h"

namespace morlan {

// The texts of the fields.
struct FormValues {
  std::string action{}, method{}, target{}, enctype{};
};
// The opening tag, ACTION and METHOD in it always.
std::string FormText(const FormValues& values);

// The lists of action and enctype remember what was confirmed in them.
struct FormShape : TagDialog {
  ComboBox action{*this, "action"}, method{*this, "method", ComboBox::Style::ListOnly}, target{*this, "target"}, enctype{*this, "enctype"};
  Button Command2{*this, "Command2", "&Ok"}, Command1{*this, "Command1", "&Anuluj"};

  explicit FormShape(Program& program);
  void Read(std::string_view tag) override;
  FormValues Values() const;
  std::string Text() const override { return FormText(Values()); }
  std::string_view Closing() const override { return "</FORM>"; }

 private:
  void SetUpToolTips();
  void Remember() override;
};

// Writes the tag under the caret anew, and puts a new pair of tags round the selection.
void EditForm(Program& program);
void InsertForm(Program& program);

}  // namespace morlan
