// How alike two names are.
#pragma once

#include <string_view>

namespace morlan {

// From 0 to 100. Each name counts as the sum of squares of its characters' distances from "0", in small letters, so that the
// order of letters does not matter; the score is the smaller sum in percent of the larger one, cut to a whole number. Two
// empty names score 0.
int SimilarityScore(std::string_view a, std::string_view b);

// A score above it means the same name.
inline constexpr int kSimilarEnough = 98;

}  // namespace morlan
