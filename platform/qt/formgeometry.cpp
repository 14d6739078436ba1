#include "platform/qt/formgeometry.h"

#include <algorithm>

#include "platform/forms/controls.h"

namespace morlan {
namespace {

constexpr int kNarrowInCharacters = 16;

bool IsPlainButton(const Control& control) {
  return control.GetKind() == Control::Kind::Button && dynamic_cast<const ColourBox*>(&control) == nullptr;
}

}  // namespace

bool IsTall(const Control& control) {
  switch (control.GetKind()) {
    case Control::Kind::List:
    case Control::Kind::Grid:
    case Control::Kind::Picture:
    case Control::Kind::Web:
      return true;
    case Control::Kind::Text:
      return static_cast<const TextBox&>(control).IsMultiLine();
    default:
      return false;
  }
}

bool IsNarrow(const Control& control) {
  switch (control.GetKind()) {
    case Control::Kind::Text:
      return !IsTall(control) && static_cast<const TextBox&>(control).WidthInCharacters <= kNarrowInCharacters;
    case Control::Kind::Combo:
      return static_cast<const ComboBox&>(control).WidthInCharacters <= kNarrowInCharacters;
    case Control::Kind::Spin:
    case Control::Kind::Button:
    case Control::Kind::Check:
    case Control::Kind::Option:
    case Control::Kind::Picture:
    case Control::Kind::Toolbar:
      return true;
    default:
      return false;
  }
}

bool GrowsDownwards(const Layout& part) {
  if (part.kind == Layout::Kind::Stretch || part.kind == Layout::Kind::Scrolled) return true;
  if (part.control && IsTall(*part.control)) return part.control->GetKind() != Control::Kind::Picture;
  return std::any_of(part.children.begin(), part.children.end(), GrowsDownwards);
}

bool GrowsSideways(const Layout& part) {
  switch (part.kind) {
    case Layout::Kind::Stretch:
    case Layout::Kind::Group:
    case Layout::Kind::Pages:
    case Layout::Kind::Buttons:
      return true;
    case Layout::Kind::Single:
    case Layout::Kind::Field:
      return part.control->GetKind() != Control::Kind::Label && !IsNarrow(*part.control);
    case Layout::Kind::Rows:
      return std::any_of(part.children.begin(), part.children.end(),
                         [](const Layout& child) { return child.kind != Layout::Kind::Stretch && GrowsSideways(child); });
    default:
      return std::any_of(part.children.begin(), part.children.end(), GrowsSideways);
  }
}

std::vector<Control*> InOrder(const Layout& part) {
  std::vector<Control*> controls;
  if (part.control) controls.push_back(part.control);
  if (part.companion) controls.push_back(part.companion);
  for (const Layout& child : part.children)
    for (Control* control : InOrder(child)) controls.push_back(control);
  return controls;
}

bool IsColumnOfButtons(const Layout& rows) {
  return std::all_of(rows.children.begin(), rows.children.end(), [](const Layout& child) {
    return child.kind == Layout::Kind::Stretch || (child.kind == Layout::Kind::Single && IsPlainButton(*child.control));
  });
}

}  // namespace morlan
