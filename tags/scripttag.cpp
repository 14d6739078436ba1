#include "tags/scripttag.h"

#include "tags/tageditor.h"
#include "tags/tagscan.h"

namespace morlan {
namespace {

constexpr std::string_view kScriptFiles = "Skrypty|*.js;*.mjs;*.vbs|Wszystkie pliki|*.*";

}  // namespace

std::string ScriptText(const ScriptValues& values) {
  return AddAttribute(values.language, "LANGUAGE") + AddAttribute(values.source, "SOURCE") + AddAttribute(values.runAt, "RUNAT");
}

Script::Script(Program& program) : ServerDialog(program, "Script", "Script") {
  Remember(Language, "Listy\\Language.lst");
  Remember(RunAt, "Listy\\RunAt.lst");
  SetUp(Command2, Command1);
  SetUpFileButton(program, sourceFile, Source, kScriptFiles);
  Language.SetToolTip("Język, w którym jest napisany skrypt"_pl);
  Source.SetToolTip("Plik ze skryptem; puste pole znaczy, że skrypt stoi na stronie"_pl);
  RunAt.SetToolTip("Miejsce, w którym skrypt zostanie uruchomiony"_pl);
  layout = layout::Rows(layout::Field("&Język"_pl, Language), layout::Field("Ź&ródło"_pl, Source, &sourceFile),
                        layout::Field("&Gdzie uruchomić"_pl, RunAt), layout::ButtonRow(Command2, Command1));
}

void Script::Read(std::string_view tag) {
  ShowChoice(Language, GetTagParam(tag, "LANGUAGE"));
  Source.SetText(GetTagTextParam(tag, "SOURCE"));
  ShowChoice(RunAt, GetTagParam(tag, "RUNAT"));
}

}  // namespace morlan
