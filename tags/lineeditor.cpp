#include "tags/lineeditor.h"

#include "core/defs.h"
#include "core/status.h"
#include "core/text.h"
#include "tags/alignlabels.h"
#include "tags/insertcommands.h"
#include "tags/tageditor.h"
#include "tags/tagscan.h"

namespace morlan {
namespace {

// What the cancel button leaves in the width field.
constexpr std::string_view kCancelled = "-1";

}  // namespace

std::string LineText(const LineValues& values) {
  TagText tag("<HR");
  tag.IfText(" WIDTH=", values.dlugosc).IfText(" SIZE=", values.wysokosc);
  if (!values.wyrownanie.empty()) tag.Quoted(" ALIGN=", AlignLabelToHtml(values.wyrownanie));
  tag.Flag(values.bezCienia, " NOSHADE");
  if (values.colour) tag.Quoted(" COLOR=", *values.colour);
  return tag.Close();
}

lineedit::lineedit(Program& program) : Form("lineedit", "Linie"), kolory(program, *this, wzor, WhiteOption::IsNotSeen) {
  FillChoices(Wyrownanie, {"Do lewej", "Centruj", "Do prawej"});
  SetUpFieldButtons(*this, Command1, Command2, Dlugosc, kCancelled);
  OnLoad = [this] { kolory.ShowSelected(); };
  Dlugosc.SetToolTip("Długość linii w punktach albo w procentach okna"_pl);
  Wysokosc.SetToolTip("Grubość linii w punktach"_pl);
  Wyrownanie.SetToolTip("Położenie linii krótszej niż okno"_pl);
  BezCienia.SetToolTip("Rysuje linię płaską, bez wrażenia wgłębienia"_pl);
  Dlugosc.WidthInCharacters = Wysokosc.WidthInCharacters = 8;
  Wyrownanie.WidthInCharacters = 12;
  layout = layout::Rows(layout::Field("&Długość"_pl, Dlugosc), layout::Field("&Wysokość"_pl, Wysokosc),
                        layout::Field("Wy&równanie"_pl, Wyrownanie), BezCienia, kolory.Page(), layout::ButtonRow(Command1, Command2));
}

void lineedit::Read(std::string_view tag) {
  Wyrownanie.SetListIndex(-1);
  Dlugosc.SetText(GetTagParam(tag, "WIDTH"));
  Wysokosc.SetText(GetTagParam(tag, "SIZE"));
  BezCienia.SetValue(TextToBool(GetTagParam(tag, "NOSHADE")));
  kolory.SelectValue(LowerCase(GetTagParam(tag, "COLOR")));
  const std::string align = GetTagParam(tag, "ALIGN");
  if (const int row = Wyrownanie.ListFind(HtmlAlignToLabel(align)); !HtmlAlignToLabel(align).empty() && row >= 0)
    Wyrownanie.SetListIndex(row);
}

LineValues lineedit::Values() const {
  return {.dlugosc = Dlugosc.Text(),
          .wysokosc = Wysokosc.Text(),
          .wyrownanie = Wyrownanie.Text(),
          .bezCienia = BezCienia.Value(),
          .colour = kolory.Word()};
}

bool lineedit::IsCancelled() const { return Dlugosc.Text() == kCancelled; }

void EditLine(Program& program) {
  lineedit& form = program.forms.Get<lineedit>();
  form.Read(program.tagState.CurrentTagText);
  ShowForExisting(program, form);
  if (!form.IsCancelled()) RewriteTag(program, LineText(form.Values()));
}

void InsertLine(Program& program) {
  lineedit& form = program.forms.Get<lineedit>();
  if (form.IsCancelled()) form.Dlugosc.SetText("");
  ShowForNew(program, form);
  if (!form.IsCancelled()) InsertPair(program, LineText(form.Values()), "");
}

}  // namespace morlan
