// The main window: the frame that owns the panels. Each panel is a topic of its own; the frame only holds their controls.
#pragma once

#include <array>
#include <memory>
#include <string>
#include <vector>

#include "core/menus.h"
#include "core/modes.h"
#include "core/statusbar.h"
#include "platform/encoding.h"
#include "platform/forms/controls.h"

namespace morlan {

class Program;

class Morlan : public Form {
 public:
  explicit Morlan(Program& program);
  ~Morlan() override;

  Menu menu;  // the small menu that serves while no document is open

  // commandline: the toolbars and the combo boxes
  Panel commandline{*this, "commandline"};
  Tabs objectsmenu{*this, "objectsmenu"};                       // the tab bar of toolbars in HTML mode; a tab's key is its toolbar's name
  Tabs CDFObject{*this, "CDFObject"};                           // and in CDF mode
  std::vector<std::unique_ptr<ToolBar>> toolbars;               // Toolbar0 to Toolbar20, at their numbers
  ComboBox tags{*this, "tags"};                                 // the tag list
  ComboBox Combo1{*this, "Combo1", ComboBox::Style::ListOnly};  // the styles
  ComboBox makro{*this, "makro", ComboBox::Style::ListOnly};

  // Menadzerplikow: the side panel
  Panel Menadzerplikow{*this, "Menadzerplikow"};
  Tabs SSTab1{*this, "SSTab1"};
  ComboBox Drivelist{*this, "Drivelist", ComboBox::Style::ListOnly};
  ListBox Dirlist{*this, "Dirlist"};
  ListBox Filelist{*this, "Filelist"};
  ComboBox filetypes{*this, "filetypes", ComboBox::Style::ListOnly};
  Label path{*this, "path"};
  ListBox Lista2{*this, "Lista2"};
  ListBox FastInsertList{*this, "FastInsertList"};
  ListBox ExplorerBookMarksList{*this, "ExplorerBookMarksList"};
  ListBox NetscapeBookMarksList{*this, "NetscapeBookMarksList"};

  // WindowsPanel: the open documents
  Panel WindowsPanel{*this, "WindowsPanel"};
  Tabs WindowsManager{*this, "WindowsManager"};
  Button SelEditor{*this, "SelEditor", "Edycja"}, SelViewer{*this, "SelViewer", "Podgląd"_pl};

  // UnderChars: the strip of symbols
  Panel UnderChars{*this, "UnderChars"};
  ListBox Chars{*this, "Chars"};
  Label CharsLabel{*this, "CharsLabel"};
  std::array<std::unique_ptr<Button>, 6> Chars2;

  StatusBar statusBar{*this, "StatusBar", {"status", "docline", "docsize", "mode"}};

  Timer Timer1{*this, "Timer1", 750};
  Timer TimeCounter{*this, "TimeCounter", 65535};
  Timer safetyTimer{*this, "safetyTimer", 5000};

  std::string currentTagList = "tags1";  // the key of the list that `tags` shows
  bool cdfMode = false;
  std::string panelDirectory;  // of the file panel, without a trailing "\" unless it is the root of the drive
  bool panelListed = false;    // whether Dirlist and Filelist show it
  bool splashShown = false;

  Program& program() const { return program_; }

 private:
  Program& program_;
};

// What an installer does: Morlan7.ini without a ProgramPath gets the user's data folder.
void PrepareProfile(Program& program);
// The start-up sequence, once, behind the registration of all rooms.
void StartUp(Program& program);
// Each time the main window comes forward.
void ActivateFrame(Program& program);
// The quit command: true when the program really ends.
bool QuitProgram(Program& program);

// Toolbar1 to Toolbar20; Toolbar0 stays enabled, since one opens documents with it.
void EnableToolbars(Program& program);
void DisableToolbars(Program& program);
void DeleteTempFiles(Program& program);

}  // namespace morlan
