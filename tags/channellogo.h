// The dialog of a channel's logo, the LOGO tag.
#pragma once

#include <string>
#include <string_view>

#include "platform/encoding.h"
#include "tags/serverdialog.h"

namespace morlan {

// The texts of the fields.
struct LogoValues {
  std::string href, style;
};
// The attributes alone. Both are written, empty ones too.
std::string LogoAttributes(const LogoValues& values);

struct Channel_Logo : ServerDialog {
  ComboBox Items{*this, "Items"};
  Button itemsFile{*this, "itemsFile", "..."};
  ComboBox Typ{*this, "Typ"};
  Button Command2{*this, "Command2", "&Ok"}, Command1{*this, "Command1", "&Anuluj"};

  explicit Channel_Logo(Program& program);
  void Read(std::string_view tag);
  LogoValues Values() const { return {.href = Items.Text(), .style = Typ.Text()}; }
  std::string Result() const override { return LogoAttributes(Values()); }
};

// Writes the tag under the caret anew, and puts a new one in the place of the selection.
void EditLogo(Program& program);
void InsertLogo(Program& program);

}  // namespace morlan
