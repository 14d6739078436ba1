#include "tags/quickstart.h"

#include "core/defs.h"
#include "core/editsurface.h"
#include "core/settings.h"
#include "core/status.h"
#include "core/text.h"
#include "tags/bodyeditor.h"
#include "tags/insertcommands.h"
#include "tags/metatags.h"
#include "tags/tageditor.h"

namespace morlan {
namespace {

constexpr std::string_view kDocTypes = "Listy\\DocType.lst";
constexpr std::string_view kBeforeTitle = "\r\n<HTML>\r\n<HEAD>\r\n  <TITLE>";
constexpr std::string_view kBehindTitle = "</TITLE>\r\n</HEAD>\r\n<BODY>\r\n\r\n</BODY>\r\n</HTML>";

}  // namespace

std::string PageSkeleton(std::string_view docType, std::string_view title) { return Concat({docType, kBeforeTitle, title, kBehindTitle}); }

QuickStart::QuickStart(Program& program) : Form("QuickStart", "Szybki start") {
  SetUpButtons(program, *this, Command2, Command1);
  OnLoad = [this, &program] {
    doctype.Clear();
    LoadComboFromList(program, doctype, kDocTypes);
    tytul.SetText("Bez tytułu"_pl);
  };
  Command2.OnClick = [this] { Hide(); };
  tytul.SetToolTip("Tytuł, który przeglądarka pokaże na pasku okna"_pl);
  doctype.SetToolTip("Pierwszy wiersz strony: odmiana języka, w której jest napisana"_pl);
  startbody.SetToolTip("Otwiera potem okno właściwości strony"_pl);
  doctype.WidthInCharacters = 56;
  layout = layout::Rows(layout::Field("&Tytuł"_pl, tytul), layout::Field("Typ &dokumentu", doctype), startbody,
                        layout::ButtonRow(Command2, Command1));
}

void StartPage(Program& program) {
  QuickStart& form = program.forms.Get<QuickStart>();
  if (!ShowForNew(program, form)) return;
  RememberInList(program, form.doctype, kDocTypes);
  program.ActiveEditor->Select(0, 0);
  InsertPair(program, PageSkeleton(form.doctype.Text(), form.tytul.Text()), "");
  SetMeta(program, "HTTP-EQUIV", "Generator", Concat({"Morlan7 Version ", VersionText}));
  const std::string charset = Settings(program.MainIni).Text(Setting::CharSet);
  SetMeta(program, "HTTP-EQUIV", "Content-Type", Concat({"text/html;CHARSET=", charset}));
  if (form.startbody.Value()) EditBody(program);
}

}  // namespace morlan
