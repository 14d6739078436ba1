// META tags: looked up and written in a text or in the active document.
#pragma once

#include <string>
#include <string_view>

namespace morlan {

class Program;

// The content of the META tag with that name, or with that "http-equiv"; empty when there is none. The tag is found in any
// spelling, and the content comes in lower case.
std::string GetMetaContentOfText(std::string_view text, std::string_view name);

// The same in the active document; only tags spelt "META" are seen, and the content keeps its case.
std::string GetMetaContent(const Program& program, std::string_view name);
std::string GetUpperCaseMetaContent(std::string_view text, std::string_view name);

// Gives the META tag of that name, in any letter case, a new content. A missing one is made behind "<head>"; a missing
// head behind "<html>"; and a text without that is put between "<HTML>" and "</HTML>". `attribute` is "NAME" or
// "HTTP-EQUIV".
std::string SetMetaInText(std::string text, std::string_view attribute, std::string_view name, std::string_view content);

// The same in the active document, as commands that can be undone. The caret stays with the text beside it.
void SetMeta(Program& program, std::string_view attribute, std::string_view name, std::string_view content);

}  // namespace morlan
