// Names a page that the preview shows instead of the document, for this run of the program. An empty name ends that.
#pragma once

#include "platform/encoding.h"
#include "platform/forms/controls.h"

namespace morlan {

class Program;

class AlwaysView : public Form {
 public:
  explicit AlwaysView(Program& program);

  TextBox FileName{*this, "FileName"};
  ToolBar Toolbar1{*this, "Toolbar1"};
  Button Command2{*this, "Command2", "&Ok"}, Command1{*this, "Command1", "&Anuluj"};

 private:
  void Toolbar1_ButtonClick();
  void Command2_Click();

  Program& program_;
};

void ShowAlwaysView(Program& program);

}  // namespace morlan
