// Stamps: stretches of a page that are computed again each time it is read or written. Each stands between two comments:
//   <!--morlan7autoupdate TYPE=DATE FORMAT=DD/MM/YYYY --> text <!--/morlan7autoupdate-->
// Letter case does not count. What the start comment may hold:
//   type=date      format      a date pattern; in quotes it may hold blanks
//   type=time      format      a time pattern, likewise
//   type=fileinfo  filename    the file, from the page's directory
//                  filesize    "true" adds its size
//                  moddate     a date pattern in quotes; adds the date of its last change
#pragma once

#include <string>
#include <string_view>

#include "platform/datetime.h"

namespace morlan {

class Files;

// What stamps are computed from.
struct StampSource {
  Files& files;
  DateTime now;
  std::string directory;  // of the page, without a trailing "\"; empty stands for the current one
};

// Puts the new text between the comments, on a line of its own. A start comment that has no end comment behind it stays as it
// stands; a file that does not exist, and a type that is not known, give an empty text.
std::string UpdateBlocks(std::string text, const StampSource& source);

// The name of a file, its size when asked for, and the date of its change unless the pattern is empty, with blanks between.
// Empty when there is no such file.
std::string FileInfoText(const StampSource& source, std::string_view fileName, bool withSize, std::string_view datePattern);

// A stamp as the dialogs write it: the start comment of those attributes (" TYPE=DATE..."), the text and the end comment.
std::string Stamp(std::string_view attributes, std::string_view text);

}  // namespace morlan
