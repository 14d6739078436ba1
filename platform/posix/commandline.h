// A command line that is one text, split into arguments the way Windows programs split theirs.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace morlan {

// Blanks and tabs part the arguments. A quote starts or ends a stretch in which they do not, and is dropped. 2n backslashes
// in front of a quote are n backslashes and the quote works; 2n + 1 of them are n backslashes and a quote that is a
// character. Two quotes in a row within a quoted stretch are one quote as a character. Elsewhere a backslash is itself. In
// the first argument, the program, backslashes are always themselves. An empty line has no arguments.
std::vector<std::string> SplitCommandLine(std::string_view commandLine);

}  // namespace morlan
