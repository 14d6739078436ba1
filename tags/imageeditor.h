// The dialog of a picture, the IMG tag.
#pragma once

#include <string>
#include <string_view>

#include "platform/encoding.h"
#include "platform/forms/controls.h"

namespace morlan {

class Program;

// The fields as they go into the document.
struct ImageValues {
  std::string source{}, alt{}, usemap{}, szerokosc{}, wysokosc{}, ramka{}, vspace{}, hspace{};
  std::string wyrownanie{};  // the word for the document; empty for none
  bool ismap = false;
};
// A map is written with a "#" in front, whether it was given with one or not.
std::string ImageText(const ImageValues& values);

// An empty source counts as cancelled.
struct image : Form {
  TextBox source{*this, "source"};
  Button sourceFile{*this, "sourceFile", "..."};
  TextBox alt{*this, "alt"}, usemap{*this, "usemap"};
  TextBox szerokosc{*this, "szerokosc"}, wysokosc{*this, "wysokosc"}, ramka{*this, "ramka"};
  TextBox vspace{*this, "vspace"}, hspace{*this, "hspace"};
  ComboBox wyrownanie{*this, "wyrownanie", ComboBox::Style::ListOnly};
  CheckBox ismap{*this, "ismap", "&ISMAP"};
  Button Command2{*this, "Command2", "&Ok"}, Command1{*this, "Command1", "&Anuluj"};

  explicit image(Program& program);
  void Read(std::string_view tag);
  ImageValues Values() const;

 private:
  void SetUpToolTips();
};

// Writes the tag under the caret anew, and inserts a new one.
void EditImage(Program& program);
void InsertImage(Program& program);

}  // namespace morlan
