#include "text/dateformat.h"

#include <gtest/gtest.h>

#include "platform/encoding.h"

namespace morlan {
namespace {

constexpr DateTime kSaturday = {.year = 1998, .month = 3, .day = 7, .hour = 9, .minute = 5, .second = 4, .dayOfWeek = 6};
constexpr DateTime kAfternoon = {.year = 2026, .month = 11, .day = 22, .hour = 15, .minute = 45, .second = 30, .dayOfWeek = 0};

struct Row {
  std::string_view pattern, morning, afternoon;
};
constexpr Row kRows[] = {
    {"", "", ""},
    {"D/M/YY", "7/3/98", "22/11/26"},
    {"DD/MM/YY", "07/03/98", "22/11/26"},
    {"DD/MM/YYYY", "07/03/1998", "22/11/2026"},
    {"DDD/MM/YYYY", "sob/03/1998", "nie/11/2026"},
    {"DDD/MMM/YYYY", "sob/mar/1998", "nie/lis/2026"},
    {"DDDD/MMMM/YYYY", "sobota/marzec/1998", "niedziela/listopad/2026"},
    {"DD/MMMM/YYYY", "07/marca/1998", "22/listopada/2026"},
    {"dddd, d mmmm yyyy", "sobota, 7 marca 1998", "niedziela, 22 listopada 2026"},
    {"DD.MM.YYYY", "07.03.1998", "22.11.2026"},
    {"YYYY-MM-DD", "1998-03-07", "2026-11-22"},
    {"H:M:S", "9:5:4", "15:45:30"},
    {"HH:MM", "09:05", "15:45"},
    {"hh:mm:ss", "09:05:04", "15:45:30"},
    {"hh:nn:ss", "09:05:04", "15:45:30"},
    {"MM:SS", "05:04", "45:30"},
    {"H:MM AM/PM", "9:05 AM", "3:45 PM"},
    {"DD/MM/YY HH:MM:SS", "07/03/98 09:05:04", "22/11/26 15:45:30"},
    {"DD/MMMM/YYYY HH:MM:SS", "07/marca/1998 09:05:04", "22/listopada/2026 15:45:30"},
    {"HH:MM DD/MM", "09:05 07/03", "15:45 22/11"},
    {"\"Dnia\" D", "Dnia 7", "Dnia 22"},
    {"\\D: D", "D: 7", "D: 22"},
    {"\"bez końca"_pl, "bez końca"_pl, "bez końca"_pl},
    {"DDDDDD", "sobota", "niedziela"},
    {"YYY", "1998", "2026"},
    {"\\", "\\", "\\"},
};

TEST(DateFormat, WritesEveryToken) {
  for (const Row& row : kRows) {
    EXPECT_EQ(FormatDateTime(kSaturday, row.pattern), row.morning) << row.pattern;
    EXPECT_EQ(FormatDateTime(kAfternoon, row.pattern), row.afternoon) << row.pattern;
  }
}

TEST(DateFormat, NamesTheMonthsInBothCasesOfGrammar) {
  constexpr std::string_view kNames[][2] = {
      {"styczeń"_pl, "1 stycznia"},
      {"luty", "1 lutego"},
      {"marzec", "1 marca"},
      {"kwiecień"_pl, "1 kwietnia"},
      {"maj", "1 maja"},
      {"czerwiec", "1 czerwca"},
      {"lipiec", "1 lipca"},
      {"sierpień"_pl, "1 sierpnia"},
      {"wrzesień"_pl, "1 września"_pl},
      {"październik"_pl, "1 października"_pl},
      {"listopad", "1 listopada"},
      {"grudzień"_pl, "1 grudnia"},
  };
  DateTime moment;
  for (const auto& [nominative, genitive] : kNames) {
    EXPECT_EQ(FormatDateTime(moment, "MMMM"), nominative);
    EXPECT_EQ(FormatDateTime(moment, "D MMMM"), genitive);
    ++moment.month;
  }
}

TEST(DateFormat, NamesTheDaysFromSunday) {
  constexpr std::string_view kNames[] = {"niedziela", "poniedziałek"_pl, "wtorek", "środa"_pl, "czwartek", "piątek"_pl, "sobota"};
  DateTime moment;
  moment.dayOfWeek = 0;
  for (const std::string_view name : kNames) {
    EXPECT_EQ(FormatDateTime(moment, "dddd"), name);
    ++moment.dayOfWeek;
  }
}

TEST(DateFormat, NoonAndMidnightAreTwelveOfTheHalfDay) {
  DateTime moment;
  moment.hour = 0;
  EXPECT_EQ(FormatDateTime(moment, "h AM/PM"), "12 AM");
  moment.hour = 12;
  EXPECT_EQ(FormatDateTime(moment, "h AM/PM"), "12 PM");
}

}  // namespace
}  // namespace morlan
