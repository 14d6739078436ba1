// The dialog of a link, the A tag.
#pragma once

#include <string>
#include <string_view>

#include "platform/encoding.h"
#include "platform/forms/controls.h"

namespace morlan {

class Program;

// The texts of the fields.
struct AnchorValues {
  std::string href{}, etykieta{}, parm{};
};
// The opening tag, without the attributes whose texts are empty.
std::string AnchorText(const AnchorValues& values);

// An empty HREF counts as cancelled, also for a tag that has only a NAME. The list of addresses remembers what was confirmed.
struct anchor : Form {
  ComboBox href{*this, "href"};
  Button hrefFile{*this, "hrefFile", "..."};
  TextBox etykieta{*this, "etykieta"};
  ComboBox parm{*this, "parm"};
  Button Command2{*this, "Command2", "&Ok"}, Command1{*this, "Command1", "&Anuluj"};

  explicit anchor(Program& program);
  void Read(std::string_view tag);
  AnchorValues Values() const;
};

// Writes the tag under the caret anew, and puts a new pair of tags round the selection.
void EditAnchor(Program& program);
void InsertAnchor(Program& program);

}  // namespace morlan
