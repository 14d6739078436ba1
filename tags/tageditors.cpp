#include "tags/tageditors.h"

#include <string>
#include <string_view>

#include "core/defs.h"
#include "tags/anchoreditor.h"
#include "tags/celleditor.h"
#include "tags/embededitor.h"
#include "tags/fonteditor.h"
#include "tags/imageeditor.h"
#include "tags/lineeditor.h"
#include "tags/roweditor.h"
#include "tags/tableeditor.h"

namespace morlan {
namespace {

using Command = void (*)(Program& program);

struct EditorRow {
  std::string_view editor;
  Command edit;
};
constexpr EditorRow kEditors[] = {
    {"EditLine", EditLine},   {"EditBaseFont", EditBaseFont}, {"EditFont", EditFont}, {"EditEmbed", EditEmbed}, {"EditAnchor", EditAnchor},
    {"EditImage", EditImage}, {"EditTable", EditTable},       {"EditRow", EditRow},   {"EditCell", EditCell},
};

// A new tag: the toolbar's button, the menu's name and the form that opens. A blank column stands for none.
struct InsertionRow {
  std::string_view toolbar, key, menu, form;
  Command insert;
};
// clang-format off
constexpr InsertionRow kInsertions[] = {
    {"Toolbar1",  "line",      "mn_line",      "lineedit", InsertLine},
    {"Toolbar1",  "anchor",    "mn_anchor",    "anchor",   InsertAnchor},
    {"Toolbar1",  "image",     "mn_image",     "image",    InsertImage},
    {"Toolbar2",  "basefont",  "mn_basefont",  "",         InsertBaseFont},
    {"Toolbar2",  "quickfont", "mn_quickfont", "Fonty",    InsertQuickFont},
    {"",          "",          "mn_edit_font", "",         InsertQuickFont},
    {"Toolbar3",  "metadtbl",  "",             "Tabela",   InsertTable},
    {"Toolbar3",  "metadtr",   "",             "DTR",      InsertRow},
    {"Toolbar3",  "metadth",   "",             "",         InsertHeaderCell},
    {"Toolbar3",  "metadtd",   "",             "DTH",      InsertCell},
    {"Toolbar13", "embed",     "",             "embed",    InsertEmbed},
};
// clang-format on

}  // namespace

void RegisterTagEditors(Program& program) {
  for (const EditorRow& row : kEditors) program.tagState.tagEditors[std::string(row.editor)] = [&program, &row] { row.edit(program); };
  for (const InsertionRow& row : kInsertions) {
    const auto run = [&program, &row] {
      if (program.ActiveDocument) row.insert(program);
    };
    if (!row.toolbar.empty()) program.commands.OnToolbar(row.toolbar, row.key, run);
    if (!row.menu.empty()) program.commands.OnMenu(row.menu, run);
    if (!row.form.empty()) program.forms.OnShow(row.form, run);
  }
}

}  // namespace morlan
