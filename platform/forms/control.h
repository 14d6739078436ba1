// What all controls of a form have in common. A control is a value with handlers; it knows no widget. A front end
// may attach one view to it and hears of every change. Texts are Windows-1250.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "platform/keys.h"

namespace morlan {

class Form;
class Control;

// What about a control changed.
enum class Aspect { Text, Rows, Selection, Checked, Caption, Enabled, Visible, Focus, Cells, Tabs, Drawing, Timer, Font, Colour };

class ControlView {
 public:
  virtual ~ControlView() = default;
  virtual void ControlChanged(Control& control, Aspect aspect) = 0;
};

class Control {
 public:
  enum class Kind { Label, Text, Combo, List, Check, Option, Button, Grid, Tabs, Toolbar, Picture, Spin, Frame, Panel, Timer, Web };

  // The name is that of the code: "Command2", or "kolory(4)" for a member of a control array.
  Control(Form& owner, std::string_view name, Kind kind);
  virtual ~Control();
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  const std::string& Name() const { return name_; }
  Kind GetKind() const { return kind_; }
  Form& Owner() const { return owner_; }

  bool Enabled() const { return enabled_; }
  void SetEnabled(bool enabled);
  bool Visible() const { return visible_; }
  void SetVisible(bool visible);
  // The text beside or on the control, "&" in front of its mnemonic.
  const std::string& Caption() const { return caption_; }
  void SetCaption(std::string_view caption);
  const std::string& ToolTip() const { return toolTip_; }
  Control& SetToolTip(std::string_view text);
  // What assistive technology reads where neither a caption nor a field label names the control.
  const std::string& AccessibleName() const { return accessibleName_; }
  Control& SetAccessibleName(std::string_view name);
  void SetFocus();

  // The value as a text: what a script reads, "true" or "false" for check boxes and options.
  virtual std::string ValueText() const { return caption_; }
  // A user's change by a text; false when the control cannot take it.
  virtual bool UserSetsText(std::string_view) { return false; }

  // Events. A view or a script raises them through the functions below, so that a disabled control stays silent.
  std::function<void()> OnClick, OnDblClick, OnRightClick, OnGotFocus, OnLostFocus;
  std::function<void(KeyPress&)> OnKeyDown;  // setting the code to 0 swallows the key

  bool UserClicks();
  bool UserDblClicks();
  bool UserRightClicks();
  void UserLeaves();

  std::string Tag;  // free for the form's code

  void AttachView(ControlView* view) { view_ = view; }
  ControlView* View() const { return view_; }

 protected:
  void Notify(Aspect aspect);

 private:
  Form& owner_;
  std::string name_, caption_, toolTip_, accessibleName_;
  Kind kind_;
  bool enabled_ = true, visible_ = true;
  ControlView* view_ = nullptr;
};

}  // namespace morlan
