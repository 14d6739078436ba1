// What the main window would show of its own accord: the mode of the toolbars, the status line, the pop-up menus.
#pragma once

#include <optional>
#include <string>

#include "core/frontend.h"
#include "platform/script/session.h"

namespace morlan {

class ScriptFrontEnd : public FrontEnd, private ControlView {
 public:
  explicit ScriptFrontEnd(Session& session) : session_(session) {}

  // Tells each new text of the first panel from now on.
  void WatchStatus(Program& program);

  void DocumentOpened(TEditor&) override {}
  void DocumentClosed(TEditor& document) override;
  void DocumentActivated(TEditor&) override {}
  void ModeSwitched(bool cdf) override;
  void PopUp(Menu& menu) override { session_.popUp = &menu; }
  void ProgramEnds() override { session_.End(); }

 private:
  void ControlChanged(Control& control, Aspect aspect) override;

  Session& session_;
  std::optional<bool> cdf_;
  std::string status_;
};

}  // namespace morlan
