// Dates and times written by a pattern, with Polish names.
#pragma once

#include <string>
#include <string_view>

#include "platform/datetime.h"

namespace morlan {

// The pattern's tokens, in letters of either case; everything else stands for itself:
//   D DD        day, without and with a leading zero      H HH   hour of 24; of 12 when the pattern holds AM/PM
//   DDD DDDD    day of the week, short and whole          N NN   minute
//   M MM        month; minute behind an hour or in front of seconds
//   MMM MMMM    month's name, short and whole             S SS   second
//   YY YYYY     year of two and of four digits            AM/PM  "AM" or "PM"
// A longer run of a letter counts as its longest token. A month's whole name stands in the genitive beside the number of a
// day ("7 marca") and in the nominative without one ("marzec"). Text in double quotes and a character behind "\" are
// copied. An empty pattern gives an empty text.
std::string FormatDateTime(const DateTime& moment, std::string_view pattern);

}  // namespace morlan
