#include "text/register.h"

#include <utility>

#include "core/defs.h"
#include "core/paths.h"
#include "text/amountinwords.h"
#include "text/autoupdate.h"
#include "text/charsetcommands.h"
#include "text/insertfileinfo.h"
#include "text/jumptolabel.h"
#include "text/momentforms.h"
#include "text/search.h"
#include "text/searchreplace.h"
#include "text/selectlanguage.h"
#include "text/spelling.h"
#include "text/wordnotfound.h"

namespace morlan {
namespace {

template <class Dialog>
void ShowDialog(Program& program) {
  program.platform.windows.ShowModal(program.forms.Get<Dialog>());
}

// A dialog that writes into the active document.
template <class Dialog>
void ShowInsertion(Program& program) {
  if (program.ActiveDocument) ShowDialog<Dialog>(program);
}

// The pass that computes the stamps of the page of that path again.
std::string UpdateStamps(Program& program, std::string text, std::string_view path) {
  return UpdateBlocks(std::move(text), {program.platform.files, program.platform.clock.Now(), PathOf(path)});
}

struct CommandRow {
  std::string_view menu, toolbarKey;
  std::string_view form;  // its name, for the commands that open one
  void (*run)(Program& program);
};
constexpr CommandRow kCommands[] = {
    {"xmn_find", "search", "search", ShowDialog<SearchForm>},
    {"xmn_replace", "replace", "SearchReplace", ShowDialog<SearchReplace>},
    {"xmn_findnext", "", "", FindNext},
    {"xmn_checkspeeling", "spelling", "", mn_checkspeeling_Click},
    {"xmn_jumptolabel", "", "JumpToLabel", ShowDialog<JumpToLabel>},
    {"xmn_insertdate", "", "InsertDate", ShowInsertion<InsertDate>},
    {"xmn_inserttime", "", "InsertTime", ShowInsertion<InsertTime>},
    {"xmn_insertfileinfo", "", "InsertFileInfo", ShowInsertion<InsertFileInfo>},
    {"mn_valtostring", "", "", mn_valtostring_Click},
    {"mn_words", "", "", mn_words_Click},
};

void RegisterCommands(Program& program) {
  for (const CommandRow& row : kCommands) {
    const auto run = [&program, &row] { row.run(program); };
    program.commands.OnMenu(row.menu, run);
    if (!row.toolbarKey.empty()) program.commands.OnToolbar("Toolbar0", row.toolbarKey, run);
    if (!row.form.empty()) program.forms.OnShow(row.form, run);
  }
}

}  // namespace

void RegisterText(Program& program) {
  program.passes.updateBlocks = [&program](std::string text, std::string_view path) {
    return UpdateStamps(program, std::move(text), path);
  };
  program.tagState.targetActions[TargetAction::JumpToLabel] = [&program](const std::string& label) { GoToLabel(program, label); };
  program.forms.OnShow("SelectLanguage", [&program] { ShowDialog<SelectLanguage>(program); });
  program.forms.OnShow("WordNotFound", [&program] { ShowDialog<WordNotFound>(program); });
  RegisterCharSets(program);
  RegisterCommands(program);
}

}  // namespace morlan
