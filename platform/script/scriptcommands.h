// One function for each command of the script language. The first word is the command's own name; the number of words
// was checked against the table.
#pragma once

#include "platform/script/scriptreader.h"

namespace morlan {

class Session;

namespace scripted {

// documents and text
Fault Open(Session& session, const Words& words);
Fault Activate(Session& session, const Words& words);
Fault SetText(Session& session, const Words& words);
Fault Select(Session& session, const Words& words);
Fault Caret(Session& session, const Words& words);
Fault Type(Session& session, const Words& words);
Fault Key(Session& session, const Words& words);
Fault Mouse(Session& session, const Words& words);
Fault Text(Session& session, const Words& words);
Fault Selection(Session& session, const Words& words);
Fault Colours(Session& session, const Words& words);
Fault Documents(Session& session, const Words& words);
Fault Undo(Session& session, const Words& words);

// commands and menus
Fault Toolbar(Session& session, const Words& words);
Fault PickMenu(Session& session, const Words& words);
Fault Menus(Session& session, const Words& words);
Fault Macro(Session& session, const Words& words);
Fault Quit(Session& session, const Words& words);

// forms
Fault DescribeForm(Session& session, const Words& words);
Fault Set(Session& session, const Words& words);
Fault Row(Session& session, const Words& words);
Fault Cell(Session& session, const Words& words);
Fault Click(Session& session, const Words& words);
Fault DblClick(Session& session, const Words& words);
Fault Press(Session& session, const Words& words);
Fault Draw(Session& session, const Words& words);
Fault Point(Session& session, const Words& words);
Fault Leave(Session& session, const Words& words);
Fault Get(Session& session, const Words& words);
Fault Rows(Session& session, const Words& words);
Fault Close(Session& session, const Words& words);
Fault Show(Session& session, const Words& words);
Fault Front(Session& session, const Words& words);
Fault AnswerQuestion(Session& session, const Words& words);

// time, status and the world outside
Fault Wait(Session& session, const Words& words);
Fault Status(Session& session, const Words& words);
Fault ShowClipboard(Session& session, const Words& words);
Fault SetClipboard(Session& session, const Words& words);
Fault Echo(Session& session, const Words& words);

}  // namespace scripted
}  // namespace morlan
