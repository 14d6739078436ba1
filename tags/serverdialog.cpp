#include "tags/serverdialog.h"

#include "core/defs.h"
#include "core/status.h"
#include "core/text.h"
#include "tags/tageditor.h"

namespace morlan {

std::string AddAttribute(std::string_view text, std::string_view name) {
  return text.empty() ? std::string() : Concat({" ", name, "=", Quote, text, Quote});
}

void ShowChoice(ComboBox& box, std::string_view value) {
  const int row = box.ListFind(value);
  box.SetListIndex(row);
  if (row < 0 && box.IsEditable()) box.SetText(value);
}

ServerDialog::ServerDialog(Program& program, std::string_view name, std::string_view caption) : Form(name, caption), program_(program) {}

std::string ServerDialog::Ask() {
  ShowForNew(program_, *this, "");
  return program_.DialogResult;
}

void ServerDialog::Remember(ComboBox& box, std::string_view listFile) {
  remembered_.push_back({box, listFile});
  LoadComboFromList(program_, box, listFile);
}

void ServerDialog::SetUp(Button& ok, Button& cancel) {
  SetUpButtons(program_, *this, ok, cancel, "");
  ok.OnClick = [this] { Confirm(); };
  OnLoad = [this] { Refill(); };
}

void ServerDialog::Refill() {
  for (const RememberedBox& field : remembered_) RefillFromList(program_, field.box, field.listFile);
}

void ServerDialog::Confirm() {
  if (!IsComplete()) return;
  for (const RememberedBox& field : remembered_) RememberInList(program_, field.box, field.listFile);
  program_.DialogResult = Result();
  Hide();
}

}  // namespace morlan
