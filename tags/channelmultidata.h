// The dialog that asks for a date and a time of a channel.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/encoding.h"
#include "platform/forms/controls.h"

namespace morlan {

class Program;

// A local time.
struct ChannelDate {
  int year = 0, month = 0, day = 0, hour = 0, minute = 0;
};
// "1998.5.4T12:30-0500": the numbers have no zeros in front, and the zone is always this one.
std::string ChannelDateText(const ChannelDate& date);
// The numbers of a value in their order, whatever stands between them; those that are missing come from `otherwise`.
ChannelDate ReadChannelDate(std::string_view value, const ChannelDate& otherwise);

struct Channel_MultiData : Form {
  Label Info{*this, "Info"};
  SpinButton Year_{*this, "Year_", 1998, 1, 9999}, Month_{*this, "Month_", 1, 1, 12}, Day_{*this, "Day_", 1, 1, 31};
  SpinButton Hour_{*this, "Hour_", 0, 0, 23}, Min_{*this, "Min_", 0, 0, 59};
  Button Command2{*this, "Command2", "&Ok"}, Command1{*this, "Command1", "&Anuluj"};

  explicit Channel_MultiData(Program& program);
  // Asks for a date, which starts from `value` as far as that holds one, and from now. Empty when the dialog was cancelled.
  std::string Ask(std::string_view info, std::string_view value = "");

 private:
  void Show(const ChannelDate& date);
  ChannelDate Date() const;
  Program& program_;
};

}  // namespace morlan
