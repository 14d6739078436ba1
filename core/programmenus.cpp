#include "core/programmenus.h"

#include "core/document.h"
#include "core/lastopened.h"
#include "core/modes.h"
#include "core/morlan.h"
#include "core/panels.h"

namespace morlan {

std::vector<Menu*> AllMenus(Program& program) {
  std::vector<Menu*> menus = {&program.frame().menu};
  for (const auto& document : program.documents) menus.push_back(&document->menu);
  return menus;
}

void SetUpMenu(Program& program, Menu& menu) {
  MarkPanels(program.frame(), menu);
  MarkMode(program.frame(), menu);
  ShowLastOpened(program, menu);
}

}  // namespace morlan
