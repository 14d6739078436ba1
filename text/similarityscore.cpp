#include "text/similarityscore.h"

#include <algorithm>
#include <cstdint>

#include "platform/lettercase.h"

namespace morlan {
namespace {

// In hundredths: a tenth of a whole distance, squared, has no more than two decimals.
std::uint64_t SumOf(std::string_view name) {
  std::uint64_t sum = 0;
  for (const char character : name) {
    const int distance = static_cast<unsigned char>(LowerCharacter(character)) - '0';
    sum += static_cast<std::uint64_t>(distance * distance);
  }
  return sum;
}

}  // namespace

int SimilarityScore(std::string_view a, std::string_view b) {
  const auto [smaller, larger] = std::minmax({SumOf(a), SumOf(b)});
  return larger == 0 ? 0 : static_cast<int>(smaller * 100 / larger);
}

}  // namespace morlan
