#include "platform/script/controlkeys.h"

#include <algorithm>

#include "platform/forms/controls.h"
#include "platform/lettercase.h"
#include "platform/script/frontforms.h"

namespace morlan {
namespace {

constexpr int kPage = 10;  // rows of a page move

// The place to which a key moves in a row of `count` things; the old one where the key means no move.
int MovedIndex(int index, int count, int code) {
  const int last = count - 1;
  switch (code) {
    case key::kUp:
    case key::kLeft:
      return std::max(0, index - 1);
    case key::kDown:
    case key::kRight:
      return std::min(last, index + 1);
    case key::kPageUp:
      return std::max(0, index - kPage);
    case key::kPageDown:
      return std::min(last, index + kPage);
    case key::kHome:
      return 0;
    case key::kEnd:
      return last;
    default:
      return index;
  }
}

bool MoveInGrid(Grid& grid, int code) {
  const bool sideways = code == key::kLeft || code == key::kRight;
  const int column = sideways ? MovedIndex(grid.Column(), grid.Columns(), code) : grid.Column();
  const int row = sideways ? grid.Row() : MovedIndex(grid.Row(), grid.RowCount(), code);
  if (column == grid.Column() && row == grid.Row()) return false;
  return grid.UserSelectsCell(column, row);
}

bool Move(Control& control, int code) {
  if (auto* rows = dynamic_cast<RowControl*>(&control)) {
    const int index = MovedIndex(rows->ListIndex(), static_cast<int>(rows->ListCount()), code);
    return index != rows->ListIndex() && rows->UserSelects(index);
  }
  if (auto* tabs = dynamic_cast<Tabs*>(&control)) {
    const int index = MovedIndex(tabs->Selected(), static_cast<int>(tabs->Count()), code);
    return index != tabs->Selected() && tabs->UserSelects(index);
  }
  if (auto* grid = dynamic_cast<Grid*>(&control)) return MoveInGrid(*grid, code);
  auto* spin = dynamic_cast<SpinButton*>(&control);
  if (!spin || (code != key::kUp && code != key::kDown)) return false;
  spin->UserSets(spin->Value() + (code == key::kUp ? 1 : -1));
  return true;
}

bool HasMnemonic(const Control& control, char letter) {
  const std::string& caption = control.Caption();
  const std::size_t mark = caption.find('&');
  return mark + 1 < caption.size() && mark != std::string::npos && UpperCharacter(caption[mark + 1]) == letter;
}

bool Activate(Control& control) {
  if (auto* check = dynamic_cast<CheckBox*>(&control)) {
    check->UserSets(!check->Value());
    return true;
  }
  if (auto* option = dynamic_cast<OptionButton*>(&control)) {
    option->UserSets();
    return true;
  }
  return control.GetKind() == Control::Kind::Button && control.UserClicks();
}

bool PressMnemonic(FrontForms& forms, Form& form, char letter) {
  for (Control* control : form.Controls()) {
    if (!control->Visible() || !control->Enabled() || !HasMnemonic(*control, letter)) continue;
    forms.FocusOn(*control);
    return Activate(*control);
  }
  return false;
}

bool IsTextField(const Control& control) {
  const auto* combo = dynamic_cast<const ComboBox*>(&control);
  return control.GetKind() == Control::Kind::Text || (combo && combo->IsEditable());
}

bool TypeInto(Control& control, const KeyPress& press) {
  if (!IsTextField(control)) return false;
  std::string text = control.ValueText();
  const auto* box = dynamic_cast<TextBox*>(&control);
  if (press.code == key::kBackspace && !text.empty())
    text.pop_back();
  else if (press.code == key::kEnter && box && box->IsMultiLine())
    text += "\r\n";
  else if (press.character >= ' ')
    text += static_cast<char>(press.character);
  else
    return false;
  return control.UserSetsText(text);
}

void PressEnter(Control& control) {
  const Button* defaultButton = control.Owner().defaultButton;
  if (control.GetKind() == Control::Kind::Button)
    control.UserClicks();
  else if (defaultButton)
    control.Owner().defaultButton->UserClicks();
  else if (control.GetKind() == Control::Kind::List)
    control.UserDblClicks();
}

}  // namespace

void PressInControl(FrontForms& forms, Control& control, KeyPress press) {
  if (control.OnKeyDown) control.OnKeyDown(press);
  if (press.code == 0) return;
  Form& form = control.Owner();
  const bool types = IsTextField(control) && press.character != 0;
  if (form.OnKeyDown && !types) form.OnKeyDown(press);
  if (press.code == 0) return;
  if (press.shift & shift::kAlt) {
    PressMnemonic(forms, form, static_cast<char>(press.code));
    return;
  }
  if (press.shift & shift::kCtrl || TypeInto(control, press)) return;
  if (press.code == key::kEnter)
    PressEnter(control);
  else if (press.code == key::kEscape && forms.IsDialog(form))
    form.UserCloses();
  else if (press.code == key::kSpace)
    Activate(control);
  else
    Move(control, press.code);
}

}  // namespace morlan
