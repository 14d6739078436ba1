// The dialog that asks for a variable of the server.
#pragma once

#include "tags/serverdialog.h"

namespace morlan {

struct ServerVariables : ServerDialog {
  ComboBox ServerVar{*this, "ServerVar"};
  Button Command2{*this, "Command2", "&Ok"}, Command1{*this, "Command1", "&Anuluj"};

  explicit ServerVariables(Program& program);
  std::string Result() const override { return ServerVar.Text(); }
};

// The chosen variable as each of the two languages writes it; nothing is inserted without a name.
void InsertAspVariable(Program& program);
void InsertCfVariable(Program& program);

}  // namespace morlan
