#include "tags/tagdialog.h"

#include "core/defs.h"
#include "core/status.h"
#include "tags/insertcommands.h"
#include "tags/tageditor.h"

namespace morlan {

TagDialog::TagDialog(Program& program, std::string_view name, std::string_view caption, std::string_view status)
    : Form(name, caption), program_(program), status_(status) {}

void TagDialog::Edit() {
  Read(program_.tagState.CurrentTagText);
  if (ShowForExisting(program_, *this)) RewriteTag(program_, MakeText());
}

void TagDialog::Insert() { ShowForNew(program_, *this); }

void TagDialog::SetUp(Button& ok, Button& cancel) {
  SetUpButtons(program_, *this, ok, cancel);
  ok.OnClick = [this] { Confirm(); };
}

void TagDialog::Confirm() {
  Remember();
  Hide();
  if (!EditsExisting(program_)) InsertPair(program_, MakeText(), Closing());
}

std::string TagDialog::MakeText() const {
  ShowBusy(program_, status_);
  std::string text = Text();
  ShowReady(program_);
  return text;
}

}  // namespace morlan
