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

int DigitValue(char character) {
  const auto code = static_cast<unsigned char>(UpperCharacter(character));
  return code >= 'A' ? code - 'A' + 10 : code - '0';
}

// The two characters at an offset, as far as the text reaches.
std::string_view PairAt(std::string_view digits, std::size_t offset) {
  return offset < digits.size() ? digits.substr(offset, 2) : std::string_view();
}

}  // namespace

std::uint8_t HexPairToByte(std::string_view pair) {
  int value = 0;
  for (std::size_t i = 0; i < 2; ++i) value = value * 16 + (i < pair.size() ? DigitValue(pair[i]) : 0);
  return static_cast<std::uint8_t>(value);
}

Colour HexToRgb(std::string_view digits) {
  return RgbColour(HexPairToByte(PairAt(digits, 0)), HexPairToByte(PairAt(digits, 2)), HexPairToByte(PairAt(digits, 4)));
}

Colour HexToLong(std::string_view digits) {
  // Digits that fill a text of two or four up to six are noughts in front and change no value.
  Colour value = 0;
  for (const char character : digits) {
    const int digit = DigitValue(character);
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

std::string ColorToHex(Colour colour) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string text;
  for (const std::uint8_t part : {RedOf(colour), GreenOf(colour), BlueOf(colour)}) {
    text += kDigits[part >> 4];
    text += kDigits[part & 15];
  }
  return text;
}

}  // namespace morlan
