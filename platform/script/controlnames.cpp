#include "platform/script/controlnames.h"

#include "core/defs.h"
#include "core/document.h"
#include "core/morlan.h"
#include "platform/encoding.h"
#include "platform/lettercase.h"
#include "platform/script/session.h"

namespace morlan {
namespace {

constexpr std::string_view kKindWords[] = {"label", "text",    "combo",   "list", "check", "option", "button", "grid",
                                           "tabs",  "toolbar", "picture", "spin", "frame", "panel",  "timer",  "panel"};

// The frame, the active document, or one of the program's forms.
Form* FindForm(Session& session, std::string_view name) {
  Program& program = session.program();
  if (Form* open = session.forms.FindOpen(name)) return open;
  if (EqualNoCase(program.frame().Name(), name)) return &program.frame();
  if (program.ActiveDocument && EqualNoCase(program.ActiveDocument->Name(), name)) return program.ActiveDocument;
  return program.forms.FindMade(name);
}

// The controls of the active document lie in the main window and need no form's name.
Control* FindInFront(Session& session, std::string_view name) {
  Form& front = session.forms.Front();
  Control* control = front.Find(name);
  if (control || &front != &session.program().frame() || !session.program().ActiveDocument) return control;
  return session.program().ActiveDocument->Find(name);
}

bool IsInReach(Session& session, const Form& form) {
  Program& program = session.program();
  if (session.forms.IsModalOpen()) return &form == &session.forms.Front();
  return &form == &program.frame() || &form == program.ActiveDocument || session.forms.IsDialog(form);
}

NamedControl NotFound(std::string_view nameUtf8) { return {nullptr, "", "no such control: " + std::string(nameUtf8)}; }

}  // namespace

NamedControl FindControl(Session& session, std::string_view nameUtf8) {
  const std::string name = FromUtf8(nameUtf8);
  const std::size_t point = name.find('.');
  if (point == std::string::npos) {
    Control* control = FindInFront(session, name);
    return control ? NamedControl{control, control->Name(), ""} : NotFound(nameUtf8);
  }
  Form* form = FindForm(session, std::string_view(name).substr(0, point));
  Control* control = form ? form->Find(std::string_view(name).substr(point + 1)) : nullptr;
  return control ? NamedControl{control, form->Name() + "." + control->Name(), ""} : NotFound(nameUtf8);
}

NamedControl FindUsableControl(Session& session, std::string_view nameUtf8) {
  NamedControl found = FindControl(session, nameUtf8);
  if (!found.control) return found;
  const Control& control = *found.control;
  if (!IsInReach(session, control.Owner()))
    found.fault = "the form " + control.Owner().Name() + " cannot be reached";
  else if (!control.Visible())
    found.fault = "the control " + found.name + " is hidden";
  else if (!control.Enabled())
    found.fault = "the control " + found.name + " is disabled";
  if (!found.fault.empty()) found.control = nullptr;
  return found;
}

std::string_view KindWord(Control::Kind kind) { return kKindWords[static_cast<std::size_t>(kind)]; }

}  // namespace morlan
