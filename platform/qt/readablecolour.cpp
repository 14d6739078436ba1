#include "platform/qt/readablecolour.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace morlan {
namespace {

// Below the first a colour counts as unreadable; one that is moved goes as far as the second.
constexpr double kLeastContrast = 3.0;
constexpr double kWantedContrast = 4.5;
constexpr double kLightnessStep = 0.02;

struct Hsl {
  double hue, saturation, lightness;  // hue in sixths of the circle, the others from 0 to 1
};

double LinearLight(std::uint8_t channel) {
  const double value = channel / 255.0;
  return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double Luminance(Colour colour) {
  return 0.2126 * LinearLight(RedOf(colour)) + 0.7152 * LinearLight(GreenOf(colour)) + 0.0722 * LinearLight(BlueOf(colour));
}

Hsl HslOf(Colour colour) {
  const double red = RedOf(colour) / 255.0, green = GreenOf(colour) / 255.0, blue = BlueOf(colour) / 255.0;
  const double high = std::max({red, green, blue}), low = std::min({red, green, blue}), range = high - low;
  const double lightness = (high + low) / 2;
  if (range == 0) return {0, 0, lightness};
  const double saturation = range / (1 - std::abs(2 * lightness - 1));
  if (high == red) return {std::fmod((green - blue) / range + 6, 6), saturation, lightness};
  if (high == green) return {(blue - red) / range + 2, saturation, lightness};
  return {(red - green) / range + 4, saturation, lightness};
}

Colour ColourOf(const Hsl& hsl) {
  const double chroma = (1 - std::abs(2 * hsl.lightness - 1)) * hsl.saturation;
  const double middle = chroma * (1 - std::abs(std::fmod(hsl.hue, 2) - 1));
  const double low = hsl.lightness - chroma / 2;
  const std::array<std::array<double, 3>, 6> sectors = {
      {{chroma, middle, 0}, {middle, chroma, 0}, {0, chroma, middle}, {0, middle, chroma}, {middle, 0, chroma}, {chroma, 0, middle}}};
  const auto& sector = sectors[std::min<std::size_t>(5, static_cast<std::size_t>(hsl.hue))];
  const auto channel = [&](double value) { return static_cast<std::uint8_t>(std::lround(std::clamp(value + low, 0.0, 1.0) * 255)); };
  return RgbColour(channel(sector[0]), channel(sector[1]), channel(sector[2]));
}

}  // namespace

double Contrast(Colour first, Colour second) {
  const double one = Luminance(first) + 0.05, other = Luminance(second) + 0.05;
  return std::max(one, other) / std::min(one, other);
}

Colour ReadableOn(Colour colour, Colour background) {
  if (Contrast(colour, background) >= kLeastContrast) return colour;
  const Colour black = RgbColour(0, 0, 0), white = RgbColour(255, 255, 255);
  const bool lighter = Contrast(white, background) > Contrast(black, background);
  Hsl hsl = HslOf(colour);
  // A dark colour turns into its light counterpart and the other way round, so that hues keep their relative weight.
  if (lighter == (hsl.lightness < 0.5)) hsl.lightness = 1 - hsl.lightness;
  while (hsl.lightness > 0 && hsl.lightness < 1) {
    const Colour candidate = ColourOf(hsl);
    if (Contrast(candidate, background) >= kWantedContrast) return candidate;
    hsl.lightness += lighter ? kLightnessStep : -kLightnessStep;
  }
  return lighter ? white : black;
}

Colour Mixed(Colour first, Colour second, double share) {
  const auto mix = [&](std::uint8_t a, std::uint8_t b) { return static_cast<std::uint8_t>(std::lround(a * share + b * (1 - share))); };
  return RgbColour(mix(RedOf(first), RedOf(second)), mix(GreenOf(first), GreenOf(second)), mix(BlueOf(first), BlueOf(second)));
}

}  // namespace morlan
