// Lets a function hear of a control's changes, for as long as the watch lives. The control must outlive it.
#pragma once

#include <functional>
#include <utility>

#include "platform/forms/control.h"

namespace morlan {

class ControlWatch : public ControlView {
 public:
  using Listener = std::function<void(Aspect)>;
  ControlWatch(Control& control, Listener listener) : control_(control), listener_(std::move(listener)) { control.AttachView(this); }
  ~ControlWatch() override {
    if (control_.View() == this) control_.AttachView(nullptr);
  }
  ControlWatch(const ControlWatch&) = delete;
  ControlWatch& operator=(const ControlWatch&) = delete;
  void ControlChanged(Control&, Aspect aspect) override { listener_(aspect); }

 private:
  Control& control_;
  Listener listener_;
};

}  // namespace morlan
