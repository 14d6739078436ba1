// The pictures of menu entries.
#pragma once

#include <string_view>

namespace morlan {

// The name of the icon of an entry, by the entry's name with "mn_" or "xmn_" in front; empty when it has none.
std::string_view MenuIconOf(std::string_view entry);

}  // namespace morlan
