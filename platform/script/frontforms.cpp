#include "platform/script/frontforms.h"

#include <algorithm>

#include "platform/lettercase.h"
#include "platform/script/json.h"

namespace morlan {
namespace {

bool Contains(const std::vector<Form*>& forms, const Form& form) { return std::find(forms.begin(), forms.end(), &form) != forms.end(); }

Form* FindByName(const std::vector<Form*>& forms, std::string_view name) {
  const auto found = std::find_if(forms.rbegin(), forms.rend(), [&](const Form* form) { return EqualNoCase(form->Name(), name); });
  return found == forms.rend() ? nullptr : *found;
}

}  // namespace

struct FrontForms::Window : FormView {
  FrontForms& forms;
  Form& form;
  bool announced = false;  // the transcript told that the modal form opened

  Window(FrontForms& owner, Form& shown) : forms(owner), form(shown) {}
  void FormCaptionChanged() override {}
  void FormHidden() override { forms.Hidden(form); }
  void FocusMoved(Control& control) override { forms.FocusOn(control); }
};

FrontForms::FrontForms(Transcript& transcript) : transcript_(transcript) {}
FrontForms::~FrontForms() = default;

FrontForms::Window& FrontForms::WindowOf(Form& form) {
  auto& window = windows_[&form];
  if (!window) window = std::make_unique<Window>(*this, form);
  form.AttachView(window.get());
  return *window;
}

void FrontForms::OpenModal(Form& form) {
  if (IsModal(form)) return;
  Window& window = WindowOf(form);
  std::erase(shown_, &form);
  modal_.push_back(&form);
  window.announced = false;
  form.BecomeVisible();
  if (!IsModal(form)) return;
  window.announced = true;
  transcript_.Line({"modal", form.Name(), JsonString(form.Caption())});
  if (form.OnActivate) form.OnActivate();
}

void FrontForms::Open(Form& form) {
  if (IsModal(form)) return;
  WindowOf(form);
  std::erase(shown_, &form);
  shown_.push_back(&form);
  frameInFront_ = false;
  if (!form.IsVisible()) form.BecomeVisible();
  if (form.IsVisible() && form.OnActivate) form.OnActivate();
}

void FrontForms::Hidden(Form& form) {
  if (focus_ && &focus_->Owner() == &form) focus_ = nullptr;
  std::erase(shown_, &form);
  if (std::erase(modal_, &form) && WindowOf(form).announced) transcript_.Line({"closed", form.Name()});
}

bool FrontForms::IsModal(const Form& form) const { return Contains(modal_, form); }
bool FrontForms::IsDialog(const Form& form) const { return IsModal(form) || Contains(shown_, form); }

Form& FrontForms::Front() const {
  if (!modal_.empty()) return *modal_.back();
  return shown_.empty() || frameInFront_ ? *frame_ : *shown_.back();
}

Form* FrontForms::FindOpen(std::string_view name) const {
  if (Form* modal = FindByName(modal_, name)) return modal;
  return FindByName(shown_, name);
}

bool FrontForms::BringForward(std::string_view name) {
  Form* form = FindByName(shown_, name);
  if (!form && !EqualNoCase(frame_->Name(), name)) return false;
  frameInFront_ = !form;
  if (form) {
    std::erase(shown_, form);
    shown_.push_back(form);
    if (form->OnActivate) form->OnActivate();
  }
  return true;
}

void FrontForms::FocusOn(Control& control) {
  if (focus_ == &control) return;
  Control* left = focus_;
  focus_ = &control;
  // A handler that moves the focus again has its way, without a further round of events.
  if (focusMoves_) return;
  focusMoves_ = true;
  if (left) left->UserLeaves();
  if (focus_ == &control && control.OnGotFocus) control.OnGotFocus();
  focusMoves_ = false;
}

void FrontForms::Leave(Control& control) {
  if (focus_ == &control) focus_ = nullptr;
  control.UserLeaves();
}

void FrontForms::Forget(const Form& form) {
  if (focus_ && &focus_->Owner() == &form) focus_ = nullptr;
  std::erase(shown_, &form);
  std::erase(modal_, &form);
  windows_.erase(&form);
}

}  // namespace morlan
