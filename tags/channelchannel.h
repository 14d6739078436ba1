// The dialog of a whole channel, the CHANNEL tag.
#pragma once

#include <string>
#include <string_view>

#include "platform/encoding.h"
#include "tags/serverdialog.h"

namespace morlan {

struct ChannelValues {
  std::string base, href, level;
};
// Empty attributes are left out, and a level whose number is 0.
std::string ChannelText(const ChannelValues& values);

struct Channel_Channel : ServerDialog {
  TextBox Base{*this, "Base"}, HREF{*this, "HREF"};
  Button hrefFile{*this, "hrefFile", "..."};
  TextBox Level{*this, "Level"};
  Button Command2{*this, "Command2", "&Ok"}, Command1{*this, "Command1", "&Anuluj"};

  explicit Channel_Channel(Program& program);
  void Read(std::string_view tag);
  std::string Result() const override;  // the tag
};

void EditChannel(Program& program);
void InsertChannel(Program& program);

}  // namespace morlan
