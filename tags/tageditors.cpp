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

constexpr EditorRow kEditors[] = {
    {"EditLine", EditLine},   {"EditBaseFont", EditBaseFont}, {"EditFont", EditFont}, {"EditEmbed", EditEmbed}, {"EditAnchor", EditAnchor},
    {"EditImage", EditImage}, {"EditTable", EditTable},       {"EditRow", EditRow},   {"EditCell", EditCell},
};

// clang-format off
constexpr InsertionRow kInsertions[] = {
    {"Toolbar1",  "line",      "mn_line",         "lineedit", InsertLine},
    {"Toolbar1",  "anchor",    "mn_anchor",       "anchor",   InsertAnchor},
    {"Toolbar1",  "image",     "mn_image",        "image",    InsertImage},
    {"Toolbar2",  "basefont",  "mn_basefont",     "",         InsertBaseFont},
    {"Toolbar2",  "quickfont", "mn_quickfont",    "Fonty",    InsertQuickFont},
    {"",          "",          "mn_edit_font",    "",         InsertQuickFont},
    {"Toolbar3",  "metadtbl",  "mn_tabledialog",  "Tabela",   InsertTable},
    {"Toolbar3",  "metadtr",   "mn_rowdialog",    "DTR",      InsertRow},
    {"Toolbar3",  "metadth",   "mn_headerdialog", "",         InsertHeaderCell},
    {"Toolbar3",  "metadtd",   "mn_celldialog",   "DTH",      InsertCell},
    {"Toolbar13", "embed",     "mn_embed",        "embed",    InsertEmbed},
};
// clang-format on

}  // namespace

void RegisterEditors(Program& program, std::span<const EditorRow> editors, std::span<const InsertionRow> insertions) {
  for (const EditorRow& row : editors) program.tagState.tagEditors[std::string(row.editor)] = [&program, &row] { row.edit(program); };
  for (const InsertionRow& row : insertions) {
    const auto run = [&program, &row] {
      if (program.ActiveDocument) row.insert(program);
    };
    if (!row.toolbar.empty()) program.commands.OnToolbar(row.toolbar, row.key, run);
    if (!row.menu.empty()) program.commands.OnMenu(row.menu, run);
    if (!row.form.empty()) program.forms.OnShow(row.form, run);
  }
}

void RegisterTagEditors(Program& program) { RegisterEditors(program, kEditors, kInsertions); }

}  // namespace morlan
