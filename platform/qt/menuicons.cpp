#include "platform/qt/menuicons.h"

#include "core/commands.h"

namespace morlan {
namespace {

struct MenuIcon {
  std::string_view entry, icon;
};

constexpr MenuIcon kIcons[] = {
    {"mn_files_new", "new"},
    {"mn_open", "open"},
    {"mn_save", "save"},
    {"mn_saveas", "saveas"},
    {"mn_close", "close"},
    {"mn_closeall", "closeall"},
    {"mn_preview", "preview"},
    {"mn_print", "print"},
    {"mn_quit", "quit"},
    {"mn_undo", "undo"},
    {"mn_undo2", "undo"},
    {"mn_cut", "cut"},
    {"mn_edit_cut", "cut"},
    {"mn_copy", "copy"},
    {"mn_edit_copy", "copy"},
    {"mn_paste", "paste"},
    {"mn_edit_paste", "paste"},
    {"mn_selectall", "selectall"},
    {"mn_selectall2", "selectall"},
    {"mn_repeatlastinsertion", "repeat"},
    {"mn_find", "find"},
    {"mn_findnext", "findnext"},
    {"mn_replace", "replace"},
    {"mn_lowercase", "lowercase"},
    {"mn_uppercase", "uppercase"},
    {"mn_checkspeeling", "spelling"},
    {"mn_configuration", "settings"},
    {"mn_nextdocument", "next"},
    {"mn_previousdocument", "previous"},
    {"mn_about", "about"},
    {"mn_bold", "toolbar1-bold"},
    {"mn_italic", "toolbar1-italic"},
    {"mn_underline", "toolbar1-underline"},
    {"mn_strike", "toolbar1-strike"},
    {"mn_paragraph", "toolbar1-paragraph"},
    {"mn_right", "toolbar1-right"},
    {"mn_center", "toolbar1-center"},
    {"mn_justify", "toolbar1-justify"},
    {"mn_nbr", "toolbar1-nbr"},
    {"mn_big", "toolbar2-big"},
    {"mn_small", "toolbar2-small"},
    {"mn_sub", "toolbar2-sub"},
    {"mn_sup", "toolbar2-sup"},
    {"mn_h1", "toolbar2-h1"},
    {"mn_h2", "toolbar2-h2"},
    {"mn_h3", "toolbar2-h3"},
    {"mn_h4", "toolbar2-h4"},
    {"mn_h5", "toolbar2-h5"},
    {"mn_h6", "toolbar2-h6"},
    {"mn_table", "toolbar3-metatbl"},
    {"mn_tr", "toolbar3-metatr"},
    {"mn_th", "toolbar3-metath"},
    {"mn_td", "toolbar3-metatd"},
    {"mn_caption", "toolbar3-caption"},
    {"mn_ul", "toolbar6-ul"},
    {"mn_ol", "toolbar6-ol"},
    {"mn_li", "toolbar6-li"},
};

}  // namespace

std::string_view MenuIconOf(std::string_view entry) {
  const std::string canonical = CommandTable::Canonical(entry);
  for (const MenuIcon& row : kIcons)
    if (row.entry == canonical) return row.icon;
  return {};
}

}  // namespace morlan
