#include "tags/selectioncommands.h"

#include <algorithm>

#include "core/defs.h"
#include "core/editsurface.h"
#include "core/text.h"
#include "tags/colours.h"
#include "tags/insertcommands.h"

namespace morlan {
namespace {

void ChangeToAddress(Program& program) {
  if (program.ActiveEditor) InsertPair(program, Concat({"<A HREF=", Quote, program.ActiveEditor->SelText(), Quote, ">"}), "</A>");
}

void InsertParagraph(Program& program) {
  if (program.ActiveEditor) InsertPair(program, "<P>", program.ActiveEditor->SelLength() > 0 ? "</P>" : "");
}

void InsertOtherColour(Program& program) {
  if (!program.ActiveEditor) return;
  if (const auto colour = program.platform.windows.AskColour(0))
    InsertPair(program, Concat({"<FONT COLOR=", Quote, "#", ColorToHex(*colour), Quote, ">"}), "</FONT>");
}

template <std::string (*Change)(std::string_view)>
void ChangeSelection(Program& program) {
  if (program.ActiveEditor && program.ActiveEditor->SelLength() > 0) ReplaceSelection(program, Change(program.ActiveEditor->SelText()));
}

std::string NumberedList(std::string_view text) { return ListOfLines(text, "OL"); }
std::string BulletedList(std::string_view text) { return ListOfLines(text, "UL"); }

struct CommandRow {
  std::string_view menu;
  void (*run)(Program& program);
};

constexpr CommandRow kCommands[] = {
    {"mn_paragraph", InsertParagraph},
    {"mn_changetoaddress", ChangeToAddress},
    {"mn_lowercase", ChangeSelection<LowerCase>},
    {"mn_uppercase", ChangeSelection<UpperCase>},
    {"mn_numlist", ChangeSelection<NumberedList>},
    {"mn_ordlist", ChangeSelection<BulletedList>},
    {"mn_other", InsertOtherColour},
    {"mn_undo2", [](Program& program) { program.commands.RunMenu("xmn_undo"); }},
    {"mn_selectall2", [](Program& program) { program.commands.RunMenu("xmn_selectall"); }},
    {"mn_edit_copy", [](Program& program) { program.commands.RunMenu("xmn_copy"); }},
    {"mn_edit_cut", [](Program& program) { program.commands.RunMenu("xmn_cut"); }},
    {"mn_edit_paste", [](Program& program) { program.commands.RunMenu("xmn_paste"); }},
};

}  // namespace

std::string ListOfLines(std::string_view text, std::string_view tag) {
  std::string list = Concat({CrLf, "<", tag, ">", CrLf});
  while (!text.empty()) {
    const std::size_t end = std::min(text.find_first_of(CrLf), text.size());
    list += Concat({" <LI>", text.substr(0, end), CrLf});
    text.remove_prefix(end);
    text.remove_prefix(text.starts_with(CrLf) ? CrLf.size() : std::min<std::size_t>(text.size(), 1));
  }
  return list += Concat({"</", tag, ">"});
}

void RegisterSelectionCommands(Program& program) {
  for (const CommandRow& row : kCommands) program.commands.OnMenu(row.menu, [&program, &row] { row.run(program); });
  program.commands.OnToolbar("Toolbar1", "paragraph", [&program] { InsertParagraph(program); });
}

}  // namespace morlan
