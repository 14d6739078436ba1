// Keeps the time for the timers of a form.
#pragma once

#include <QTimer>
#include <memory>
#include <vector>

#include "platform/forms/controls.h"
#include "platform/qt/controlwatch.h"

namespace morlan {

class FormTimers {
 public:
  explicit FormTimers(Form& form);

 private:
  struct Ticking {
    std::unique_ptr<QTimer> clock;
    std::unique_ptr<ControlWatch> watch;
  };
  std::vector<Ticking> timers_;
};

}  // namespace morlan
