// The basics of texts in Windows-1250, one byte a character. Positions count from 1 and 0 means "not found";
// offsets, as of SelStart, count from 0.
#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

#include "platform/encoding.h"
#include "platform/lettercase.h"

namespace morlan {

inline constexpr std::string_view CrLf = "\r\n";
inline constexpr std::string_view Quote = "\"";
inline constexpr std::string_view BrTag = "<BR>";
inline constexpr std::string_view NbspEntity = "&nbsp;";

inline constexpr std::string_view VersionText = "1.5 Final (C)1997/1998";
inline constexpr std::string_view GeneratorText = "Morlan7 wersja 1.5 Final (C)1997/1998";

// The pieces, one behind the other.
std::string Concat(std::initializer_list<std::string_view> pieces);

// The first place of `needle` at or behind position `from` (from 1; less counts as 1). 0 when absent; an empty needle
// is found at `from` while that lies within the text or directly behind it.
std::size_t Find(std::string_view text, std::string_view needle, std::size_t from = 1);
std::size_t FindNoCase(std::string_view text, std::string_view needle, std::size_t from = 1);

std::string_view TrimLeft(std::string_view text);  // blanks (32) only
std::string_view TrimRight(std::string_view text);
std::string_view Trim(std::string_view text);
bool StartsWithNoCase(std::string_view text, std::string_view start);

// The number that stands at the front of a text, leading blanks skipped; 0 when there is none. "5,5x" gives 5 here and
// LeadingNumber gives 5 as well, since the fraction mark is a point.
double LeadingNumber(std::string_view text);
// The same, cut to a whole number within 32 bits.
std::int32_t LeadingInteger(std::string_view text);
// The number in text form with no leading blank.
std::string NumberText(std::int64_t number);
std::string NumberText(double number);

std::string Replaced(std::string_view text, std::string_view what, std::string_view with);

}  // namespace morlan
