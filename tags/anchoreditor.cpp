#include "tags/anchoreditor.h"

#include "core/defs.h"
#include "core/status.h"
#include "tags/insertcommands.h"
#include "tags/tageditor.h"
#include "tags/tagscan.h"

namespace morlan {
namespace {

constexpr std::string_view kAddresses = "Listy\\HREF.lst";

}  // namespace

std::string AnchorText(const AnchorValues& values) {
  TagText tag("<A");
  tag.QuotedIfText(" HREF=", values.href).QuotedIfText(" NAME=", values.etykieta).QuotedIfText(" TARGET=", values.parm);
  return tag.Close();
}

anchor::anchor(Program& program) : Form("anchor", "Odnośniki"_pl) {
  FillTargets(parm);
  SetUpFieldButtons(*this, Command2, Command1, href);
  SetUpFileButton(program, hrefFile, href, kPageFiles);
  OnLoad = [this, &program] { RefillFromList(program, href, kAddresses); };
  Command2.OnClick = [this, &program] {
    RememberInList(program, href, kAddresses);
    Hide();
  };
  href.SetToolTip("Adres, do którego prowadzi odnośnik"_pl);
  etykieta.SetToolTip("Nazwa tego miejsca, do której mogą prowadzić odnośniki"_pl);
  parm.SetToolTip("Okno albo ramka, w której otworzy się strona"_pl);
  href.WidthInCharacters = 36;
  layout = layout::Rows(layout::Field("&HREF", href, &hrefFile), layout::Field("&Etykieta", etykieta), layout::Field("&TARGET", parm),
                        layout::ButtonRow(Command2, Command1));
}

void anchor::Read(std::string_view tag) {
  href.SetText(GetTagParam(tag, "href"));
  etykieta.SetText(GetTagParam(tag, "name"));
  parm.SetText(GetTagParam(tag, "target"));
}

AnchorValues anchor::Values() const { return {.href = href.Text(), .etykieta = etykieta.Text(), .parm = parm.Text()}; }

void EditAnchor(Program& program) {
  anchor& form = program.forms.Get<anchor>();
  form.Read(program.tagState.CurrentTagText);
  ShowForExisting(program, form);
  if (!form.href.Text().empty()) RewriteTag(program, AnchorText(form.Values()));
}

void InsertAnchor(Program& program) {
  anchor& form = program.forms.Get<anchor>();
  ShowForNew(program, form);
  if (!form.href.Text().empty()) InsertPair(program, AnchorText(form.Values()), "</A>");
}

}  // namespace morlan
