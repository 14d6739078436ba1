#include "core/lastopened.h"

#include "core/document.h"
#include "core/documents.h"
#include "core/morlan.h"
#include "core/text.h"

namespace morlan {
namespace {

constexpr std::string_view kItem = "LastOpened";

std::string SubItem(std::size_t index) { return Concat({"Item", NumberText(static_cast<std::int64_t>(index))}); }

std::string Stored(Program& program, std::size_t index) { return program.MainIni.GetSubItemValue(kItem, SubItem(index)); }

}  // namespace

std::string LastOpenedRow(std::size_t index) { return Concat({"mn_lastopen(", NumberText(static_cast<std::int64_t>(index)), ")"}); }

void ShowLastOpened(Program& program, Menu& menu) {
  for (std::size_t i = 0; i < kLastOpenedCount; ++i) {
    const std::string path = Stored(program, i);
    menu.SetCaption(LastOpenedRow(i), path);
    menu.SetVisible(LastOpenedRow(i), !path.empty());
  }
}

void OpenLastOpened(Program& program, std::size_t index) {
  const Menu& menu = program.ActiveDocument ? program.ActiveDocument->menu : program.frame().menu;
  if (const MenuEntry* row = menu.Find(LastOpenedRow(index))) OpenDocument(program, std::string(row->caption));
}

void RememberOpened(Program& program, std::string_view path) {
  for (std::size_t i = 0; i < kLastOpenedCount; ++i)
    if (EqualNoCase(Stored(program, i), path)) return;
  for (std::size_t i = kLastOpenedCount - 1; i > 0; --i) program.MainIni.SetSubItemValue(kItem, SubItem(i), Stored(program, i - 1));
  program.MainIni.SetSubItemValue(kItem, SubItem(0), path);
  ShowLastOpened(program, program.frame().menu);
}

void RefreshLastOpened(Program& program) {
  for (const auto& document : program.documents) ShowLastOpened(program, document->menu);
}

}  // namespace morlan
