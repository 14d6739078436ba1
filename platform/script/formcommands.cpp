// The commands on forms and their controls.
#include "core/defs.h"
#include "core/documents.h"
#include "core/menus.h"
#include "core/morlan.h"
#include "platform/encoding.h"
#include "platform/script/controlkeys.h"
#include "platform/script/controlnames.h"
#include "platform/script/json.h"
#include "platform/script/scriptcommands.h"
#include "platform/script/scriptwords.h"
#include "platform/script/session.h"
#include "platform/script/typedkeys.h"

namespace morlan::scripted {
namespace {

// The control that a command uses: it takes the focus first, which may change what it is.
NamedControl Use(Session& session, const std::string& name) {
  const NamedControl found = FindUsableControl(session, name);
  if (!found.control) return found;
  session.forms.FocusOn(*found.control);
  return FindUsableControl(session, name);
}

Fault IsNo(const std::string& name, std::string_view what) { return name + " is no " + std::string(what); }

Fault SelectInMultiple(const NamedControl& found, int row, const std::string& state) {
  auto* list = dynamic_cast<ListBox*>(found.control);
  if (!list || !list->IsMultiple()) return IsNo(found.name, "list with several selections");
  if (state != "on" && state != "off") return "the state of a row is \"on\" or \"off\"";
  if (row < 0 || row >= static_cast<int>(list->ListCount())) return found.name + " has no such row";
  list->UserSelectsInMultiple(static_cast<std::size_t>(row), state == "on");
  return std::nullopt;
}

bool SelectRow(Control& control, int row) {
  if (auto* rows = dynamic_cast<RowControl*>(&control)) return rows->UserSelects(row);
  if (auto* tabs = dynamic_cast<Tabs*>(&control)) return tabs->UserSelects(row);
  auto* grid = dynamic_cast<Grid*>(&control);
  return grid && grid->UserSelectsCell(grid->Column(), row);
}

Fault ClickToolbar(ToolBar& toolbar, const NamedControl& found, const Words& words) {
  if (words.size() < 3) return "the button of the toolbar is missing";
  if (!toolbar.UserPresses(FromUtf8(words[2]))) return found.name + " has no button " + words[2] + " that can be pressed";
  return std::nullopt;
}

void PrintRow(Session& session, std::size_t index, std::string_view text, bool selected) {
  session.transcript.Line({"row", std::to_string(index), JsonString(text), selected ? "selected" : ""});
}

void PrintRows(Session& session, const RowControl& rows) {
  const auto* list = dynamic_cast<const ListBox*>(&rows);
  for (std::size_t i = 0; i < rows.ListCount(); ++i)
    PrintRow(session, i, rows.List(i), list ? list->Selected(i) : rows.ListIndex() == static_cast<int>(i));
}

void PrintRows(Session& session, const Tabs& tabs) {
  for (std::size_t i = 0; i < tabs.Count(); ++i) PrintRow(session, i, tabs.All()[i].text, tabs.Selected() == static_cast<int>(i));
}

void PrintRows(Session& session, const Grid& grid) {
  for (int row = 0; row < grid.RowCount(); ++row) {
    std::string cells;
    for (int column = 0; column < grid.Columns(); ++column) cells.append(column ? "\t" : "").append(grid.Cell(column, row));
    PrintRow(session, static_cast<std::size_t>(row), cells, grid.Row() == row);
  }
}

struct Place {
  int x, y;
};

std::optional<Place> ReadPlace(const Words& words, std::size_t first) {
  const auto x = ReadInteger(words[first]), y = ReadInteger(words[first + 1]);
  return x && y ? std::optional(Place{*x, *y}) : std::nullopt;
}

void MoveMouse(const std::function<void(MouseButton, int, int)>& handler, Place place) {
  if (handler) handler(MouseButton::Left, place.x, place.y);
}

}  // namespace

Fault DescribeForm(Session& session, const Words&) {
  const Form& form = session.forms.Front();
  session.transcript.Line({"form", form.Name(), JsonString(form.Caption())});
  for (const Control* control : form.Controls()) {
    if (!control->Visible() || control->GetKind() == Control::Kind::Timer) continue;
    session.transcript.Line({"control", control->Name(), KindWord(control->GetKind()), control->Enabled() ? "enabled" : "disabled",
                             JsonString(control->ValueText())});
  }
  session.transcript.Line({"end"});
  return std::nullopt;
}

Fault Set(Session& session, const Words& words) {
  const NamedControl found = Use(session, words[1]);
  if (!found.control) return found.fault;
  if (!found.control->UserSetsText(FromUtf8(words[2]))) return found.name + " does not take that value";
  return std::nullopt;
}

Fault Row(Session& session, const Words& words) {
  const auto row = ReadInteger(words[2]);
  if (!row) return IsNo(words[2], "number");
  const NamedControl found = Use(session, words[1]);
  if (!found.control) return found.fault;
  if (words.size() > 3) return SelectInMultiple(found, *row, words[3]);
  if (!SelectRow(*found.control, *row)) return found.name + " has no such row";
  return std::nullopt;
}

Fault Cell(Session& session, const Words& words) {
  const auto place = ReadPlace(words, 2);
  if (!place) return "the column and the row of a cell are numbers";
  const NamedControl found = Use(session, words[1]);
  if (!found.control) return found.fault;
  auto* grid = dynamic_cast<Grid*>(found.control);
  if (!grid) return IsNo(found.name, "grid");
  if (!grid->UserSelectsCell(place->x, place->y)) return found.name + " has no such cell";
  return std::nullopt;
}

Fault Click(Session& session, const Words& words) {
  const NamedControl found = Use(session, words[1]);
  if (!found.control) return found.fault;
  if (auto* toolbar = dynamic_cast<ToolBar*>(found.control)) return ClickToolbar(*toolbar, found, words);
  if (words.size() > 2) return IsNo(found.name, "toolbar");
  if (auto* check = dynamic_cast<CheckBox*>(found.control))
    check->UserSets(!check->Value());
  else if (auto* option = dynamic_cast<OptionButton*>(found.control))
    option->UserSets();
  else
    found.control->UserClicks();
  return std::nullopt;
}

Fault DblClick(Session& session, const Words& words) {
  const NamedControl found = Use(session, words[1]);
  if (!found.control) return found.fault;
  found.control->UserDblClicks();
  return std::nullopt;
}

Fault Press(Session& session, const Words& words) {
  const std::string name = FromUtf8(words[2]);
  KeyPress press = KeyFromText(name);
  if (!press.code && name.size() == 1) press = KeyOfCharacter(name[0]);
  if (!press.code) return "no such key: " + words[2];
  const NamedControl found = Use(session, words[1]);
  if (!found.control) return found.fault;
  PressInControl(session.forms, *found.control, press);
  return std::nullopt;
}

Fault Draw(Session& session, const Words& words) {
  const auto from = ReadPlace(words, 2), to = ReadPlace(words, 4);
  if (!from || !to) return "the places in a picture are numbers";
  const NamedControl found = Use(session, words[1]);
  if (!found.control) return found.fault;
  const auto* picture = dynamic_cast<Picture*>(found.control);
  if (!picture) return IsNo(found.name, "picture");
  MoveMouse(picture->OnMouseDown, *from);
  MoveMouse(picture->OnMouseMove, *to);
  MoveMouse(picture->OnMouseUp, *to);
  return std::nullopt;
}

Fault Point(Session& session, const Words& words) {
  const auto place = ReadPlace(words, 2);
  if (!place) return "the places in a picture are numbers";
  const NamedControl found = Use(session, words[1]);
  if (!found.control) return found.fault;
  auto* picture = dynamic_cast<Picture*>(found.control);
  if (!picture) return IsNo(found.name, "picture");
  MoveMouse(picture->OnMouseDown, *place);
  MoveMouse(picture->OnMouseUp, *place);
  picture->UserClicks();
  return std::nullopt;
}

Fault Leave(Session& session, const Words& words) {
  const NamedControl found = FindUsableControl(session, words[1]);
  if (!found.control) return found.fault;
  session.forms.Leave(*found.control);
  return std::nullopt;
}

Fault Get(Session& session, const Words& words) {
  const NamedControl found = FindControl(session, words[1]);
  if (!found.control) return found.fault;
  session.transcript.Line({"value", found.name, JsonString(found.control->ValueText())});
  return std::nullopt;
}

Fault Rows(Session& session, const Words& words) {
  const NamedControl found = FindControl(session, words[1]);
  if (!found.control) return found.fault;
  if (const auto* rows = dynamic_cast<RowControl*>(found.control))
    PrintRows(session, *rows);
  else if (const auto* tabs = dynamic_cast<Tabs*>(found.control))
    PrintRows(session, *tabs);
  else if (const auto* grid = dynamic_cast<Grid*>(found.control))
    PrintRows(session, *grid);
  else
    return found.name + " has no rows";
  session.transcript.Line({"end"});
  return std::nullopt;
}

Fault Close(Session& session, const Words&) {
  Form& front = session.forms.Front();
  if (session.forms.IsDialog(front)) {
    front.UserCloses();
    return std::nullopt;
  }
  if (!session.program().ActiveDocument) return "no form and no document is open";
  CloseActiveDocument(session.program());
  return std::nullopt;
}

Fault Show(Session& session, const Words& words) {
  if (!session.program().forms.ShowByName(FromUtf8(words[1]))) return "no such form: " + words[1];
  return std::nullopt;
}

Fault Front(Session& session, const Words& words) {
  if (!session.forms.BringForward(FromUtf8(words[1]))) return "no such open form: " + words[1];
  return std::nullopt;
}

}  // namespace morlan::scripted
