// The dialog of a row of a table, the TR tag.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "tags/tagdialog.h"

namespace morlan {

// The fields as they are chosen.
struct RowValues {
  std::string align{}, valign{};  // labels; empty for none
  std::optional<Colour> backColour{};
};
// The opening tag, with the words of the labels in capitals.
std::string RowText(const RowValues& values);

struct DTR : TagDialog {
  ComboBox Align{*this, "Align", ComboBox::Style::ListOnly}, Valign{*this, "Valign", ComboBox::Style::ListOnly};
  CheckBox isbackcolor{*this, "isbackcolor", "Wypełnij &kolorem"_pl};
  ColourBox fillwithcolor{*this, "fillwithcolor", ""};
  Button Command2{*this, "Command2", "&Ok"}, Command1{*this, "Command1", "&Anuluj"};

  explicit DTR(Program& program);
  void Read(std::string_view tag) override;
  RowValues Values() const;
  std::string Text() const override { return RowText(Values()); }
  std::string_view Closing() const override { return "</TR>"; }
};

// Writes the tag under the caret anew, and puts a new pair of tags round the selection.
void EditRow(Program& program);
void InsertRow(Program& program);

}  // namespace morlan
