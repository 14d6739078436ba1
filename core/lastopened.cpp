#include "core/lastopened.h"

#include "core/document.h"
#include "core/documents.h"
#include "core/morlan.h"
#include "core/settings.h"
#include "core/text.h"

namespace morlan {
namespace {

std::string Stored(Program& program, std::size_t index) {
  return Settings(program.MainIni).Text(Setting::LastOpened, static_cast<int>(index));
}

void Store(Program& program, std::size_t index, std::string_view path) {
  Settings(program.MainIni).SetText(Setting::LastOpened, path, static_cast<int>(index));
}

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
  for (std::size_t i = kLastOpenedCount - 1; i > 0; --i) Store(program, i, Stored(program, i - 1));
  Store(program, 0, path);
  ShowLastOpened(program, program.frame().menu);
}

void RefreshLastOpened(Program& program) {
  for (const auto& document : program.documents) ShowLastOpened(program, document->menu);
}

}  // namespace morlan
