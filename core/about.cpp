#include "core/about.h"

#include "core/text.h"

namespace morlan {

About::About(Program&) : Form("about", "Morlan7") {
  Version.SetCaption(Concat({"Wersja ", VersionText}));
  Command1.OnClick = [this] { Hide(); };
  defaultButton = cancelButton = &Command1;
  resizable = false;
  layout = layout::Rows(ProductName, Version, layout::ButtonRow(Command1));
}

}  // namespace morlan
