// The dialog that chooses a character set.
#pragma once

#include "core/defs.h"
#include "platform/encoding.h"
#include "platform/forms/controls.h"

namespace morlan {

struct SelectCharSet : Form {
  explicit SelectCharSet(Program& program);

  ListBox saveformat{*this, "saveformat"};
  Label CharSetInfo{*this, "CharSetInfo"};
  Label Mixed{*this, "Mixed"};
  Button Command2{*this, "Command2", "&Ok"}, Command1{*this, "Command1", "&Anuluj"}, Command3{*this, "Command3", "&Utwórz nowy"_pl};

 private:
  void Form_Load();
  void FillFormats(std::string_view selected);
  void ShowInfo();
  void Leave(std::string_view result);
  Program& program_;
};

// Asks; the name is in DialogResult, which is empty when none was chosen.
void SelectCharSetByDialog(Program& program);

}  // namespace morlan
