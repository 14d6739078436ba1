// The commands that go through toolbars, menus and macros.
#include <algorithm>
#include <utility>

#include "core/defs.h"
#include "core/document.h"
#include "core/menus.h"
#include "core/morlan.h"
#include "core/toolbars.h"
#include "platform/encoding.h"
#include "platform/script/json.h"
#include "platform/script/scriptcommands.h"
#include "platform/script/session.h"

namespace morlan::scripted {
namespace {

// An entry as it can be seen and picked: a menu that is hidden or disabled takes what lies in it along.
enum class Reachable { Absent, Hidden, Disabled, Yes };

Reachable ReachableIn(const std::vector<MenuEntry>& entries, std::string_view canonicalName, Reachable ofMenu = Reachable::Yes) {
  for (const MenuEntry& entry : entries) {
    const Reachable own = !entry.visible ? Reachable::Hidden : !entry.enabled ? Reachable::Disabled : Reachable::Yes;
    const Reachable reachable = std::min(own, ofMenu);
    if (!entry.IsSeparator() && CommandTable::Canonical(entry.name) == canonicalName) return reachable;
    const Reachable inside = ReachableIn(entry.children, canonicalName, reachable);
    if (inside != Reachable::Absent) return inside;
  }
  return Reachable::Absent;
}

void PrintEntries(Session& session, const std::vector<MenuEntry>& entries, bool enabled) {
  for (const MenuEntry& entry : entries) {
    if (!entry.visible || entry.IsSeparator()) continue;
    const bool entryEnabled = enabled && entry.enabled;
    session.transcript.Line(
        {"entry", entry.name, JsonString(entry.caption), entryEnabled ? "enabled" : "disabled", entry.checked ? "checked" : ""});
    PrintEntries(session, entry.children, entryEnabled);
  }
}

// The menus of the window: those of the active document or the frame's own small one, and the pop-up that is open. The
// entries of the document's pop-up can be picked at any time; where the menu bar has the same entry, that one counts.
Reachable ReachableNow(Session& session, const Menu* popUp, std::string_view canonicalName) {
  const TEditor* document = session.program().ActiveDocument;
  if (!document) return ReachableIn(session.program().frame().menu.Entries(), canonicalName);
  const Reachable inBar = ReachableIn(document->menu.Entries(), canonicalName);
  const Reachable inPopUp = popUp ? ReachableIn(popUp->Entries(), canonicalName) : Reachable::Absent;
  const Reachable inWindow = std::max(inBar, inPopUp);
  return inWindow == Reachable::Absent ? ReachableIn(document->xmnm_editpopup.Entries(), canonicalName) : inWindow;
}

// An entry of the menu bar that goes with the last document.
bool BelongsToDocuments(std::string_view name) {
  const auto rows = DocumentMenuRows();
  const std::string canonicalName = CommandTable::Canonical(name);
  return std::any_of(rows.begin(), rows.end(), [&](const MenuRow& row) { return CommandTable::Canonical(row.name) == canonicalName; });
}

}  // namespace

Fault Toolbar(Session& session, const Words& words) {
  ToolBar* toolbar = session.program().frame().FindAs<ToolBar>(FromUtf8(words[1]));
  if (!toolbar) return "no such toolbar: " + words[1];
  if (!toolbar->UserPresses(FromUtf8(words[2]))) return words[1] + " has no button " + words[2] + " that can be pressed";
  return std::nullopt;
}

Fault PickMenu(Session& session, const Words& words) {
  const Menu* popUp = std::exchange(session.popUp, nullptr);
  const std::string name = FromUtf8(words[1]);
  const Reachable reachable = ReachableNow(session, popUp, CommandTable::Canonical(name));
  if (reachable == Reachable::Hidden) return "the menu entry " + words[1] + " is hidden";
  if (reachable == Reachable::Disabled) return "the menu entry " + words[1] + " is disabled";
  if (reachable == Reachable::Absent && !session.program().ActiveDocument && BelongsToDocuments(name)) return "no document is open";
  // The entries of the quick menu stand in no menu of the window and can be picked at any time.
  if (!session.program().commands.RunMenu(name)) return "no such menu entry: " + words[1];
  return std::nullopt;
}

Fault Menus(Session& session, const Words&) {
  const Program& program = session.program();
  const Menu& menu = program.ActiveDocument ? program.ActiveDocument->menu : session.program().frame().menu;
  PrintEntries(session, menu.Entries(), true);
  if (session.popUp) PrintEntries(session, session.popUp->Entries(), true);
  session.transcript.Line({"end"});
  return std::nullopt;
}

Fault Macro(Session& session, const Words& words) {
  const auto& runMacro = session.program().runMacro;
  if (!runMacro || !runMacro(FromUtf8(words[1]))) return "no such macro: " + words[1];
  return std::nullopt;
}

Fault Quit(Session& session, const Words&) {
  QuitProgram(session.program());
  return std::nullopt;
}

}  // namespace morlan::scripted
