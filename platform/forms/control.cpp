#include "platform/forms/control.h"

#include "platform/forms/form.h"

namespace morlan {

Control::Control(Form& owner, std::string_view name, Kind kind) : owner_(owner), name_(name), kind_(kind) { owner.Add(this); }
Control::~Control() { owner_.Remove(this); }

void Control::Notify(Aspect aspect) {
  if (view_) view_->ControlChanged(*this, aspect);
}

void Control::SetEnabled(bool enabled) {
  if (enabled_ == enabled) return;
  enabled_ = enabled;
  Notify(kind_ == Kind::Timer ? Aspect::Timer : Aspect::Enabled);
}

void Control::SetVisible(bool visible) {
  if (visible_ == visible) return;
  visible_ = visible;
  Notify(Aspect::Visible);
}

void Control::SetCaption(std::string_view caption) {
  if (caption_ == caption) return;
  caption_ = caption;
  Notify(Aspect::Caption);
}

Control& Control::SetToolTip(std::string_view text) {
  toolTip_ = text;
  return *this;
}

Control& Control::SetAccessibleName(std::string_view name) {
  accessibleName_ = name;
  return *this;
}

void Control::SetFocus() {
  if (owner_.View()) owner_.View()->FocusMoved(*this);
}

bool Control::UserClicks() {
  if (!enabled_ || !visible_) return false;
  if (OnClick) OnClick();
  return true;
}

bool Control::UserDblClicks() {
  if (!enabled_ || !visible_) return false;
  if (OnDblClick) OnDblClick();
  return true;
}

bool Control::UserRightClicks() {
  if (!enabled_ || !visible_) return false;
  if (OnRightClick) OnRightClick();
  return true;
}

void Control::UserLeaves() {
  if (OnLostFocus) OnLostFocus();
}

}  // namespace morlan
