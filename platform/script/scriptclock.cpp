#include "platform/script/scriptclock.h"

#include <algorithm>
#include <charconv>
#include <thread>

namespace morlan {
namespace {

namespace chrono = std::chrono;

std::optional<int> ReadDigits(std::string_view text) {
  int value = 0;
  if (!std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; })) return std::nullopt;
  std::from_chars(text.data(), text.data() + text.size(), value);
  return value;
}

chrono::year_month_day DateOf(const DateTime& moment) { return chrono::year{moment.year} / moment.month / moment.day; }

DateTime MomentOf(chrono::sys_seconds time) {
  const chrono::sys_days days = chrono::floor<chrono::days>(time);
  const chrono::year_month_day date{days};
  const chrono::hh_mm_ss clock{time - days};
  DateTime moment;
  moment.year = static_cast<int>(date.year());
  moment.month = static_cast<int>(static_cast<unsigned>(date.month()));
  moment.day = static_cast<int>(static_cast<unsigned>(date.day()));
  moment.hour = static_cast<int>(clock.hours().count());
  moment.minute = static_cast<int>(clock.minutes().count());
  moment.second = static_cast<int>(clock.seconds().count());
  moment.dayOfWeek = static_cast<int>(chrono::weekday{days}.c_encoding());
  return moment;
}

chrono::sys_seconds TimeOf(const DateTime& moment) {
  return chrono::sys_days{DateOf(moment)} + chrono::hours{moment.hour} + chrono::minutes{moment.minute} + chrono::seconds{moment.second};
}

}  // namespace

std::optional<DateTime> ReadMoment(std::string_view text) {
  constexpr std::string_view kShape = "0000-00-00T00:00:00";
  if (text.size() != kShape.size()) return std::nullopt;
  for (std::size_t i = 0; i < kShape.size(); ++i)
    if (kShape[i] != '0' && kShape[i] != text[i]) return std::nullopt;
  DateTime moment;
  struct Part {
    std::size_t offset, length;
    int& value;
    int largest;
  };
  const Part parts[] = {{0, 4, moment.year, 9999}, {5, 2, moment.month, 12},   {8, 2, moment.day, 31},
                        {11, 2, moment.hour, 23},  {14, 2, moment.minute, 59}, {17, 2, moment.second, 59}};
  for (const Part& part : parts) {
    const auto value = ReadDigits(text.substr(part.offset, part.length));
    if (!value || *value > part.largest) return std::nullopt;
    part.value = *value;
  }
  if (!DateOf(moment).ok()) return std::nullopt;
  return MomentOf(TimeOf(moment));
}

ScriptClock::ScriptClock(Clock& real, std::optional<DateTime> stoppedAt) : real_(real) {
  if (stoppedAt) stoppedAt_ = TimeOf(*stoppedAt);
}

DateTime ScriptClock::Now() {
  return stoppedAt_ ? MomentOf(*stoppedAt_ + chrono::seconds{static_cast<std::int64_t>(passed_ / 1000)}) : real_.Now();
}

std::uint64_t ScriptClock::Milliseconds() { return stoppedAt_ ? passed_ : real_.Milliseconds(); }

void ScriptClock::MoveTo(std::uint64_t milliseconds) {
  if (stoppedAt_) {
    passed_ = std::max(passed_, milliseconds);
    return;
  }
  for (std::uint64_t now = real_.Milliseconds(); now < milliseconds; now = real_.Milliseconds())
    std::this_thread::sleep_for(chrono::milliseconds{milliseconds - now});
}

}  // namespace morlan
