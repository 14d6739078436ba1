#include "tags/servervariables.h"

#include "core/defs.h"
#include "core/text.h"
#include "tags/insertcommands.h"

namespace morlan {
namespace {

void InsertVariable(Program& program, std::string_view before, std::string_view behind) {
  const std::string name = program.forms.Get<ServerVariables>().Ask();
  if (!name.empty()) InsertPair(program, Concat({before, name, behind}), "");
}

}  // namespace

ServerVariables::ServerVariables(Program& program) : ServerDialog(program, "ServerVariables", "Zmienne serwera") {
  Remember(ServerVar, "Listy\\ServerVar.lst");
  SetUp(Command2, Command1);
  ServerVar.WidthInCharacters = 32;
  ServerVar.SetToolTip("Nazwa zmiennej, którą ustawia serwer"_pl);
  layout = layout::Rows(layout::Field("&Zmienna", ServerVar), layout::ButtonRow(Command2, Command1));
}

void InsertAspVariable(Program& program) { InsertVariable(program, "<% Request.ServerVariables(\"", "\") %>"); }

void InsertCfVariable(Program& program) { InsertVariable(program, "#cgi.", "#"); }

}  // namespace morlan
