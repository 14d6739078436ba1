#include "platform/forms/form.h"

#include <algorithm>

#include "platform/forms/controls.h"
#include "platform/lettercase.h"

namespace morlan {
Form::Form(std::string_view name, std::string_view caption) : name_(name), caption_(caption) {}
Form::~Form() = default;

void Form::SetCaption(std::string_view caption) {
  if (caption_ == caption) return;
  caption_ = caption;
  if (view_) view_->FormCaptionChanged();
}

Control* Form::Find(std::string_view name) const {
  const auto found = std::find_if(controls_.begin(), controls_.end(), [&](Control* c) { return EqualNoCase(c->Name(), name); });
  return found == controls_.end() ? nullptr : *found;
}

void Form::Remove(Control* control) { std::erase(controls_, control); }

void Form::BecomeVisible() {
  visible_ = true;
  if (OnLoad) OnLoad();
}

void Form::Hide() {
  if (!visible_) return;
  visible_ = false;
  if (OnUnload) OnUnload();
  if (view_) view_->FormHidden();
}

void Form::UserCloses() {
  if (OnQueryUnload && !OnQueryUnload()) return;
  if (cancelButton && cancelButton->UserClicks() && !visible_) return;
  Hide();
}

}  // namespace morlan
