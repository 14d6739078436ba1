#include "tags/channelmultidata.h"

#include <algorithm>

#include "core/defs.h"
#include "core/text.h"
#include "tags/tageditor.h"

namespace morlan {
namespace {

constexpr std::string_view kDigits = "0123456789";

std::string Number(int number) { return NumberText(static_cast<std::int64_t>(number)); }

}  // namespace

std::string ChannelDateText(const ChannelDate& date) {
  return Concat(
      {Number(date.year), ".", Number(date.month), ".", Number(date.day), "T", Number(date.hour), ":", Number(date.minute), "-0500"});
}

ChannelDate ReadChannelDate(std::string_view value, const ChannelDate& otherwise) {
  ChannelDate date = otherwise;
  for (int* part : {&date.year, &date.month, &date.day, &date.hour, &date.minute}) {
    value.remove_prefix(std::min(value.find_first_of(kDigits), value.size()));
    if (value.empty()) break;
    *part = LeadingInteger(value);
    value.remove_prefix(std::min(value.find_first_not_of(kDigits), value.size()));
  }
  return date;
}

Channel_MultiData::Channel_MultiData(Program& program) : Form("Channel_MultiData", "Edycja daty"), program_(program) {
  SetUpButtons(program, *this, Command2, Command1, "");
  firstFocus = &Year_;
  Command2.OnClick = [this] {
    program_.DialogResult = ChannelDateText(Date());
    Hide();
  };
  Year_.SetToolTip("Rok, czterema cyframi");
  Month_.SetToolTip("Miesiąc od 1 do 12"_pl);
  Day_.SetToolTip("Dzień miesiąca"_pl);
  Hour_.SetToolTip("Godzina od 0 do 23");
  Min_.SetToolTip("Minuta od 0 do 59");
  layout = layout::Rows(Info, layout::Field("&Rok", Year_), layout::Field("&Miesiąc"_pl, Month_), layout::Field("&Dzień"_pl, Day_),
                        layout::Field("&Godzina", Hour_), layout::Field("Mi&nuta", Min_), layout::ButtonRow(Command2, Command1));
}

void Channel_MultiData::Show(const ChannelDate& date) {
  Year_.SetValue(date.year);
  Month_.SetValue(date.month);
  Day_.SetValue(date.day);
  Hour_.SetValue(date.hour);
  Min_.SetValue(date.minute);
}

ChannelDate Channel_MultiData::Date() const {
  return {.year = Year_.Value(), .month = Month_.Value(), .day = Day_.Value(), .hour = Hour_.Value(), .minute = Min_.Value()};
}

std::string Channel_MultiData::Ask(std::string_view info, std::string_view value) {
  const DateTime now = program_.platform.clock.Now();
  Info.SetCaption(info);
  Show(ReadChannelDate(value, {.year = now.year, .month = now.month, .day = now.day, .hour = now.hour, .minute = now.minute}));
  ShowForNew(program_, *this, "");
  return program_.DialogResult;
}

}  // namespace morlan
