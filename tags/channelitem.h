// The dialog of an element of a channel, the ITEM tag.
#pragma once

#include <string>
#include <string_view>

#include "platform/encoding.h"
#include "tags/serverdialog.h"

namespace morlan {

// The texts of the fields.
struct ItemValues {
  std::string href, modDate, preCache, level;
};
// The attributes alone, each with a blank in front. All four are written, empty ones too.
std::string ItemAttributes(const ItemValues& values);

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
  ItemValues Values() const;
  std::string Result() const override { return ItemAttributes(Values()); }
};

// A tag that is written anew has a second blank in front of its attributes.
void EditItem(Program& program);
// Puts a new pair of tags round the selection, the end in a line of its own.
void InsertItem(Program& program);

}  // namespace morlan
