// The dialog of the fonts: the BASEFONT and the FONT tag.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/encoding.h"
#include "tags/colouroptions.h"

namespace morlan {

struct FontValues {
  std::string znak{}, rozmiar{};  // the sign and the number behind it
  std::string czcionka{};
  std::optional<std::string> colour{};  // the word for the document
};
// `name` is "BASEFONT" or "FONT".
std::string FontText(std::string_view name, const FontValues& values);

struct Fonty : Form {
  TextBox Rozmiar{*this, "Rozmiar"};
  ComboBox Znak{*this, "Znak", ComboBox::Style::ListOnly};
  ComboBox Czcionka{*this, "Czcionka"};
  ColourBox wzor{*this, "wzor", "AaBbCc"};
  ColourOptions kolory;
  Button Command2{*this, "Command2", "&Ok"}, Command1{*this, "Command1", "&Anuluj"};

  explicit Fonty(Program& program);
  void Read(std::string_view tag);
  FontValues Values() const;
};

void EditBaseFont(Program& program);
void EditFont(Program& program);
void InsertBaseFont(Program& program);
void InsertQuickFont(Program& program);

}  // namespace morlan
