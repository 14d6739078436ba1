// The forms that would be on a screen: which one is in front, which can be reached, and which control has the focus.
#pragma once

#include <map>
#include <memory>
#include <string_view>
#include <vector>

#include "platform/forms/control.h"
#include "platform/forms/form.h"
#include "platform/script/transcript.h"

namespace morlan {

class FrontForms {
 public:
  explicit FrontForms(Transcript& transcript);
  ~FrontForms();

  // The main window: it lies behind all others and never closes here.
  void SetFrame(Form& frame) { frame_ = &frame; }

  // Brings a form up, running its OnLoad, and tells of a modal one in the transcript.
  void OpenModal(Form& form);
  void Open(Form& form);
  // True from the opening of a modal form until it is hidden.
  bool IsModal(const Form& form) const;
  bool IsModalOpen() const { return !modal_.empty(); }

  // The modal form opened last; else the form shown or brought forward last; else the frame.
  Form& Front() const;
  // A modal form, or one that is shown beside the main window.
  bool IsDialog(const Form& form) const;
  // By name in any letter case, among the forms that are not modal; the frame too. False when there is none.
  bool BringForward(std::string_view name);
  Form* FindOpen(std::string_view name) const;

  // The focus moves: the control that had it hears of that first.
  void FocusOn(Control& control);
  void Leave(Control& control);
  // A form goes for good.
  void Forget(const Form& form);

 private:
  struct Window;
  Window& WindowOf(Form& form);
  void Hidden(Form& form);

  Transcript& transcript_;
  Form* frame_ = nullptr;
  std::map<const Form*, std::unique_ptr<Window>> windows_;
  std::vector<Form*> modal_, shown_;  // from the back to the front
  bool frameInFront_ = false;
  Control* focus_ = nullptr;
  bool focusMoves_ = false;
};

}  // namespace morlan
