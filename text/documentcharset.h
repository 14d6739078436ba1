// The character set of a document on its way in and out of its file, as its META tag names it.
#pragma once

#include <string>
#include <string_view>

namespace morlan {

class Program;
class TEditor;

// Text as read from a file to the text that is edited. Sets CurrentCharset; the bytes stay, being Windows-1250.
std::string DecodeCharSet(Program& program, std::string text, std::string_view path);

// Ticks the one entry of the document's menu that fits its Content-Type; none when no character set is named.
void MarkCharSet(TEditor& document);

}  // namespace morlan
