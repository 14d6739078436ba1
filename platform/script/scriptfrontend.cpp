#include "platform/script/scriptfrontend.h"

#include "core/defs.h"
#include "core/document.h"
#include "core/morlan.h"
#include "platform/script/json.h"

namespace morlan {

void ScriptFrontEnd::WatchStatus(Program& program) {
  status_ = program.frame().statusBar.ValueText();
  program.frame().statusBar.AttachView(this);
}

void ScriptFrontEnd::ControlChanged(Control& control, Aspect) {
  const std::string text = control.ValueText();
  if (text == status_) return;
  status_ = text;
  session_.transcript.Line({"status", JsonString(text)});
}

void ScriptFrontEnd::DocumentClosed(TEditor& document) {
  session_.popUp = nullptr;
  session_.forms.Forget(document);
}

// Every document that comes forward sets the mode: only a change is told.
void ScriptFrontEnd::ModeSwitched(bool cdf) {
  if (cdf_ == cdf) return;
  cdf_ = cdf;
  session_.transcript.Line({"switch", cdf ? "cdf" : "html"});
}

}  // namespace morlan
