#include "core/settings.h"

#include <gtest/gtest.h>

#include <set>

#include "core/text.h"
#include "tests/support/memoryfiles.h"

namespace morlan {
namespace {

struct StoredSettings : testing::Test {
  MemoryFiles files;
  INIFile store{files};
  Settings settings{store};
  StoredSettings() { store.Init("c:\\Morlan7.ini"); }
  std::string Content() { return files.Read("c:\\Morlan7.ini").value_or("?"); }
};

struct DefaultRow {
  const char *item, *key;
  std::string_view fallback;
};

// Item, key and what counts while nothing is stored.
constexpr DefaultRow kDefaults[] = {
    {"Setup", "Installation", ""},
    {"ProgramAccess", "ProgramPath", ""},
    {"ProgramAccess", "StartPath", ""},
    {"LayOut", "WindowsManager", "False"},
    {"LayOut", "StatusBar", "False"},
    {"LayOut", "CommandLine", "False"},
    {"LayOut", "FileManager", "False"},
    {"LayOut", "Symbols", "False"},
    {"Hint", "Show", "True"},
    {"Hint", "ShowList", "True"},
    {"Hint", "SetupCarret", "True"},
    {"Hint", "LIExtend", "True"},
    {"Document", "CharSet", ""},
    {"Document", "CreateBackup", "False"},
    {"Spelling", "IgnoreNumbers", "False"},
    {"Spelling", "IgnoreUpperCase", "False"},
    {"AutoSave", "AutoSaveActivated", "False"},
    {"AutoSave", "AutoSaveTime", "0"},
    {"EditorFont", "FontName", ""},
    {"EditorFont", "FontSize", "10"},
    {"EditorFont", "FontBold", "False"},
    {"EditorFont", "FontItalic", "False"},
    {"EditorFont", "FontUnderline", "False"},
    {"EditorFont", "FontStrikeThrough", "False"},
    {"EditorFont", "FontColor", ""},
    {"Import", "Explorer", "False"},
    {"Import", "Netscape", "False"},
    {"Import", "NetscapePath", ""},
    {"Colorize", "UseColorize", "False"},
    {"Colorize", "GlobalColor", "000000"},
    {"Colorize", "TagsColor", "000000"},
    {"Colorize", "LinksColor", "000000"},
    {"Colorize", "CommentsColor", "000000"},
    {"Internet", "Proxy", ""},
    {"Languages", "Count", "0"},
    {"Languages", "Language#", ""},
    {"Languages", "Language#f", ""},
    {"Browser", "CountItem", "0"},
    {"Browser", "Item#", ""},
    {"Browser", "Current", "domyślna"_pl},
    {"UserSymbols", "Symbol#", ""},
    {"LastOpened", "Item#", ""},
};

TEST_F(StoredSettings, HaveTheirItemsKeysAndDefaults) {
  const auto rows = SettingRows();
  ASSERT_EQ(rows.size(), std::size(kDefaults));
  for (std::size_t i = 0; i < rows.size(); ++i) {
    EXPECT_EQ(rows[i].item, kDefaults[i].item) << i;
    EXPECT_EQ(rows[i].key, kDefaults[i].key) << i;
    EXPECT_EQ(settings.Text(rows[i].setting), kDefaults[i].fallback) << rows[i].key;
    EXPECT_FALSE(settings.IsStored(rows[i].setting)) << rows[i].key;
  }
}

std::string_view SomeValueOf(const SettingRow& row) {
  switch (row.kind) {
    case SettingKind::Flag:
      return row.fallback == "True" ? "False" : "True";
    case SettingKind::Number:
      return "17";
    case SettingKind::Colour:
      return "12ABEF";
    case SettingKind::Text:
      break;
  }
  return "c:\\strony\\Zażółć.html"_pl;
}

TEST_F(StoredSettings, ComeBackAsTheyWereWritten) {
  for (const SettingRow& row : SettingRows()) settings.SetText(row.setting, SomeValueOf(row), 3);
  for (const SettingRow& row : SettingRows()) {
    EXPECT_EQ(settings.Text(row.setting, 3), SomeValueOf(row)) << row.key;
    EXPECT_TRUE(row.key.find('#') != std::string_view::npos || settings.IsStored(row.setting)) << row.key;
  }
}

TEST_F(StoredSettings, ReadAsTheDefaultWhereTheyAreGarbled) {
  for (const SettingRow& row : SettingRows()) {
    if (row.kind == SettingKind::Text) continue;
    settings.SetText(row.setting, "%&xyz");
    EXPECT_EQ(settings.Text(row.setting), row.fallback) << row.key;
  }
}

TEST_F(StoredSettings, FlagsAreReadInAnyLetterCase) {
  settings.SetText(Setting::CreateBackup, "tRUE");
  EXPECT_TRUE(settings.Flag(Setting::CreateBackup));
  settings.SetText(Setting::SetupCarret, "FALSE");
  EXPECT_FALSE(settings.Flag(Setting::SetupCarret));
}

TEST_F(StoredSettings, FlagsAreWrittenAsTrueAndFalse) {
  settings.SetFlag(Setting::CreateBackup, true);
  settings.SetFlag(Setting::SetupCarret, false);
  EXPECT_EQ(store.GetSubItemValue("Document", "CreateBackup"), "True");
  EXPECT_EQ(store.GetSubItemValue("Hint", "SetupCarret"), "False");
}

struct NumberRow {
  const char* stored;
  double value;
};

TEST_F(StoredSettings, NumbersStandInFrontOfTheValue) {
  constexpr NumberRow kSizes[] = {{"12", 12}, {"12.5", 12.5}, {"12,5x", 12}, {"0.5", 10}, {"-7", 10}, {"201", 10}, {"200", 200}, {"x", 10}};
  for (const NumberRow& row : kSizes) {
    settings.SetText(Setting::FontSize, Concat({row.stored, ";"}));
    EXPECT_EQ(settings.Number(Setting::FontSize), row.value) << row.stored;
  }
}

TEST_F(StoredSettings, CountsWithoutMeasureAreNone) {
  settings.SetText(Setting::BrowserCount, "999999999");
  EXPECT_EQ(settings.Integer(Setting::BrowserCount), 0);
  settings.SetText(Setting::BrowserCount, "1000");
  EXPECT_EQ(settings.Integer(Setting::BrowserCount), 1000);
}

TEST_F(StoredSettings, ColoursAreExactlySixDigits) {
  constexpr std::pair<const char*, Colour> kRows[] = {{"FF8001", RgbColour(0xFF, 0x80, 1)},
                                                      {"ff8001", RgbColour(0xFF, 0x80, 1)},
                                                      {"FF800", 0},
                                                      {"#FF8001", 0},
                                                      {"FF80010", 0},
                                                      {"FF80G1", 0},
                                                      {"", 0}};
  for (const auto& [stored, colour] : kRows) {
    settings.SetText(Setting::TagsColor, stored);
    EXPECT_EQ(settings.ColourOf(Setting::TagsColor), colour) << stored;
  }
}

TEST_F(StoredSettings, NumbersTakeTheirPlaceInTheKey) {
  settings.SetText(Setting::LanguageExtension, "pol", 12);
  EXPECT_EQ(Content(), "\r\n[Languages]\r\nLanguage12f=pol\r\n");
  EXPECT_EQ(settings.Text(Setting::LanguageExtension, 12), "pol");
  EXPECT_EQ(settings.Text(Setting::LanguageExtension, 1), "");
}

TEST_F(StoredSettings, AValueEndsAtItsFirstLineEnd) {
  settings.SetText(Setting::Proxy, "proxy:80\r\n[Hint]\r\nShow=False");
  EXPECT_EQ(Content(), "\r\n[Internet]\r\nProxy=proxy:80\r\n");
}

}  // namespace
}  // namespace morlan
