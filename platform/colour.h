// A colour as an integer with blue in the high byte: 0x00BBGGRR.
#pragma once

#include <cstdint>

namespace morlan {

using Colour = std::uint32_t;

constexpr Colour RgbColour(std::uint8_t red, std::uint8_t green, std::uint8_t blue) {
  return static_cast<Colour>(red) | static_cast<Colour>(green) << 8 | static_cast<Colour>(blue) << 16;
}
constexpr std::uint8_t RedOf(Colour colour) { return static_cast<std::uint8_t>(colour); }
constexpr std::uint8_t GreenOf(Colour colour) { return static_cast<std::uint8_t>(colour >> 8); }
constexpr std::uint8_t BlueOf(Colour colour) { return static_cast<std::uint8_t>(colour >> 16); }

}  // namespace morlan
