// The dialog of an embedded object, the EMBED tag.
#pragma once

#include <string>
#include <string_view>

#include "platform/encoding.h"
#include "platform/forms/controls.h"

namespace morlan {

class Program;

// The fields as they go into the document.
struct EmbedValues {
  std::string source{}, szerokosc{}, wysokosc{}, ramka{};
  std::string wyrownanie{};  // the word for the document; empty for none
  bool autoStart = false, loop = false;
};
// Only a file of the type "mid" has its two switches written. A line end follows the tag.
std::string EmbedText(const EmbedValues& values);

// An empty source counts as cancelled. The two switches are shown while the source ends in "mid".
struct embed : Form {
  TextBox source{*this, "source"};
  Button sourceFile{*this, "sourceFile", "..."};
  TextBox szerokosc{*this, "szerokosc"}, wysokosc{*this, "wysokosc"}, ramka{*this, "ramka"};
  ComboBox wyrownanie{*this, "wyrownanie", ComboBox::Style::ListOnly};
  CheckBox midi0{*this, "midi(0)", "&AutoStart"}, midi1{*this, "midi(1)", "&Pętla"_pl};
  Button Command2{*this, "Command2", "&Ok"}, Command1{*this, "Command1", "A&nuluj"};

  explicit embed(Program& program);
  void Read(std::string_view tag);
  EmbedValues Values() const;

 private:
  void ShowMidiBoxes();
};

// Writes the tag under the caret anew, and inserts a new one.
void EditEmbed(Program& program);
void InsertEmbed(Program& program);

}  // namespace morlan
