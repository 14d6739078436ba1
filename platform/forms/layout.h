// How a form is laid out, as a small tree written beside its controls. Views turn it into real geometry.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace morlan {

class Control;

struct Layout {
  enum class Kind {
    Empty,
    Rows,      // children below each other; the labels of fields that follow each other line up
    Columns,   // children side by side
    Group,     // a framed group with a caption
    Pages,     // tabs; each child is a Group whose caption is the tab's
    Scrolled,  // rows of which as many are seen as there is room for
    Field,     // a label (caption with its mnemonic) and a control
    Single,    // one control
    Buttons,   // a row of buttons at the right edge of the form
    Stretch,   // free space that grows
  };
  Kind kind = Kind::Empty;
  std::string caption;
  Control* control = nullptr;
  Control* companion = nullptr;  // Field: a button behind the control, such as "..."
  std::vector<Layout> children;

  Layout() = default;
  Layout(Control& single) : kind(Kind::Single), control(&single) {}  // a control stands for itself
};

namespace layout {

template <class... Parts>
Layout Branch(Layout::Kind kind, std::string_view caption, Parts&&... parts) {
  Layout branch;
  branch.kind = kind;
  branch.caption = caption;
  (branch.children.push_back(Layout(parts)), ...);
  return branch;
}
template <class... Parts>
Layout Rows(Parts&&... parts) {
  return Branch(Layout::Kind::Rows, "", parts...);
}
template <class... Parts>
Layout Columns(Parts&&... parts) {
  return Branch(Layout::Kind::Columns, "", parts...);
}
template <class... Parts>
Layout Group(std::string_view caption, Parts&&... parts) {
  return Branch(Layout::Kind::Group, caption, parts...);
}
template <class... Parts>
Layout Pages(Parts&&... parts) {
  return Branch(Layout::Kind::Pages, "", parts...);
}
inline Layout Scrolled(Layout rows) {
  rows.kind = Layout::Kind::Scrolled;
  return rows;
}
template <class... Controls>
Layout ButtonRow(Controls&... controls) {
  return Branch(Layout::Kind::Buttons, "", controls...);
}
// An empty label stands for the control's caption, and follows it.
inline Layout Field(std::string_view label, Control& control, Control* companion = nullptr) {
  Layout field;
  field.kind = Layout::Kind::Field;
  field.caption = label;
  field.control = &control;
  field.companion = companion;
  return field;
}
inline Layout Stretch() {
  Layout stretch;
  stretch.kind = Layout::Kind::Stretch;
  return stretch;
}

}  // namespace layout
}  // namespace morlan
