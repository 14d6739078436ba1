#include "core/text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace morlan {
namespace {

constexpr bool IsDigit(char character) { return character >= '0' && character <= '9'; }

std::size_t SkipDigits(std::string_view text, std::size_t offset) {
  while (offset < text.size() && IsDigit(text[offset])) ++offset;
  return offset;
}

// Behind the exponent that starts at an offset, or the offset itself when none does.
std::size_t SkipExponent(std::string_view text, std::size_t offset) {
  std::size_t digits = offset;
  if (digits >= text.size() || LowerCharacter(text[digits]) != 'e') return offset;
  ++digits;
  if (digits < text.size() && (text[digits] == '+' || text[digits] == '-')) ++digits;
  const std::size_t end = SkipDigits(text, digits);
  return end > digits ? end : offset;
}

// The characters of an unsigned number at the front of a text.
std::string_view NumberCharacters(std::string_view text) {
  const std::size_t point = SkipDigits(text, 0);
  std::size_t end = point;
  if (point < text.size() && text[point] == '.') end = SkipDigits(text, point + 1);
  const bool hasDigits = point > 0 || end > point + 1;
  return hasDigits ? text.substr(0, SkipExponent(text, end)) : std::string_view();
}

// A number out of the range of double goes to the range's end, or to zero when it is too small.
double OutOfRange(std::string_view digits) {
  digits.remove_prefix(std::min(digits.find_first_not_of('0'), digits.size()));
  const std::size_t exponent = digits.find_first_of("eE");
  const bool tiny = exponent == digits.npos ? digits.starts_with('.') : digits[exponent + 1] == '-';
  return tiny ? 0 : std::numeric_limits<double>::max();
}

}  // namespace

std::string Concat(std::initializer_list<std::string_view> pieces) {
  std::size_t length = 0;
  for (const std::string_view piece : pieces) length += piece.size();
  std::string text;
  text.reserve(length);
  for (const std::string_view piece : pieces) text += piece;
  return text;
}

std::string_view TrimLeft(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
  return text;
}

std::string_view TrimRight(std::string_view text) { return text.substr(0, text.find_last_not_of(' ') + 1); }

std::string_view Trim(std::string_view text) { return TrimLeft(TrimRight(text)); }

bool StartsWithNoCase(std::string_view text, std::string_view start) { return EqualNoCase(text.substr(0, start.size()), start); }

double LeadingNumber(std::string_view text) {
  text = TrimLeft(text);
  const bool negative = text.starts_with('-');
  if (negative || text.starts_with('+')) text.remove_prefix(1);
  const std::string_view digits = NumberCharacters(text);
  if (digits.empty()) return 0;
  double number = 0;
  const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), number);
  if (result.ec == std::errc::result_out_of_range) number = OutOfRange(digits);
  return negative ? -number : number;
}

std::int32_t LeadingInteger(std::string_view text) {
  using Limits = std::numeric_limits<std::int32_t>;
  const double number = LeadingNumber(text);
  return static_cast<std::int32_t>(std::clamp(number, static_cast<double>(Limits::min()), static_cast<double>(Limits::max())));
}

std::string NumberText(std::int64_t number) { return std::to_string(number); }

std::string NumberText(double number) {
  constexpr int kSignificantDigits = 15;
  char digits[64];
  const auto result = std::to_chars(digits, digits + sizeof digits, number, std::chars_format::general, kSignificantDigits);
  return {digits, result.ptr};
}

std::string Replaced(std::string_view text, std::string_view what, std::string_view with) {
  std::string result;
  if (what.empty()) return std::string(text);
  std::size_t from = 1;
  for (std::size_t hit = Find(text, what); hit != 0; hit = Find(text, what, from)) {
    result += text.substr(from - 1, hit - from);
    result += with;
    from = hit + what.size();
  }
  result += text.substr(from - 1);
  return result;
}

}  // namespace morlan
