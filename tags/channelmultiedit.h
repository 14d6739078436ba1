// The dialog that asks for one text of a channel: a title, a word about the text, and a box with the entries of a list file.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/encoding.h"
#include "platform/forms/controls.h"

namespace morlan {

class Program;

struct Channel_MultiEdit : Form {
  Label Info{*this, "Info"};
  ComboBox Items{*this, "Items"};
  Button Command2{*this, "Command2", "&Ok"}, Command1{*this, "Command1", "&Anuluj"};

  explicit Channel_MultiEdit(Program& program);
  // Asks for a text, with `value` in the field or, for a new one, the last entry of the list. A new text is added to the list
  // file ("Listy\CHCat.lst"; empty for none). Empty when the dialog was cancelled or nothing was filled in.
  std::string Ask(std::string_view title, std::string_view info, std::string_view listFile, std::optional<std::string_view> value = {});

 private:
  Program& program_;
  std::string listFile_;
};

}  // namespace morlan
