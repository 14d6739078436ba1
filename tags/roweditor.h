// The dialog of a row of a table, the TR tag.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/encoding.h"
#include "platform/forms/controls.h"

namespace morlan {

class Program;

struct RowValues {
  std::string align{}, valign{};  // labels; empty for none
  std::optional<Colour> backColour{};
};
std::string RowText(const RowValues& values);

struct DTR : Form {
  ComboBox Align{*this, "Align", ComboBox::Style::ListOnly}, Valign{*this, "Valign", ComboBox::Style::ListOnly};
  CheckBox isbackcolor{*this, "isbackcolor", "Wypełnij &kolorem"_pl};
  ColourBox fillwithcolor{*this, "fillwithcolor", ""};
  Button Command2{*this, "Command2", "&Ok"}, Command1{*this, "Command1", "&Anuluj"};

  explicit DTR(Program& program);
  void Read(std::string_view tag);
  RowValues Values() const;
  std::string Text() const;  // the tag, with a word in the status line while it is made

 private:
  Program& program_;
};

void EditRow(Program& program);
void InsertRow(Program& program);

}  // namespace morlan
