#include "core/settings.h"

#include <algorithm>

#include "core/colourtext.h"
#include "core/text.h"

namespace morlan {
namespace {

constexpr auto kText = SettingKind::Text;
constexpr auto kFlag = SettingKind::Flag;
constexpr auto kNumber = SettingKind::Number;
constexpr auto kColour = SettingKind::Colour;
constexpr double kLongestTime = 1'000'000, kLongestList = 1000, kLargestFont = 200;

constexpr SettingRow kRows[] = {
    {Setting::Installation, "Setup", "Installation"},
    {Setting::ProgramPath, "ProgramAccess", "ProgramPath"},
    {Setting::StartPath, "ProgramAccess", "StartPath"},
    {Setting::WindowsManager, "LayOut", "WindowsManager", kFlag, "False"},
    {Setting::StatusBar, "LayOut", "StatusBar", kFlag, "False"},
    {Setting::CommandLine, "LayOut", "CommandLine", kFlag, "False"},
    {Setting::FileManager, "LayOut", "FileManager", kFlag, "False"},
    {Setting::Symbols, "LayOut", "Symbols", kFlag, "False"},
    {Setting::HintShow, "Hint", "Show", kFlag, "True"},
    {Setting::HintShowList, "Hint", "ShowList", kFlag, "True"},
    {Setting::SetupCarret, "Hint", "SetupCarret", kFlag, "True"},
    {Setting::ExtendLI, "Hint", "LIExtend", kFlag, "True"},
    {Setting::CharSet, "Document", "CharSet"},
    {Setting::CreateBackup, "Document", "CreateBackup", kFlag, "False"},
    {Setting::IgnoreNumbers, "Spelling", "IgnoreNumbers", kFlag, "False"},
    {Setting::IgnoreUpperCase, "Spelling", "IgnoreUpperCase", kFlag, "False"},
    {Setting::AutoSaveActivated, "AutoSave", "AutoSaveActivated", kFlag, "False"},
    {Setting::AutoSaveTime, "AutoSave", "AutoSaveTime", kNumber, "0", 0, kLongestTime},
    {Setting::FontName, "EditorFont", "FontName"},
    {Setting::FontSize, "EditorFont", "FontSize", kNumber, "10", 1, kLargestFont},
    {Setting::FontBold, "EditorFont", "FontBold", kFlag, "False"},
    {Setting::FontItalic, "EditorFont", "FontItalic", kFlag, "False"},
    {Setting::FontUnderline, "EditorFont", "FontUnderline", kFlag, "False"},
    {Setting::FontStrikeThrough, "EditorFont", "FontStrikeThrough", kFlag, "False"},
    {Setting::FontColor, "EditorFont", "FontColor", kColour},
    {Setting::ImportExplorer, "Import", "Explorer", kFlag, "False"},
    {Setting::ImportNetscape, "Import", "Netscape", kFlag, "False"},
    {Setting::NetscapePath, "Import", "NetscapePath"},
    {Setting::UseColorize, "Colorize", "UseColorize", kFlag, "False"},
    {Setting::GlobalColor, "Colorize", "GlobalColor", kColour, "000000"},
    {Setting::TagsColor, "Colorize", "TagsColor", kColour, "000000"},
    {Setting::LinksColor, "Colorize", "LinksColor", kColour, "000000"},
    {Setting::CommentsColor, "Colorize", "CommentsColor", kColour, "000000"},
    {Setting::Proxy, "Internet", "Proxy"},
    {Setting::LanguageCount, "Languages", "Count", kNumber, "0", 0, kLongestList},
    {Setting::Language, "Languages", "Language#"},
    {Setting::LanguageExtension, "Languages", "Language#f"},
    {Setting::BrowserCount, "Browser", "CountItem", kNumber, "0", 0, kLongestList},
    {Setting::Browser, "Browser", "Item#"},
    {Setting::CurrentBrowser, "Browser", "Current", kText, "domyślna"_pl},
    {Setting::UserSymbol, "UserSymbols", "Symbol#"},
    {Setting::LastOpened, "LastOpened", "Item#"},
};

constexpr bool RowsStandInTheirPlaces() {
  for (std::size_t i = 0; i < std::size(kRows); ++i)
    if (kRows[i].setting != static_cast<Setting>(i)) return false;
  return true;
}
static_assert(RowsStandInTheirPlaces());

const SettingRow& RowOf(Setting setting) { return kRows[static_cast<std::size_t>(setting)]; }

std::string KeyOf(const SettingRow& row, int number) {
  const std::size_t sign = row.key.find('#');
  if (sign == std::string_view::npos) return std::string(row.key);
  return Concat({row.key.substr(0, sign), NumberText(std::int64_t{number}), row.key.substr(sign + 1)});
}

std::string FlagText(const SettingRow& row, std::string_view stored) {
  if (EqualNoCase(stored, "true")) return "True";
  return std::string(EqualNoCase(stored, "false") ? "False" : row.fallback);
}

// A value without a number in front counts as 0, which is garbled where 0 is out of bounds.
std::string NumberTextOf(const SettingRow& row, std::string_view stored) {
  const double value = LeadingNumber(stored);
  const bool fits = !stored.empty() && value >= row.smallest && value <= row.largest;
  return fits ? NumberText(value) : std::string(row.fallback);
}

}  // namespace

std::span<const SettingRow> SettingRows() { return kRows; }

std::string Settings::Text(Setting setting, int number) {
  const SettingRow& row = RowOf(setting);
  std::string stored = store_.GetSubItemValue(row.item, KeyOf(row, number));
  switch (row.kind) {
    case SettingKind::Flag:
      return FlagText(row, stored);
    case SettingKind::Number:
      return NumberTextOf(row, stored);
    case SettingKind::Colour:
      return IsHexColour(stored) ? stored : std::string(row.fallback);
    case SettingKind::Text:
      break;
  }
  return stored.empty() ? std::string(row.fallback) : stored;
}

double Settings::Number(Setting setting) { return LeadingNumber(Text(setting)); }

std::int32_t Settings::Integer(Setting setting) { return LeadingInteger(Text(setting)); }

Colour Settings::ColourOf(Setting setting) { return HexToRgb(Text(setting)); }

bool Settings::IsStored(Setting setting) {
  const SettingRow& row = RowOf(setting);
  return !store_.GetSubItemValue(row.item, row.key).empty();
}

void Settings::SetText(Setting setting, std::string_view text, int number) {
  const SettingRow& row = RowOf(setting);
  store_.SetSubItemValue(row.item, KeyOf(row, number), text.substr(0, text.find_first_of(CrLf)));
}

}  // namespace morlan
