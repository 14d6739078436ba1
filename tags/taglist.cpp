#include "tags/taglist.h"

#include <array>

#include "core/defs.h"
#include "core/morlan.h"
#include "core/status.h"
#include "core/text.h"
#include "tags/insertcommands.h"

namespace morlan {
namespace {

struct TagListRow {
  std::string_view key;         // of the buttons in Toolbar10 and Toolbar7
  std::string_view remembered;  // as the active list; "cf" differs, so that pressing it again reads its list anew
  std::string_view file;
  std::string_view menu;
};

constexpr std::array<TagListRow, 5> kTagLists = {{
    {"tags1", "tags1", "Listy\\Tags.lst", "mn_taglist_tags"},
    {"user", "user", "Listy\\User.lst", "mn_taglist_user"},
    {"asp", "asp", "Listy\\Asp.lst", "mn_taglist_asp"},
    {"attrib", "attrib", "Listy\\Attrib.lst", "mn_taglist_attrib"},
    {"cf", "cold", "Listy\\CF.lst", "mn_taglist_cf"},
}};

constexpr std::string_view kChooser = "Toolbar10", kInserter = "Toolbar7";

const TagListRow* RowOf(std::string_view key) {
  for (const TagListRow& row : kTagLists)
    if (row.key == key) return &row;
  return nullptr;
}

std::string_view FileOfActiveList(const Morlan& frame) {
  for (const TagListRow& row : kTagLists)
    if (row.remembered == frame.currentTagList) return row.file;
  return kTagLists.front().file;
}

void SaveTagList(Program& program) {
  ComboBox& tags = program.frame().tags;
  if (!tags.Text().empty() && tags.ListFind(tags.Text()) < 0) {
    tags.AddItem(tags.Text());
    tags.SetListIndex(static_cast<int>(tags.ListCount()) - 1);
  }
  std::string content;
  for (const std::string& row : tags.Rows()) content += Concat({row, CrLf});
  const std::string path = program.ProgramPath + std::string(FileOfActiveList(program.frame()));
  if (program.platform.files.Read(path).value_or("") != content) program.platform.files.Write(path, content);
}

void MarkChosen(Program& program) {
  for (const auto& toolbar : program.frame().toolbars)
    if (toolbar->Name() == kChooser)
      for (const TagListRow& row : kTagLists) toolbar->SetItemPressed(row.key, row.remembered == program.frame().currentTagList);
}

}  // namespace

ListedPair PairOfListEntry(std::string_view entry) {
  const std::string text = UpperCase(entry);
  const std::size_t dots = text.find("..");
  if (dots != std::string::npos) return {text.substr(0, dots), text.substr(dots + 2)};
  const std::size_t quote = text.find(Quote);
  if (quote != std::string::npos) return {text.substr(0, quote + 1), text.substr(quote + 1)};
  return {text, ""};
}

void ChooseTagList(Program& program, std::string_view key) {
  const TagListRow* row = RowOf(key);
  Morlan& frame = program.frame();
  if (!row || frame.currentTagList == key) return;
  frame.currentTagList = row->remembered;
  frame.tags.Clear();
  frame.tags.SetText("");
  LoadComboFromList(program, frame.tags, row->file);
  MarkChosen(program);
}

void InsertFromTagList(Program& program) {
  SaveTagList(program);
  const ListedPair pair = PairOfListEntry(program.frame().tags.Text());
  InsertPair(program, pair.open, pair.close);
}

void RegisterTagList(Program& program) {
  for (const TagListRow& row : kTagLists) {
    const auto choose = [&program, &row] { ChooseTagList(program, row.key); };
    program.commands.OnToolbar(kChooser, row.key, choose);
    program.commands.OnMenu(row.menu, choose);
    program.commands.OnToolbar(kInserter, row.key, [&program] { InsertFromTagList(program); });
  }
  program.commands.OnMenu("mn_taglist_insert", [&program] { InsertFromTagList(program); });
  MarkChosen(program);
}

}  // namespace morlan
