#include "text/textformat.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <limits>
#include <optional>

#include "core/text.h"
#include "text/dateformat.h"

namespace morlan {
namespace {

constexpr std::string_view kPlaces = "0#";
constexpr int kMostDecimals = 15;
constexpr std::size_t kGroup = 3;

bool IsDigit(char character) { return character >= '0' && character <= '9'; }

// The length of what is copied from an offset: a text in quotes or a character behind "\"; 0 when nothing is.
std::size_t CopiedAt(std::string_view pattern, std::size_t at) {
  if (pattern[at] == '\\') return std::min<std::size_t>(2, pattern.size() - at);
  if (pattern[at] != '"') return 0;
  const std::size_t end = pattern.find('"', at + 1);
  return (end == pattern.npos ? pattern.size() : end + 1) - at;
}

// The first of some characters outside copied text, from an offset on.
std::size_t FindOutside(std::string_view pattern, std::string_view characters, std::size_t from = 0) {
  while (from < pattern.size()) {
    if (const std::size_t copied = CopiedAt(pattern, from)) {
      from += copied;
      continue;
    }
    if (characters.find(pattern[from]) != characters.npos) return from;
    ++from;
  }
  return pattern.npos;
}

std::string CopiedText(std::string_view pattern) {
  std::string text;
  for (std::size_t i = 0; i < pattern.size();) {
    const std::size_t copied = CopiedAt(pattern, i);
    if (copied == 0) {
      text += pattern[i++];
      continue;
    }
    std::string_view piece = pattern.substr(i + 1, copied - 1);
    if (pattern[i] == '"' && piece.ends_with('"')) piece.remove_suffix(1);
    text += piece;
    i += copied;
  }
  return text;
}

// The part of a pattern that serves a number, and whether it is left to this function to write the minus.
struct Section {
  std::string_view pattern;
  bool writesMinus;
};

Section SectionFor(double number, std::string_view pattern) {
  std::array<std::string_view, 3> sections;
  std::size_t count = 0;
  while (count < sections.size()) {
    const std::size_t end = std::min(FindOutside(pattern, ";"), pattern.size());
    sections[count++] = pattern.substr(0, end);
    if (end == pattern.size()) break;
    pattern.remove_prefix(end + 1);
  }
  if (number < 0 && count > 1 && !sections[1].empty()) return {sections[1], false};
  if (number == 0 && count > 2 && !sections[2].empty()) return {sections[2], false};
  return {sections[0], number < 0};
}

// What the places of a pattern ask for.
struct Places {
  std::size_t first = 0, end = 0;  // offsets in the pattern
  std::size_t leastWhole = 0;      // digits in front of the decimal mark
  int leastDecimals = 0, mostDecimals = 0;
  bool grouped = false;
};

Places PlacesOf(std::string_view pattern) {
  Places places;
  places.first = FindOutside(pattern, kPlaces);
  if (places.first > 0 && places.first != pattern.npos && pattern[places.first - 1] == '.') --places.first;
  places.first = std::min(places.first, pattern.size());
  bool inDecimals = false;
  std::size_t i = places.first;
  for (; i < pattern.size(); ++i) {
    const char character = pattern[i];
    const bool isPlace = kPlaces.find(character) != kPlaces.npos;
    if (character == '.' && !inDecimals)
      inDecimals = true;
    else if (character == ',' && !inDecimals)
      places.grouped = true;
    else if (!isPlace)
      break;
    else if (inDecimals && places.mostDecimals < kMostDecimals)
      places.leastDecimals = character == '0' ? ++places.mostDecimals : (++places.mostDecimals, places.leastDecimals);
    else if (!inDecimals && (character == '0' || places.leastWhole > 0))
      ++places.leastWhole;
  }
  places.end = i;
  return places;
}

// Groups of three from the right, with blanks between.
std::string Grouped(std::string_view digits) {
  std::string text;
  for (std::size_t i = 0; i < digits.size(); ++i) {
    if (i > 0 && (digits.size() - i) % kGroup == 0) text += ' ';
    text += digits[i];
  }
  return text;
}

// A half is rounded upwards as people see it: 2.675 lies a little lower in binary, and its last bits lift it. A number that fills
// all bits has none to spare.
double WithHalvesLifted(double magnitude, int decimals) {
  constexpr double kBitsToSpare = 1e13;
  const bool fits = magnitude * std::pow(10, decimals) < kBitsToSpare;
  return fits ? magnitude * (1 + 2 * std::numeric_limits<double>::epsilon()) : magnitude;
}

std::string DigitsOf(double magnitude, const Places& places) {
  std::array<char, 400> buffer{};  // the largest number has 309 digits in front of the mark
  std::snprintf(buffer.data(), buffer.size(), "%.*f", places.mostDecimals, WithHalvesLifted(magnitude, places.mostDecimals));
  const std::string_view number = buffer.data();
  const std::size_t mark = std::min(number.find('.'), number.size());
  std::string whole(number.substr(0, mark));
  if (whole == "0" && places.leastWhole == 0) whole.clear();
  if (whole.size() < places.leastWhole) whole.insert(0, places.leastWhole - whole.size(), '0');
  std::string_view decimals = number.substr(std::min(mark + 1, number.size()));
  while (decimals.size() > static_cast<std::size_t>(places.leastDecimals) && decimals.ends_with('0')) decimals.remove_suffix(1);
  return Concat({places.grouped ? Grouped(whole) : whole, decimals.empty() ? "" : ",", decimals});
}

// A number with a point or a comma as its decimal mark and nothing else around it.
std::optional<double> WholeNumber(std::string_view text) {
  text = Trim(text);
  const bool minus = text.starts_with('-');
  if (minus || text.starts_with('+')) text.remove_prefix(1);
  const bool isNumber = std::all_of(text.begin(), text.end(), [](char c) { return IsDigit(c) || c == '.' || c == ','; });
  const auto marks = std::count_if(text.begin(), text.end(), [](char c) { return !IsDigit(c); });
  if (!isNumber || marks > 1 || static_cast<std::size_t>(marks) == text.size()) return std::nullopt;
  const double number = LeadingNumber(Replaced(text, ",", "."));
  return minus ? -number : number;
}

// Up to three numbers parted by one character, the text used up.
struct Numbers {
  std::array<int, 3> value{};
  std::size_t count = 0;
  bool startsWithYear = false;  // the first has four digits
};

std::optional<Numbers> NumbersIn(std::string_view text, std::string_view separators) {
  Numbers numbers;
  char separator = 0;
  while (numbers.count < numbers.value.size()) {
    std::size_t length = 0;
    while (length < text.size() && IsDigit(text[length])) ++length;
    if (length == 0 || length > 4) return std::nullopt;
    if (numbers.count == 0) numbers.startsWithYear = length == 4;
    numbers.value[numbers.count++] = LeadingInteger(text.substr(0, length));
    text.remove_prefix(length);
    if (text.empty()) return numbers;
    if (separators.find(text[0]) == separators.npos || (separator != 0 && text[0] != separator)) return std::nullopt;
    separator = text[0];
    text.remove_prefix(1);
  }
  return std::nullopt;
}

constexpr int kCentury = 100, kYearsOfThisCentury = 30;

int FullYear(int year) {
  if (year >= kCentury) return year;
  return year < kYearsOfThisCentury ? 2000 + year : 1900 + year;
}

int DaysIn(int month, int year) {
  constexpr std::array<int, 12> kDays = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  const bool isLeap = year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
  return month == 2 && isLeap ? 29 : kDays[static_cast<std::size_t>(month - 1)];
}

// 0 is Sunday.
int DayOfWeek(int year, int month, int day) {
  constexpr std::array<int, 12> kShift = {0, 3, 2, 5, 0, 3, 5, 1, 4, 6, 2, 4};
  if (month < 3) --year;
  return (year + year / 4 - year / 100 + year / 400 + kShift[static_cast<std::size_t>(month - 1)] + day) % 7;
}

bool ReadDate(std::string_view text, DateTime& moment) {
  const auto numbers = NumbersIn(text, "./-");
  if (!numbers || numbers->count != 3) return false;
  const auto [first, second, third] = numbers->value;
  const int year = numbers->startsWithYear ? first : FullYear(third);
  const int day = numbers->startsWithYear ? third : first;
  if (year < 1 || second < 1 || second > 12 || day < 1 || day > DaysIn(second, year)) return false;
  moment.year = year;
  moment.month = second;
  moment.day = day;
  moment.dayOfWeek = DayOfWeek(year, second, day);
  return true;
}

bool ReadTime(std::string_view text, DateTime& moment) {
  const auto numbers = NumbersIn(text, ":");
  if (!numbers || numbers->count < 2) return false;
  const auto [hour, minute, second] = numbers->value;
  if (hour > 23 || minute > 59 || second > 59) return false;
  moment.hour = hour;
  moment.minute = minute;
  moment.second = second;
  return true;
}

std::optional<DateTime> MomentIn(std::string_view text) {
  DateTime moment;
  text = Trim(text);
  if (ReadDate(text, moment) || ReadTime(text, moment)) return moment;
  const std::size_t blank = text.find(' ');
  if (blank == text.npos) return std::nullopt;
  if (ReadDate(text.substr(0, blank), moment) && ReadTime(Trim(text.substr(blank)), moment)) return moment;
  return std::nullopt;
}

}  // namespace

std::string FormatNumber(double number, std::string_view pattern) {
  if (!std::isfinite(number)) return NumberText(number);
  const Section section = SectionFor(number, pattern);
  const Places places = PlacesOf(section.pattern);
  const bool isPercent = FindOutside(section.pattern, "%") != section.pattern.npos;
  const std::string digits = DigitsOf(std::fabs(number) * (isPercent ? 100 : 1), places);
  const bool isNought = digits.find_first_of("123456789") == digits.npos;
  return Concat({section.writesMinus && !isNought ? "-" : "", CopiedText(section.pattern.substr(0, places.first)),
                 places.first < places.end ? digits : "", CopiedText(section.pattern.substr(places.end))});
}

std::string FormatText(std::string_view text, std::string_view pattern) {
  if (pattern == ">") return UpperCase(text);
  if (pattern == "<") return LowerCase(text);
  if (FindOutside(pattern, kPlaces) != pattern.npos) {
    const auto number = WholeNumber(text);
    return number ? FormatNumber(*number, pattern) : std::string(text);
  }
  const auto moment = pattern.empty() ? std::nullopt : MomentIn(text);
  return moment ? FormatDateTime(*moment, pattern) : std::string(text);
}

}  // namespace morlan
