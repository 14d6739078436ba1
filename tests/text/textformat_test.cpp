#include "text/textformat.h"

#include <gtest/gtest.h>

#include <cmath>

#include "platform/encoding.h"

namespace morlan {
namespace {

struct NumberRow {
  double number;
  std::string_view pattern, text;
};
constexpr NumberRow kNumbers[] = {
    {5, "0", "5"},
    {0, "0", "0"},
    {0, "#", ""},
    {5, "000", "005"},
    {1234.5, "0", "1235"},
    {2.5, "0", "3"},
    {-2.5, "0", "-3"},
    {2.4999, "0", "2"},
    {2.675, "0.00", "2,68"},
    {1.005, "0.00", "1,01"},
    {0.285, "0%", "29%"},
    {1234.5, "0.###############", "1234,5"},
    {999999999999.12, "0.00", "999999999999,12"},
    {1234.567, "0.00", "1234,57"},
    {1234.5, "#,##0.00", "1 234,50"},
    {1234567, "#,##0", "1 234 567"},
    {999, "#,##0", "999"},
    {0.5, "0.##", "0,5"},
    {0.5, "#.##", ",5"},
    {2, "0.##", "2"},
    {0.25, "0%", "25%"},
    {-3.5, "0.0", "-3,5"},
    {-0.01, "0.0", "0,0"},
    {-3, "0;(0)", "(3)"},
    {0, "0;-0;\"brak\"", "brak"},
    {7, "\"nr \"0", "nr 7"},
    {12.5, "0.00 \\z\\\xB3", "12,50 z\xB3"},
    {3, "razem", "razem"},
};

TEST(FormatNumber, FillsThePlaces) {
  for (const NumberRow& row : kNumbers) EXPECT_EQ(FormatNumber(row.number, row.pattern), row.text) << row.number << " by " << row.pattern;
}

TEST(FormatNumber, HugeNumbersAndPatternsAreBounded) {
  EXPECT_EQ(FormatNumber(1e300, "0").size(), 301u);
  EXPECT_EQ(FormatNumber(1, "0." + std::string(1000, '0')), "1,000000000000000");
}

struct TextRow {
  std::string_view text, pattern, result;
};
constexpr TextRow kTexts[] = {
    {"abc", "", "abc"},
    {"żółw"_pl, ">", "ŻÓŁW"_pl},
    {"ŻÓŁW"_pl, "<", "żółw"_pl},
    {"3,5", "0.00", "3,50"},
    {"3.5", "0.00", "3,50"},
    {"-7", "0", "-7"},
    {"3 zł"_pl, "0.00", "3 zł"_pl},
    {".", "0", "."},
    {"abc", "0", "abc"},
    {"7.03.1998", "DDDD, D MMMM YYYY", "sobota, 7 marca 1998"},
    {"1998-03-07", "DD/MM/YY", "07/03/98"},
    {"07/03/98", "YYYY", "1998"},
    {"07/03/26", "YYYY", "2026"},
    {"29.02.2000", "MMM", "lut"},
    {"9:05", "HH:MM", "09:05"},
    {"9:05:07", "S", "7"},
    {"7.03.1998 9:05", "D/M H:MM", "7/3 9:05"},
    {"29.02.1999", "MMM", "29.02.1999"},
    {"32.01.1999", "MMM", "32.01.1999"},
    {"1.13.1999", "MMM", "1.13.1999"},
    {"25:00", "HH", "25:00"},
    {"1/2-1999", "MMM", "1/2-1999"},
    {"jutro", "DD/MM/YYYY", "jutro"},
};

TEST(FormatText, TakesThePatternThatSuits) {
  for (const TextRow& row : kTexts) EXPECT_EQ(FormatText(row.text, row.pattern), row.result) << row.text << " by " << row.pattern;
}

}  // namespace
}  // namespace morlan
