#include "text/dateformat.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <vector>

#include "core/text.h"

namespace morlan {
namespace {

struct Month {
  std::string_view brief, nominative, genitive;
};
constexpr std::array<Month, 12> kMonths = {{
    {"sty", "styczeń"_pl, "stycznia"},
    {"lut", "luty", "lutego"},
    {"mar", "marzec", "marca"},
    {"kwi", "kwiecień"_pl, "kwietnia"},
    {"maj", "maj", "maja"},
    {"cze", "czerwiec", "czerwca"},
    {"lip", "lipiec", "lipca"},
    {"sie", "sierpień"_pl, "sierpnia"},
    {"wrz", "wrzesień"_pl, "września"_pl},
    {"paź"_pl, "październik"_pl, "października"_pl},
    {"lis", "listopad", "listopada"},
    {"gru", "grudzień"_pl, "grudnia"},
}};

struct WeekDay {
  std::string_view brief, whole;
};
constexpr std::array<WeekDay, 7> kWeekDays = {{
    {"nie", "niedziela"},
    {"pon", "poniedziałek"_pl},
    {"wto", "wtorek"},
    {"śro"_pl, "środa"_pl},
    {"czw", "czwartek"},
    {"pią"_pl, "piątek"_pl},
    {"sob", "sobota"},
}};

// Text stands for itself; the others are the letters of their tokens.
enum class Kind : std::uint8_t { Text, Day, Month, Year, Hour, Minute, Second, HalfDay };

struct Token {
  Kind kind;
  std::size_t length;     // letters of the token
  std::string_view text;  // as it stands in the pattern
};

Kind KindOf(char character) {
  switch (LowerCharacter(character)) {
    case 'd':
      return Kind::Day;
    case 'm':
      return Kind::Month;
    case 'y':
      return Kind::Year;
    case 'h':
      return Kind::Hour;
    case 'n':
      return Kind::Minute;
    case 's':
      return Kind::Second;
    default:
      return Kind::Text;
  }
}

constexpr std::string_view kHalfDay = "AM/PM";

// The token that begins at an offset.
Token TokenAt(std::string_view pattern, std::size_t from) {
  const std::string_view rest = pattern.substr(from);
  if (rest[0] == '"') {
    const std::size_t end = rest.find('"', 1);
    return {Kind::Text, end == rest.npos ? rest.size() : end + 1, rest.substr(1, end == rest.npos ? end : end - 1)};
  }
  if (rest[0] == '\\' && rest.size() > 1) return {Kind::Text, 2, rest.substr(1, 1)};
  if (StartsWithNoCase(rest, kHalfDay)) return {Kind::HalfDay, kHalfDay.size(), rest.substr(0, kHalfDay.size())};
  const Kind kind = KindOf(rest[0]);
  std::size_t length = 1;
  if (kind != Kind::Text)
    while (length < rest.size() && LowerCharacter(rest[length]) == LowerCharacter(rest[0])) ++length;
  return {kind, length, rest.substr(0, length)};
}

std::vector<Token> TokensOf(std::string_view pattern) {
  std::vector<Token> tokens;
  for (std::size_t from = 0; from < pattern.size(); from += tokens.back().length) tokens.push_back(TokenAt(pattern, from));
  return tokens;
}

// A month of one or two letters means minutes when the last number was an hour, or the next one is a second.
void TellMinutesFromMonths(std::vector<Token>& tokens) {
  Kind last = Kind::Text;
  for (std::size_t i = 0; i < tokens.size(); ++i) {
    if (tokens[i].kind == Kind::Text) continue;
    if (tokens[i].kind == Kind::Month && tokens[i].length <= 2) {
      const auto next = std::find_if(tokens.begin() + static_cast<std::ptrdiff_t>(i) + 1, tokens.end(),
                                     [](const Token& token) { return token.kind != Kind::Text; });
      if (last == Kind::Hour || (next != tokens.end() && next->kind == Kind::Second)) tokens[i].kind = Kind::Minute;
    }
    last = tokens[i].kind;
  }
}

std::string Digits(int number, std::size_t width) {
  std::string digits = std::to_string(number);
  if (digits.size() < width) digits.insert(0, width - digits.size(), '0');
  return digits;
}

template <class Table>
const auto& RowOf(const Table& table, int row) {
  return table[static_cast<std::size_t>(std::clamp(row, 0, static_cast<int>(table.size()) - 1))];
}

std::string DayText(const DateTime& moment, std::size_t length) {
  if (length <= 2) return Digits(moment.day, length);
  const WeekDay& day = RowOf(kWeekDays, moment.dayOfWeek);
  return std::string(length == 3 ? day.brief : day.whole);
}

std::string MonthText(const DateTime& moment, std::size_t length, bool besideDay) {
  if (length <= 2) return Digits(moment.month, length);
  const Month& month = RowOf(kMonths, moment.month - 1);
  if (length == 3) return std::string(month.brief);
  return std::string(besideDay ? month.genitive : month.nominative);
}

std::string YearText(int year, std::size_t length) { return length <= 2 ? Digits(year % 100, 2) : Digits(year, 4); }

constexpr int kNoon = 12;

std::string HourText(int hour, std::size_t length, bool halfDays) {
  const int shown = !halfDays ? hour : hour % kNoon == 0 ? kNoon : hour % kNoon;
  return Digits(shown, std::min<std::size_t>(length, 2));
}

class Writer {
 public:
  Writer(const DateTime& moment, const std::vector<Token>& tokens) : moment_(moment) {
    for (const Token& token : tokens) {
      hasDay_ = hasDay_ || (token.kind == Kind::Day && token.length <= 2);
      hasHalfDay_ = hasHalfDay_ || token.kind == Kind::HalfDay;
    }
  }
  std::string Text(const Token& token) const {
    const std::size_t width = std::min<std::size_t>(token.length, 2);
    switch (token.kind) {
      case Kind::Day:
        return DayText(moment_, token.length);
      case Kind::Month:
        return MonthText(moment_, token.length, hasDay_);
      case Kind::Year:
        return YearText(moment_.year, token.length);
      case Kind::Hour:
        return HourText(moment_.hour, token.length, hasHalfDay_);
      case Kind::Minute:
        return Digits(moment_.minute, width);
      case Kind::Second:
        return Digits(moment_.second, width);
      case Kind::HalfDay:
        return moment_.hour < kNoon ? "AM" : "PM";
      case Kind::Text:
        break;
    }
    return std::string(token.text);
  }

 private:
  const DateTime& moment_;
  bool hasDay_ = false, hasHalfDay_ = false;
};

}  // namespace

std::string FormatDateTime(const DateTime& moment, std::string_view pattern) {
  std::vector<Token> tokens = TokensOf(pattern);
  TellMinutesFromMonths(tokens);
  const Writer writer(moment, tokens);
  std::string text;
  for (const Token& token : tokens) text += writer.Text(token);
  return text;
}

}  // namespace morlan
