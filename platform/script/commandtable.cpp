#include "platform/script/commandtable.h"

#include <algorithm>
#include <iterator>

#include "platform/script/scriptcommands.h"

namespace morlan {
namespace {

// clang-format off
constexpr CommandRow kCommands[] = {
    {"open",         1, 1, When::MainWindow, PopUp::Closes, scripted::Open},
    {"activate",     1, 1, When::MainWindow, PopUp::Closes, scripted::Activate},
    {"settext",      1, 1, When::MainWindow, PopUp::Closes, scripted::SetText},
    {"select",       2, 2, When::MainWindow, PopUp::Closes, scripted::Select},
    {"caret",        1, 1, When::MainWindow, PopUp::Closes, scripted::Caret},
    {"type",         1, 1, When::MainWindow, PopUp::Closes, scripted::Type},
    {"key",          1, 1, When::MainWindow, PopUp::Closes, scripted::Key},
    {"mouse",        1, 2, When::MainWindow, PopUp::Closes, scripted::Mouse},
    {"text",         0, 0, When::Always,     PopUp::Stays,  scripted::Text},
    {"selection",    0, 0, When::Always,     PopUp::Stays,  scripted::Selection},
    {"colours",      0, 0, When::Always,     PopUp::Stays,  scripted::Colours},
    {"documents",    0, 0, When::Always,     PopUp::Stays,  scripted::Documents},
    {"undo",         0, 0, When::MainWindow, PopUp::Closes, scripted::Undo},

    {"toolbar",      2, 2, When::MainWindow, PopUp::Closes, scripted::Toolbar},
    {"menu",         1, 1, When::MainWindow, PopUp::Stays,  scripted::PickMenu},
    {"menus",        0, 0, When::Always,     PopUp::Stays,  scripted::Menus},
    {"macro",        1, 1, When::MainWindow, PopUp::Closes, scripted::Macro},
    {"quit",         0, 0, When::MainWindow, PopUp::Closes, scripted::Quit},

    {"form",         0, 0, When::Always,     PopUp::Stays,  scripted::DescribeForm},
    {"set",          2, 2, When::Forms,      PopUp::Closes, scripted::Set},
    {"row",          2, 3, When::Forms,      PopUp::Closes, scripted::Row},
    {"cell",         3, 3, When::Forms,      PopUp::Closes, scripted::Cell},
    {"click",        1, 2, When::Forms,      PopUp::Closes, scripted::Click},
    {"dblclick",     1, 1, When::Forms,      PopUp::Closes, scripted::DblClick},
    {"press",        2, 2, When::Forms,      PopUp::Closes, scripted::Press},
    {"draw",         5, 5, When::Forms,      PopUp::Closes, scripted::Draw},
    {"point",        3, 3, When::Forms,      PopUp::Closes, scripted::Point},
    {"leave",        1, 1, When::Forms,      PopUp::Closes, scripted::Leave},
    {"get",          1, 1, When::Always,     PopUp::Stays,  scripted::Get},
    {"rows",         1, 1, When::Always,     PopUp::Stays,  scripted::Rows},
    {"close",        0, 0, When::Forms,      PopUp::Closes, scripted::Close},
    {"show",         1, 1, When::MainWindow, PopUp::Closes, scripted::Show},
    {"front",        1, 1, When::MainWindow, PopUp::Closes, scripted::Front},
    {"answer",       1, 7, When::Always,     PopUp::Stays,  scripted::AnswerQuestion},

    {"wait",         1, 1, When::Always,     PopUp::Stays,  scripted::Wait},
    {"status",       0, 0, When::Always,     PopUp::Stays,  scripted::Status},
    {"clipboard",    0, 0, When::Always,     PopUp::Stays,  scripted::ShowClipboard},
    {"setclipboard", 1, 1, When::Always,     PopUp::Stays,  scripted::SetClipboard},
    {"echo",         1, 1, When::Always,     PopUp::Stays,  scripted::Echo},
};
// clang-format on

}  // namespace

const CommandRow* FindCommand(std::string_view name) {
  const auto* found = std::find_if(std::begin(kCommands), std::end(kCommands), [&](const CommandRow& row) { return row.name == name; });
  return found == std::end(kCommands) ? nullptr : found;
}

}  // namespace morlan
