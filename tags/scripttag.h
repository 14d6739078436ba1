// The dialog of a script, the SCRIPT tag.
#pragma once

#include "tags/serverdialog.h"

namespace morlan {

// The fields as they go into the document.
struct ScriptValues {
  std::string language{}, source{}, runAt{};
};
// The attributes alone, each with a blank in front. The file's attribute is SOURCE, not SRC.
std::string ScriptText(const ScriptValues& values);

struct Script : ServerDialog {
  ComboBox Language{*this, "Language"};
  TextBox Source{*this, "Source"};
  Button sourceFile{*this, "sourceFile", "..."};
  ComboBox RunAt{*this, "RunAt"};
  Button Command2{*this, "Command2", "&Ok"}, Command1{*this, "Command1", "&Anuluj"};

  explicit Script(Program& program);
  void Read(std::string_view tag);
  ScriptValues Values() const { return {.language = Language.Text(), .source = Source.Text(), .runAt = RunAt.Text()}; }
  std::string Result() const override { return ScriptText(Values()); }
};

}  // namespace morlan
