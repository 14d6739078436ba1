// The classes that style sheets define for a tag, as plain text finds them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace morlan {

// Whatever stands behind the tag's name and a ".", up to the next blank, line end or "{", in the order of the text and once
// each. The name also counts as the tail of a longer one; a class without a tag is not seen.
std::vector<std::string> ClassesInSheet(std::string_view sheet, std::string_view tagName);

// The same between the first "<style" of a page and its end; none when the page has no such part.
std::vector<std::string> ClassesInPage(std::string_view page, std::string_view tagName);

// A file of styles is read as a page where it holds a "<style", and whole where it does not.
std::vector<std::string> ClassesInFile(std::string_view content, std::string_view tagName);

// What the page's links to style sheets point at, as written.
std::vector<std::string> LinkedSheets(std::string_view page);

}  // namespace morlan
