// The dialog that writes a file's name, size and date at the caret, as a stamp that keeps itself up to date.
#pragma once

#include <string>

#include "core/defs.h"
#include "platform/forms/controls.h"
#include "text/autoupdate.h"

namespace morlan {

class InsertFileInfo : public Form {
 public:
  explicit InsertFileInfo(Program& program);

  TextBox FileName{*this, "FileName"};
  Button fileButton{*this, "FileButton", "..."};
  CheckBox ModDate_{*this, "ModDate_", "&Data modyfikacji"};
  ComboBox DateFormat{*this, "DateFormat"};
  CheckBox FileSize_{*this, "FileSize_", "&Rozmiar pliku"};
  Label TestIt{*this, "TestIt"};
  Button Command2{*this, "Command2", "&Ok"};
  Button Command1{*this, "Command1", "&Anuluj"};

 private:
  StampSource Source() const;
  std::string DatePattern() const;  // empty when the date is not wanted
  void AskForFile();
  void RedrawTest();
  void Insert();

  Program& program_;
};

}  // namespace morlan
