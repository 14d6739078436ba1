// The dialog that gives many pages another character set. It converts one page a tick, so that the window stays alive and the
// work can be stopped between two pages.
#pragma once

#include <string>
#include <vector>

#include "core/defs.h"
#include "platform/encoding.h"
#include "platform/forms/controls.h"
#include "text/charsetfile.h"

namespace morlan {

struct Conventer : Form {
  explicit Conventer(Program& program);

  TextBox FileName{*this, "FileName"};
  Button FileButton{*this, "FileButton", "..."};
  Button DirectoryButton{*this, "DirectoryButton", "&Katalog..."};
  CheckBox ConvertType{*this, "ConvertType", "P&rojekt"};
  CheckBox Subfolders{*this, "Subfolders", "Z po&dkatalogami"};
  ComboBox FormatList{*this, "FormatList", ComboBox::Style::ListOnly};
  CheckBox AskForName{*this, "AskForName", "Pytaj o &nazwę"_pl, true};
  CheckBox OverWrite{*this, "OverWrite", "Nadpi&suj pliki źródłowe"_pl};
  Label Progress{*this, "Progress"};
  ListBox Report{*this, "Report"};  // a row for each page that was not converted, or not without loss
  Button Command2{*this, "Command2", "&Ok"}, Command1{*this, "Command1", "&Anuluj"};
  Timer Step{*this, "Step", 1, false};

 private:
  void DescribeControls();
  void Form_Load();
  void ChooseFile();
  void ChooseDirectory();
  void ConvertType_Click();
  void Command2_Click();
  void Command1_Click();
  void Step_Timer();
  void ConvertFile(const std::string& path);
  std::string TargetOf(const std::string& path);
  void ShowProgress();
  enum class End { Done, Stopped };
  void Finish(End end);
  void Note(const std::string& path, std::string_view text);
  void SwitchControls(bool enabled);

  Program& program_;
  CharSetFile sets_;
  std::vector<std::string> pages_;
  std::size_t next_ = 0, converted_ = 0;
  bool runs_ = false;
};

void ShowConventer(Program& program);

}  // namespace morlan
