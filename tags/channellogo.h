// The dialog of a channel's logo, the LOGO tag.
#pragma once

#include <string>
#include <string_view>

#include "platform/encoding.h"
#include "tags/serverdialog.h"

namespace morlan {

struct LogoValues {
  std::string href, style;
};
std::string LogoText(const LogoValues& values);

struct Channel_Logo : ServerDialog {
  ComboBox Items{*this, "Items"};
  Button itemsFile{*this, "itemsFile", "..."};
  ComboBox Typ{*this, "Typ"};
  Button Command2{*this, "Command2", "&Ok"}, Command1{*this, "Command1", "&Anuluj"};

  explicit Channel_Logo(Program& program);
  void Read(std::string_view tag);
  std::string Result() const override;  // the tag
};

void EditLogo(Program& program);
void InsertLogo(Program& program);

}  // namespace morlan
