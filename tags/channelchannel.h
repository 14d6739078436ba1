// The dialog of a whole channel, the CHANNEL tag.
#pragma once

#include <string>
#include <string_view>

#include "platform/encoding.h"
#include "tags/serverdialog.h"

namespace morlan {

// The texts of the fields.
struct ChannelValues {
  std::string base, href, level;
};
// The attributes alone, each with a blank in front. Empty ones are left out, and a level whose number is 0.
std::string ChannelAttributes(const ChannelValues& values);

struct Channel_Channel : ServerDialog {
  TextBox Base{*this, "Base"}, HREF{*this, "HREF"};
  Button hrefFile{*this, "hrefFile", "..."};
  TextBox Level{*this, "Level"};
  Button Command2{*this, "Command2", "&Ok"}, Command1{*this, "Command1", "&Anuluj"};

  explicit Channel_Channel(Program& program);
  void Read(std::string_view tag);
  ChannelValues Values() const { return {.base = Base.Text(), .href = HREF.Text(), .level = Level.Text()}; }
  std::string Result() const override;  // a new tag, since a channel may have no attributes at all
};

// A tag that is written anew has a second blank in front of its attributes.
void EditChannel(Program& program);
// Puts a new pair of tags round the selection, the end in a line of its own.
void InsertChannel(Program& program);

}  // namespace morlan
