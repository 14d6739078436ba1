// The browsers that pages are shown in: rows of a list, of which the one in use stands in curly brackets, and the item Browser of
// the main store.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace morlan {

class INIFile;

// The row that stands for the system's own browser.
extern const std::string_view kDefaultBrowser;

std::string InBrackets(std::string_view browser);
bool HasBrackets(std::string_view row);
std::string_view WithoutBrackets(std::string_view row);

// A row for each browser that is stored, and one for the system's own where it is not among them. No row has brackets when the
// browser in use is none of them.
std::vector<std::string> LoadBrowsers(INIFile& store);
// Numbers the browsers from 1, the system's own one left out, and stores which is in use. When no row has brackets, what is in use
// stays as it is stored; but when the browser in use was taken off the list, it is the system's own from now on.
void SaveBrowsers(INIFile& store, std::span<const std::string> rows);

}  // namespace morlan
