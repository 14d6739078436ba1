// Fonts at the border to the desktop.
#pragma once

#include <QFont>

#include "platform/fontchoice.h"

namespace morlan {

// Without a name it is the desktop's font of fixed width.
QFont ToQtFont(const FontChoice& choice);
// The font with the name of its family's style that fits: the toolkit's dialog finds a style by its name alone, and the one
// that is neither bold nor italic has many ("Normal", "Book", "Roman").
QFont WithStyleName(QFont font);
// The name is that of the family alone, without the maker whom the toolkit puts in brackets behind it.
FontChoice FromQtFont(const QFont& font);

}  // namespace morlan
