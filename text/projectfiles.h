// What a project's store tells of its files: in the item "Files" the keys "FileCount", "BaseDir" and "FileName" with a number.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace morlan {

// The files' paths in the order of their numbers, from 1 to the count. A slot without a name is passed over; a name that is no
// whole path lies below the base directory.
std::vector<std::string> ProjectFiles(std::string_view store);

}  // namespace morlan
