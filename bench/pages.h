// Pages of hand-written style for the benchmarks, always the same for the same length.
#pragma once

#include <cstddef>
#include <string>

namespace morlan {

// A page of about that many bytes, at least the head and the end of one: some 33 tags a kilobyte, attribute values in
// double quotes, in single quotes and bare, comments, scripts, Polish words in Windows-1250, lines ended by CR LF.
std::string GeneratedPage(std::size_t bytes);

}  // namespace morlan
