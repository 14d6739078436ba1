#include "tags/includefile.h"

#include "core/defs.h"
#include "core/text.h"
#include "tags/insertcommands.h"
#include "tags/tageditor.h"

namespace morlan {
namespace {

constexpr std::string_view kIncludedFiles = "Pliki dołączane|*.inc;*.asp;*.cfm;*.html;*.htm;*.txt|Wszystkie pliki|*.*"_pl;

void InsertInclude(Program& program, std::string_view before) {
  const std::string name = program.forms.Get<IncludeFile>().Ask();
  if (!name.empty()) InsertPair(program, Concat({before, name, "\"-->"}), "");
}

}  // namespace

IncludeFile::IncludeFile(Program& program) : ServerDialog(program, "IncludeFile", "Dołącz plik"_pl) {
  Remember(Href, "Listy\\Include.lst");
  SetUp(Command2, Command1);
  SetUpFileButton(program, hrefFile, Href, kIncludedFiles);
  Href.WidthInCharacters = 32;
  Href.SetToolTip("Plik, którego treść serwer wstawi w to miejsce"_pl);
  layout = layout::Rows(layout::Field("&Plik", Href, &hrefFile), layout::ButtonRow(Command2, Command1));
}

// The comment has no "!", and the tag ends like one: both stand so.
void InsertAspInclude(Program& program) { InsertInclude(program, "<--#include file=\""); }

void InsertCfInclude(Program& program) { InsertInclude(program, "<CFINCLUDE TEMPLATE=\""); }

}  // namespace morlan
