// The dialog of an element of a channel, the ITEM tag.
#pragma once

#include <string>
#include <string_view>

#include "platform/encoding.h"
#include "tags/serverdialog.h"

namespace morlan {

struct ItemValues {
  std::string href, modDate, preCache, level;
};
// All four attributes are written, empty ones too.
std::string ItemText(const ItemValues& values);

struct Channel_Item : ServerDialog {
  ComboBox HREF{*this, "HREF"};
  Button hrefFile{*this, "hrefFile", "..."};
  TextBox ModDate{*this, "ModDate"};
  Label sample{*this, "sample", "YYYY-MM-DDTHH:MM+HHMM"};
  ComboBox PreCache{*this, "PreCache"};
  TextBox Level{*this, "Level"};
  Button Command2{*this, "Command2", "&Ok"}, Command1{*this, "Command1", "&Anuluj"};

  explicit Channel_Item(Program& program);
  void Read(std::string_view tag);
  std::string Result() const override;  // the tag
};

void EditItem(Program& program);
void InsertItem(Program& program);

}  // namespace morlan
