// The dialog of work with a file on the server, the CFFILE tag.
#pragma once

#include <array>

#include "tags/serverdialog.h"

namespace morlan {

// The attributes that an action knows.
struct CfFileAction {
  std::string_view action;
  bool source, destination, output, file, variable, filefield, nameconflict;
};
// All attributes are unknown to an action that the language lacks. Letter case does not count.
const CfFileAction& CfFileActionOf(std::string_view action);

// The fields as they go into the document.
struct CfFileValues {
  std::string action{}, source{}, destination{}, output{}, file{}, variable{}, filefield{}, nameconflict{};
};
// The attributes alone, each with a blank in front; those that the action does not know are left out.
std::string CfFileText(const CfFileValues& values);

struct CFFILE : ServerDialog {
  ComboBox action{*this, "action", ComboBox::Style::ListOnly};
  TextBox source_{*this, "source_"}, destination_{*this, "destination_"}, output_{*this, "output_"}, file_{*this, "file_"};
  ComboBox variable_{*this, "variable_"};
  TextBox filefield_{*this, "filefield_"};
  ComboBox nameconflict_{*this, "nameconflict_"};
  Button Command2{*this, "Command2", "&Ok"}, Command1{*this, "Command1", "&Anuluj"};

  explicit CFFILE(Program& program);
  void Read(std::string_view tag);
  CfFileValues Values() const;
  std::string Result() const override { return CfFileText(Values()); }

 protected:
  bool IsComplete() override;

 private:
  void Action_Click();
  void SetUpToolTips();
};

}  // namespace morlan
