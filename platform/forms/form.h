// A window of the program as a plain object: named controls, a layout, handlers. Front ends turn it into a real window
// or into lines of text.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/forms/layout.h"
#include "platform/keys.h"

namespace morlan {

class Button;
class Control;

class FormView {
 public:
  virtual ~FormView() = default;
  virtual void FormCaptionChanged() = 0;
  virtual void FormHidden() = 0;
  virtual void FocusMoved(Control& control) = 0;
};

class Form {
 public:
  Form(std::string_view name, std::string_view caption);
  virtual ~Form();
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  const std::string& Name() const { return name_; }
  const std::string& Caption() const { return caption_; }
  void SetCaption(std::string_view caption);

  // In the order in which they were declared. Tab follows the layout.
  const std::vector<Control*>& Controls() const { return controls_; }
  Control* Find(std::string_view name) const;  // without regard to case; null when there is none
  template <class Kind>
  Kind* FindAs(std::string_view name) const {
    return dynamic_cast<Kind*>(Find(name));
  }

  Layout layout;
  Button* defaultButton = nullptr;  // pressed by Enter
  Button* cancelButton = nullptr;   // pressed by Esc and by the window's close button
  Control* firstFocus = nullptr;    // null: the first control that takes the focus
  bool resizable = true;

  bool IsVisible() const { return visible_; }
  // Called by a front end when the form comes up; runs OnLoad.
  void BecomeVisible();
  // Ends a modal form; the caller of ShowModal goes on.
  void Hide();
  // What the window's close button does: OnQueryUnload may refuse; then the cancel button is pressed, or the form hides.
  void UserCloses();

  std::function<void()> OnLoad, OnActivate, OnUnload;
  std::function<void(KeyPress&)> OnKeyDown;  // a key that no control took; setting the code to 0 swallows it
  std::function<bool()> OnQueryUnload;       // false keeps the form open

  std::string Tag;

  void AttachView(FormView* view) { view_ = view; }
  FormView* View() const { return view_; }

 private:
  friend class Control;
  void Add(Control* control) { controls_.push_back(control); }
  void Remove(Control* control);

  std::string name_, caption_;
  std::vector<Control*> controls_;
  bool visible_ = false;
  FormView* view_ = nullptr;
};

}  // namespace morlan
