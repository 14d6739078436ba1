#include "tags/channelmultiedit.h"

#include "core/defs.h"
#include "core/status.h"
#include "tags/tageditor.h"

namespace morlan {

Channel_MultiEdit::Channel_MultiEdit(Program& program) : Form("Channel_MultiEdit", ""), program_(program) {
  SetUpButtons(program, *this, Command2, Command1, "");
  firstFocus = &Items;
  Items.WidthInCharacters = 40;
  Items.SetToolTip("Tekst, który trafi do znacznika"_pl);
  Command2.OnClick = [this] {
    if (!listFile_.empty()) RememberInList(program_, Items, listFile_);
    program_.DialogResult = Items.Text();
    Hide();
  };
  layout = layout::Rows(Info, Items, layout::ButtonRow(Command2, Command1));
}

std::string Channel_MultiEdit::Ask(std::string_view title, std::string_view info, std::string_view listFile,
                                   std::optional<std::string_view> value) {
  SetCaption(title);
  Info.SetCaption(info);
  Items.SetAccessibleName(info);
  listFile_ = listFile;
  Items.Clear();
  Items.SetText("");
  if (!listFile_.empty()) LoadComboFromList(program_, Items, listFile_);
  if (value) Items.SetText(*value);
  ShowForNew(program_, *this, "");
  return program_.DialogResult;
}

}  // namespace morlan
