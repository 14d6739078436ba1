// Texts that go to other programs and come from them: line ends are LF outside and CR LF inside.
#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace morlan {

// Characters that Windows-1250 lacks become numeric references, since the text goes into a document.
std::string FromOutside(QString text);
QString ToOutside(std::string_view text);

}  // namespace morlan
