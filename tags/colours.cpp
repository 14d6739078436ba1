#include "tags/colours.h"

#include <array>

#include "core/text.h"

namespace morlan {
namespace {

struct NamedColour {
  std::string_view name, digits;
};

constexpr std::array<NamedColour, 16> kNamedColours = {{
    {"black", "000000"},
    {"green", "008000"},
    {"silver", "C0C0C0"},
    {"lime", "00FF00"},
    {"gray", "808080"},
    {"olive", "808000"},
    {"white", "FFFFFF"},
    {"yellow", "FFFF00"},
    {"maroon", "800000"},
    {"navy", "000080"},
    {"red", "FF0000"},
    {"blue", "0000FF"},
    {"purple", "800080"},
    {"teal", "008080"},
    {"fuchsia", "FF00FF"},
    {"aqua", "00FFFF"},
}};

}  // namespace

Colour HexToLong(std::string_view digits) {
  // Digits that fill a text of two or four up to six are noughts in front and change no value.
  Colour value = 0;
  for (const char character : digits) {
    const int digit = HexDigitValue(character);
    const bool isDigit = (character >= '0' && character <= '9') || (digit >= 10 && digit < 16);
    if (!isDigit) break;
    value = value << 4 | static_cast<Colour>(digit);
  }
  return value;
}

Colour ColorNameToValue(std::string_view text) {
  if (text.starts_with('#')) return HexToRgb(text);
  for (const NamedColour& colour : kNamedColours)
    if (EqualNoCase(text, colour.name)) return HexToLong(colour.digits);
  return HexToRgb(text);
}

}  // namespace morlan
