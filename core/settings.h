// The settings of the program: one table of all items of Morlan7.ini with what their values are and what counts where none,
// or a garbled one, is stored. Readers and writers of the main store go through it.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "core/inifile.h"
#include "platform/colour.h"

namespace morlan {

enum class Setting {
  Installation,
  ProgramPath,
  StartPath,
  WindowsManager,
  StatusBar,
  CommandLine,
  FileManager,
  Symbols,
  HintShow,
  HintShowList,
  SetupCarret,
  ExtendLI,
  CharSet,
  CreateBackup,
  IgnoreNumbers,
  IgnoreUpperCase,
  AutoSaveActivated,
  AutoSaveTime,
  FontName,
  FontSize,
  FontBold,
  FontItalic,
  FontUnderline,
  FontStrikeThrough,
  FontColor,
  ImportExplorer,
  ImportNetscape,
  NetscapePath,
  UseColorize,
  GlobalColor,
  TagsColor,
  LinksColor,
  CommentsColor,
  Proxy,
  LanguageCount,
  Language,
  LanguageExtension,
  BrowserCount,
  Browser,
  CurrentBrowser,
  UserSymbol,
  LastOpened,
};

enum class SettingKind {
  Text,
  Flag,    // "True" or "False"
  Number,  // a number in front of the value, the rest of which counts for nothing
  Colour,  // six hexadecimal digits, red first
};

struct SettingRow {
  Setting setting;
  std::string_view item, key;  // "#" in a key stands for a number
  SettingKind kind = SettingKind::Text;
  std::string_view fallback = "";  // the value where none is stored, or one that is not of its kind
  double smallest = 0, largest = 0;
};

std::span<const SettingRow> SettingRows();

class Settings {
 public:
  explicit Settings(INIFile& store) : store_(store) {}

  // The value as it would be written: the row's own where nothing, or something garbled, is stored. `number` takes the place
  // of "#" in the key.
  std::string Text(Setting setting, int number = 0);
  bool Flag(Setting setting) { return Text(setting) == "True"; }
  double Number(Setting setting);
  std::int32_t Integer(Setting setting);
  Colour ColourOf(Setting setting);  // black where the row has no colour of its own
  // Whether anything is stored, garbled or not.
  bool IsStored(Setting setting);

  // A text is cut at its first line end, since a value is the rest of a line.
  void SetText(Setting setting, std::string_view text, int number = 0);
  void SetFlag(Setting setting, bool value) { SetText(setting, value ? "True" : "False"); }

 private:
  INIFile& store_;
};

}  // namespace morlan
