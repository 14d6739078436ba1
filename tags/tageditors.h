// How the editors of tags are offered: under their editors' names to what finds a tag under the caret, and under the names of
// their commands to toolbars and menus.
#pragma once

#include <span>
#include <string_view>

namespace morlan {

class Program;

using EditorCommand = void (*)(Program& program);

// An editor of the tag under the caret.
struct EditorRow {
  std::string_view editor;
  EditorCommand edit;
};

// A new tag: the toolbar's button, the menu's name and the form that opens. A blank column stands for none.
struct InsertionRow {
  std::string_view toolbar, key, menu, form;
  EditorCommand insert;
};

// The rows must live as long as the program. Insertions run only while a document is open.
void RegisterEditors(Program& program, std::span<const EditorRow> editors, std::span<const InsertionRow> insertions);

// The editors of lines, fonts, embedded files, links, pictures and tables.
void RegisterTagEditors(Program& program);

}  // namespace morlan
