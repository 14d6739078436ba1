// The dialog that asks for a file that the server puts into the page.
#pragma once

#include "tags/serverdialog.h"

namespace morlan {

struct IncludeFile : ServerDialog {
  ComboBox Href{*this, "Href"};
  Button hrefFile{*this, "hrefFile", "..."};
  Button Command2{*this, "Command2", "&Ok"}, Command1{*this, "Command1", "&Anuluj"};

  explicit IncludeFile(Program& program);
  std::string Result() const override { return Href.Text(); }
};

// The chosen file as each of the two languages includes it; nothing is inserted without a name.
void InsertAspInclude(Program& program);
void InsertCfInclude(Program& program);

}  // namespace morlan
