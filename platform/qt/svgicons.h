// The program's icons: line drawings that take the colours of the current palette and are drawn at the size asked for.
#pragma once

#include <QIcon>
#include <string_view>

namespace morlan {

// An icon of the resources by its file name without ".svg"; a null icon when there is none.
QIcon SvgIcon(std::string_view name);

}  // namespace morlan
