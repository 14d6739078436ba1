// The size of a file or a text as people read it.
#pragma once

#include <cstdint>
#include <string>

namespace morlan {

// "5 B", "2 KB", "1.5 MB": divided by 1024 while that leaves a whole part, at most twice; two decimals, the
// rest cut off.
std::string SizeText(std::uint64_t bytes);

}  // namespace morlan
