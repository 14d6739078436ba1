// Whole files for the small tools, by native paths. What goes wrong is told on the error output.
#pragma once

#include <optional>
#include <string>

namespace morlan {

std::optional<std::string> ReadToolFile(const std::string& path);

// The old file stays whole until the new one takes its name.
bool WriteToolFile(const std::string& path, const std::string& bytes);

}  // namespace morlan
