#include "core/sizetext.h"

#include <array>
#include <cmath>
#include <string_view>

#include "core/text.h"

namespace morlan {

std::string SizeText(std::uint64_t bytes) {
  constexpr std::array<std::string_view, 3> kUnits = {" B", " KB", " MB"};
  constexpr double kStep = 1024;
  double number = static_cast<double>(bytes);
  std::size_t unit = 0;
  while (unit + 1 < kUnits.size() && number / kStep >= 1) {
    number /= kStep;
    ++unit;
  }
  constexpr double kHundredth = 100;
  return Concat({NumberText(std::trunc(number * kHundredth) / kHundredth), kUnits[unit]});
}

}  // namespace morlan
