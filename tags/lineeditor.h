// The dialog of a horizontal line, the HR tag.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/encoding.h"
#include "tags/colouroptions.h"

namespace morlan {

// The fields; the lengths as texts.
struct LineValues {
  std::string dlugosc{}, wysokosc{};  // as they go into the document
  std::string wyrownanie{};           // a label; empty for none
  bool bezCienia = false;
  std::optional<std::string> colour{};  // the word for the document
};
// The tag. A text that is no number is written as it stands.
std::string LineText(const LineValues& values);

// The names of the two buttons are swapped in this dialog.
struct lineedit : Form {
  TextBox Dlugosc{*this, "Dlugosc"}, Wysokosc{*this, "Wysokosc"};
  ComboBox Wyrownanie{*this, "Wyrownanie", ComboBox::Style::ListOnly};
  CheckBox BezCienia{*this, "BezCienia", "&Bez cienia"};
  ColourBox wzor{*this, "wzor", "Wzór"_pl};
  ColourOptions kolory;
  Button Command1{*this, "Command1", "&Ok"}, Command2{*this, "Command2", "&Anuluj"};

  explicit lineedit(Program& program);
  void Read(std::string_view tag);
  LineValues Values() const;
  bool IsCancelled() const;
};

// Writes the tag under the caret anew, and inserts a new one.
void EditLine(Program& program);
void InsertLine(Program& program);

}  // namespace morlan
