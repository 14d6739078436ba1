// A text written by a pattern, as a number, a date or a plain text.
#pragma once

#include <string>
#include <string_view>

namespace morlan {

// A number by a pattern of places: "0" is a digit that always stands, "#" one that may be missing, "." the decimal mark and
// "," between places parts the thousands; "%" stands for itself and takes the number a hundredfold. Up to three patterns
// parted by ";" serve what is positive, negative and nought. The result is as Polish readers write it: "1 234,50". Text in
// double quotes and a character behind "\" are copied, as is everything around the places.
std::string FormatNumber(double number, std::string_view pattern);

// A text by the pattern that suits it: a number where the pattern has places, a date or a time ("7.03.1998", "1998-03-07",
// "07/03/98 9:05") by the tokens of FormatDateTime, anything else as capitals for ">" and as small letters for "<". A text
// that the pattern does not suit, and an empty pattern, give the text as it is.
std::string FormatText(std::string_view text, std::string_view pattern);

}  // namespace morlan
