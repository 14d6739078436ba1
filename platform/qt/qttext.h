// Texts at the border to the desktop: Windows-1250 inside, UTF-16 outside.
#pragma once

#include <QString>
#include <string>
#include <string_view>

#include "platform/encoding.h"

namespace morlan {

// Never fails.
QString ToQt(std::string_view text);
// A character that Windows-1250 lacks becomes "?" or a numeric reference.
std::string FromQt(const QString& text, Unmappable unmappable = Unmappable::QuestionMark);
// A text without the mnemonic marks of a caption: "&Zapisz" gives "Zapisz", "&&" gives "&".
QString WithoutMnemonic(const QString& caption);

}  // namespace morlan
