#include "core/modes.h"

#include "core/defs.h"
#include "core/frontend.h"
#include "core/morlan.h"
#include "core/programmenus.h"

namespace morlan {
namespace {

constexpr std::string_view kHtmlOnly[] = {"xmn_charsets", "xmnm_tools", "xmnm_insert"};

void SetMode(Program& program, bool cdf) {
  Morlan& frame = program.frame();
  const bool switched = frame.cdfMode != cdf;
  frame.cdfMode = cdf;
  frame.objectsmenu.SetVisible(!cdf);
  frame.CDFObject.SetVisible(cdf);
  frame.statusBar.SetPanel("mode", cdf ? "CDF" : "HTML");
  for (Menu* menu : AllMenus(program)) MarkMode(frame, *menu);
  if (switched) program.frontEnd.ModeSwitched(cdf);
}

}  // namespace

void SetHtmlMode(Program& program) { SetMode(program, false); }
void SetCdfMode(Program& program) { SetMode(program, true); }

void MarkMode(const Morlan& frame, Menu& menu) {
  for (const std::string_view name : kHtmlOnly) menu.SetEnabled(name, !frame.cdfMode);
  menu.SetChecked("xmn_ModeHtml", !frame.cdfMode);
  menu.SetChecked("xmn_ModeCdf", frame.cdfMode);
}

}  // namespace morlan
