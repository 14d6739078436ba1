// The dialog of the fonts: the BASEFONT and the FONT tag.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/encoding.h"
#include "tags/colouroptions.h"

namespace morlan {

// The fields as they go into the document.
struct FontValues {
  std::string znak{}, rozmiar{};  // the sign and the number behind it
  std::string czcionka{};
  std::optional<std::string> colour{};  // the word for the document
};
// `name` is "BASEFONT" or "FONT".
std::string FontText(std::string_view name, const FontValues& values);

// One dialog for both tags; its caption tells which.
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

// Write the tag under the caret anew; a tag that is edited keeps the end that it has.
void EditBaseFont(Program& program);
void EditFont(Program& program);
// Insert a new tag; a quick font has an end behind the selection.
void InsertBaseFont(Program& program);
void InsertQuickFont(Program& program);

}  // namespace morlan
