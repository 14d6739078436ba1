#include "text/jumptolabel.h"

#include <algorithm>

#include "core/editsurface.h"
#include "core/status.h"
#include "core/text.h"

namespace morlan {

JumpToLabel::JumpToLabel(Program& program) : Form("JumpToLabel", "Skocz do etykiety"), program_(program) {
  OnLoad = [this] { Form_Load(); };
  Command2.OnClick = [this] { Jump(); };
  Command1.OnClick = [this] { Hide(); };
  Labels.OnDblClick = [this] { Jump(); };
  Labels.SetToolTip("Etykiety dokumentu; podwójne kliknięcie przenosi do wybranej"_pl).SetAccessibleName("Etykiety");
  layout = layout::Rows(Labels, layout::ButtonRow(Command2, Command1));
  defaultButton = &Command2;
  cancelButton = &Command1;
  firstFocus = &Labels;
}

void JumpToLabel::Form_Load() {
  ShowBusy(program_, "Analiza dokumentu...");
  labels_ = program_.ActiveEditor ? LabelsOf(program_.ActiveEditor->Text()) : std::vector<PageLabel>();
  std::vector<std::string> names;
  for (const PageLabel& label : labels_) names.push_back(label.name);
  Labels.Clear();
  Labels.AddItems(names);
  Labels.SetListIndex(0);
  ShowReady(program_);
}

void JumpToLabel::Jump() {
  const auto row = static_cast<std::size_t>(Labels.ListIndex());
  if (row < labels_.size() && program_.ActiveEditor) program_.ActiveEditor->Select(labels_[row].offset, labels_[row].length);
  Hide();
}

bool GoToLabel(Program& program, std::string_view name) {
  if (!program.ActiveEditor) return false;
  const std::vector<PageLabel> labels = LabelsOf(program.ActiveEditor->Text());
  const auto found = std::find_if(labels.begin(), labels.end(), [&](const PageLabel& label) { return EqualNoCase(label.name, name); });
  if (found == labels.end()) return false;
  program.ActiveEditor->Select(found->offset, found->length);
  return true;
}

}  // namespace morlan
