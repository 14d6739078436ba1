#include "core/languages.h"

#include "core/defs.h"
#include "core/settings.h"
#include "core/text.h"
#include "platform/forms/controls.h"

namespace morlan {
namespace {

constexpr std::size_t kExtensionLength = 3;

}  // namespace

std::vector<std::string> LanguageNames(INIFile& store) {
  Settings settings(store);
  std::vector<std::string> names;
  const std::int32_t count = settings.Integer(Setting::LanguageCount);
  for (std::int32_t number = 1; number <= count; ++number)
    if (std::string name = settings.Text(Setting::Language, number); !name.empty()) names.push_back(std::move(name));
  return names;
}

void AddLanguage(INIFile& store, std::string_view name) {
  Settings settings(store);
  const std::int32_t number = settings.Integer(Setting::LanguageCount) + 1;
  settings.SetText(Setting::Language, name, number);
  settings.SetText(Setting::LanguageExtension, name.substr(0, kExtensionLength), number);
  settings.SetText(Setting::LanguageCount, NumberText(std::int64_t{number}));
}

void AskForLanguage(Program& program, RowControl& list) {
  Windows& windows = program.platform.windows;
  const std::string name = windows.Input("Jaki język dodać ?"_pl, "Dodaj nowy język"_pl, "").value_or("");
  if (name.empty()) return;
  if (list.ListFind(name) >= 0) {
    windows.Message({.text = Concat({"Język "_pl, name, " jest już w liście."_pl})});
    return;
  }
  AddLanguage(program.MainIni, name);
  list.AddItem(name);
}

}  // namespace morlan
