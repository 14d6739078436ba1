#include "tags/quickmenu.h"

#include <iterator>
#include <vector>

#include "core/defs.h"
#include "core/frontend.h"
#include "core/toolbars.h"
#include "platform/encoding.h"

namespace morlan {
namespace {

constexpr MenuRow kEditing[] = {
    {0, "mn_undo2", "&Cofnij"},
    {0, "", "-"},
    {0, "mn_edit_cut", "W&ytnij"},
    {0, "mn_edit_copy", "K&opiuj"},
    {0, "mn_edit_paste", "Wkle&j"},
    {0, "mn_selectall2", "&Zaznacz wszystko"},
    {0, "", "-"},
};

std::span<const MenuRow> QuickMenuRows() {
  static const std::vector<MenuRow> kRows = [] {
    std::vector<MenuRow> rows(std::begin(kEditing), std::end(kEditing));
    rows.insert(rows.end(), SelectionMenuRows().begin(), SelectionMenuRows().end());
    return rows;
  }();
  return kRows;
}

}  // namespace

QuickMenu::QuickMenu(Program& program) : Form("QuickMenu", "Podręczne menu"_pl), menu(QuickMenuRows()) {
  menu.HideWithoutCommand(program.commands);
}

void RegisterQuickMenu(Program& program) {
  program.hooks.showQuickMenu = [&program](TEditor&) { program.frontEnd.PopUp(program.forms.Get<QuickMenu>().menu); };
}

}  // namespace morlan
